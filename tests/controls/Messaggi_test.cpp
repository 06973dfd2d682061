#include "controls/Messaggi.h"

#include "controls/Italiano.h"
#include "tests/support/Controlli.h"

#include <QPointer>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString nudo(const QString &testo)
{
    return QString(testo).remove(u'&');
}

// Shows a box, calls gesto when it is open, and returns the answer.
Risposta risposta(Pulsanti pulsanti, const std::function<void(QMessageBox &)> &gesto)
{
    const ManoSuiMessaggi mano([&](QMessageBox &box) { gesto(box); });
    return messaggio(u"Vuoi salvare la lista?"_s, Icona::Domanda, pulsanti, u"Sequor"_s);
}

void premi(QMessageBox &box, QMessageBox::StandardButton quale)
{
    QTest::mouseClick(box.button(quale), Qt::LeftButton);
}

// Shows a box and returns its parent.
QWidget *genitore()
{
    QWidget *sopra = nullptr;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        sopra = box.parentWidget();
        premiOK(box);
    });
    messaggio(u"Collegamento non riuscito!"_s);
    return sopra;
}

// Shows a dialog, hides it and unloads it.
void passa(Finestra &dialogo)
{
    QTimer::singleShot(0, &dialogo, [&] { dialogo.Nascondi(); });
    dialogo.MostraModale();
    dialogo.Scarica();
}

} // namespace

TEST(Messaggi, ShowsItsTextTitleAndIcon)
{
    const struct
    {
        Icona icona;
        QMessageBox::Icon qt;
    } casi[] = {{Icona::Nessuna, QMessageBox::NoIcon},
                {Icona::Informazione, QMessageBox::Information},
                {Icona::Domanda, QMessageBox::Question},
                {Icona::Stop, QMessageBox::Critical}};
    for (const auto &caso : casi) {
        const ManoSuiMessaggi mano([&](QMessageBox &box) {
            EXPECT_EQ(box.text(), u"<b>x</b> & y"_s);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.windowTitle(), u"Sequor"_s);
            EXPECT_EQ(box.icon(), caso.qt);
            premiOK(box);
        });
        messaggio(u"<b>x</b> & y"_s, caso.icona, Pulsanti::OK, u"Sequor"_s);
    }
}

TEST(Messaggi, WithoutATitleItShowsTheProgramsName)
{
    QString titolo;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        titolo = box.windowTitle();
        premiOK(box);
    });
    messaggio(u"x"_s);
    EXPECT_EQ(titolo, u"Lumbra"_s);
}

TEST(Messaggi, ReturnsTheButtonThatWasPressed)
{
    EXPECT_EQ(risposta(Pulsanti::OK, premiOK), Risposta::OK);
    for (const Pulsanti quali : {Pulsanti::SiNo, Pulsanti::SiNoAnnulla}) {
        EXPECT_EQ(risposta(quali, [](auto &box) { premi(box, QMessageBox::Yes); }), Risposta::Si);
        EXPECT_EQ(risposta(quali, [](auto &box) { premi(box, QMessageBox::No); }), Risposta::No);
    }
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, [](auto &box) { premi(box, QMessageBox::Cancel); }),
              Risposta::Annulla);
}

TEST(Messaggi, ClosingTheBoxCountsAsOkOrAsAnnulla)
{
    const auto chiudi = [](QMessageBox &box) { box.close(); };
    const auto esc = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); };
    EXPECT_EQ(risposta(Pulsanti::OK, chiudi), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::OK, esc), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, chiudi), Risposta::Annulla);
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, esc), Risposta::Annulla);
}

TEST(Messaggi, AQuestionBetweenYesAndNoCannotBeClosed)
{
    int tentativi = 0;
    EXPECT_EQ(risposta(Pulsanti::SiNo,
                       [&](QMessageBox &box) {
                           if (++tentativi == 1) {
                               box.close();
                               QTest::keyClick(&box, Qt::Key_Escape);
                           } else {
                               premi(box, QMessageBox::Yes);
                           }
                       }),
              Risposta::Si);
    EXPECT_EQ(tentativi, 2);
}

TEST(Messaggi, EnterPressesTheFirstButton)
{
    const auto invio = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); };
    EXPECT_EQ(risposta(Pulsanti::OK, invio), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::SiNo, invio), Risposta::Si);
}

TEST(Messaggi, AKeyHeldBeforeTheBoxAppearedDoesNotAnswerIt)
{
    // A message box needs a window of the program.
    const FinestraDiProva finestra;
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        int volte = 0;
        EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla,
                           [&](QMessageBox &box) {
                               if (++volte > 3) {
                                   premi(box, QMessageBox::No);
                                   return;
                               }
                               QWidget *conFuoco = box.focusWidget();
                               QKeyEvent evento(QEvent::KeyPress, tasto, Qt::NoModifier, QString(),
                                                true);
                               QApplication::sendEvent(conFuoco ? conFuoco : &box, &evento);
                           }),
                  Risposta::No);
        EXPECT_EQ(volte, 4);
    }
}

TEST(Messaggi, TheStandardButtonsAreInItalianWhateverTheLanguageOfTheSystem)
{
    EXPECT_EXIT(
        {
            qputenv("LANG", "de_DE.UTF-8");
            qputenv("LC_ALL", "C");
            installaItaliano(*qApp);
            QStringList testi;
            risposta(Pulsanti::SiNoAnnulla, [&](QMessageBox &box) {
                testi = {nudo(box.button(QMessageBox::Yes)->text()),
                         nudo(box.button(QMessageBox::No)->text()),
                         nudo(box.button(QMessageBox::Cancel)->text())};
                premi(box, QMessageBox::No);
            });
            risposta(Pulsanti::OK, [&](QMessageBox &box) {
                testi += nudo(box.button(QMessageBox::Ok)->text());
                premiOK(box);
            });
            std::cerr << testi.join(u'|').toStdString();
            std::_Exit(0);
        },
        ::testing::ExitedWithCode(0), "Sì\\|No\\|Annulla\\|OK$");
}

TEST(Messaggi, IsShownOverTheActiveWindow)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    FinestraDiProva altra(u"frmEditor"_s);
    altra.mostraAttiva();
    console.mostraAttiva();
    EXPECT_EQ(genitore(), &console);
}

TEST(Messaggi, WithAnotherProgramInFrontIsShownOverTheWindowThatWasActiveLast)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    FinestraDiProva editor(u"frmEditor"_s);
    FinestraDiProva camera(u"frmCamera"_s);
    for (FinestraDiProva *finestra : {&console, &editor, &camera})
        finestra->mostraAttiva();
    const AltroProgramma altro;
    EXPECT_EQ(genitore(), &camera);
    // The windows close one by one, and none becomes active.
    camera.Scarica();
    EXPECT_EQ(genitore(), &editor);
    editor.Nascondi();
    EXPECT_EQ(genitore(), &console);
}

TEST(Messaggi, AfterADialogIsShownOverTheWindowBelow)
{
    FinestraDiProva vigilio(u"frmProcessor"_s);
    FinestraDiProva dialogo(u"frmImpCondizioni"_s);
    vigilio.mostraAttiva();
    passa(dialogo);
    const AltroProgramma altro;
    EXPECT_EQ(genitore(), &vigilio);
}

TEST(Messaggi, IsShownOverAWindowThatIsNotMinimisedIfThereIsOne)
{
    FinestraDiProva editor(u"frmEditor"_s);
    FinestraDiProva console(u"frmPrincipale"_s);
    editor.mostraAttiva();
    console.mostraAttiva();
    const AltroProgramma altro;
    console.setWindowState(1);
    EXPECT_EQ(genitore(), &editor);
    editor.setWindowState(1);
    EXPECT_NE(genitore(), nullptr);
}

TEST(Messaggi, HasAParentEvenIfNoWindowIsOnTheScreen)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    FinestraDiProva splash(u"frmSchermataIniziale"_s);
    splash.Mostra();
    EXPECT_EQ(genitore(), &splash);
    splash.Scarica();
    EXPECT_NE(genitore(), nullptr);
}

TEST(Messaggi, IsShownOverADialogThatIsOpen)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    FinestraDiProva dialogo(u"frmOpzioni"_s);
    console.mostraAttiva();
    QWidget *sopra = nullptr;
    QTimer::singleShot(0, &dialogo, [&] {
        const AltroProgramma altro;
        sopra = genitore();
        dialogo.Nascondi();
    });
    dialogo.MostraModale();
    EXPECT_EQ(sopra, &dialogo);
}

TEST(Messaggi, ASecondBoxIsShownOverTheFirstAndEachReturnsItsOwnAnswer)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    console.mostraAttiva();
    QPointer<QMessageBox> prima;
    bool sopraLaPrima = false;
    Risposta seconda = Risposta::OK;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        prima = &box;
        seconda = messaggio(u"seconda"_s, Icona::Domanda, Pulsanti::SiNo);
        premi(box, QMessageBox::Cancel);
    });
    // A second helper, because the first one waits inside until the second box is answered.
    const ManoSuiMessaggi altra([&](QMessageBox &box) {
        if (!prima || &box == prima)
            return;
        sopraLaPrima = box.parentWidget() == prima;
        premi(box, QMessageBox::Yes);
    });
    EXPECT_EQ(messaggio(u"prima"_s, Icona::Domanda, Pulsanti::SiNoAnnulla), Risposta::Annulla);
    EXPECT_EQ(seconda, Risposta::Si);
    EXPECT_TRUE(sopraLaPrima);
}

TEST(Messaggi, ClosingTheFirstBoxBelowTheSecondLeavesTheSecondOpen)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    console.mostraAttiva();
    QPointer<QMessageBox> prima;
    bool secondaRimasta = false;
    Risposta seconda = Risposta::OK;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        prima = &box;
        seconda = messaggio(u"seconda"_s, Icona::Domanda, Pulsanti::SiNo);
    });
    const ManoSuiMessaggi altra([&](QMessageBox &box) {
        if (!prima || &box == prima)
            return;
        prima->close();
        secondaRimasta = box.isVisible();
        premi(box, QMessageBox::Yes);
    });
    EXPECT_EQ(messaggio(u"prima"_s, Icona::Domanda, Pulsanti::SiNoAnnulla), Risposta::Annulla);
    EXPECT_TRUE(secondaRimasta);
    EXPECT_EQ(seconda, Risposta::Si);
}

TEST(Messaggi, DestroyingTheWindowOfABoxCancelsTheBox)
{
    FinestraDiProva console(u"frmPrincipale"_s);
    const std::pair<Pulsanti, Risposta> casi[] = {{Pulsanti::OK, Risposta::OK},
                                                  {Pulsanti::SiNo, Risposta::No},
                                                  {Pulsanti::SiNoAnnulla, Risposta::Annulla}};
    for (const auto &[pulsanti, attesa] : casi) {
        auto finestra = std::make_unique<FinestraDiProva>();
        finestra->mostraAttiva();
        EXPECT_EQ(risposta(pulsanti, [&](auto &) { finestra.reset(); }), attesa);
    }
}

TEST(Messaggi, CanBeAnsweredOverADisabledWindow)
{
    FinestraDiProva esplora(u"frmEsploraFile"_s);
    esplora.mostraAttiva();
    esplora.setEnabled(false);
    EXPECT_EQ(genitore(), &esplora);
}

TEST(Messaggi, ClosingABoxNeverEndsTheProgramWhateverTheStateOfItsWindows)
{
    // In a separate process, because a failure would end the test program.
    EXPECT_EXIT(
        {
            FinestraDiProva console(u"frmPrincipale"_s);
            FinestraDiProva splash(u"frmSchermataIniziale"_s);
            FinestraDiProva dialogo(u"frmImpostaPorta"_s);
            QTimer::singleShot(0, qApp, [&] {
                genitore();
                splash.Mostra();
                genitore();
                passa(dialogo);
                genitore();
                splash.Scarica();
                genitore();
                console.Mostra();
                const AltroProgramma altro;
                genitore();
                console.setWindowState(1);
                genitore();
                console.Nascondi();
                genitore();
                QTimer::singleShot(50, qApp, [] { std::_Exit(7); });
            });
            QApplication::exec();
            std::_Exit(0);
        },
        ::testing::ExitedWithCode(7), "");
}
