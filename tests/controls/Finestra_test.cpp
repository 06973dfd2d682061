#include "controls/Finestra.h"

#include "base/Pompa.h"
#include "controls/CasellaTesto.h"
#include "controls/Elenco.h"
#include "controls/Messaggi.h"
#include "controls/Temporizzatore.h"
#include "tests/support/Controlli.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct FinestraTest : ::testing::Test
{
    FinestraDiProva finestra;
};

struct TastiDellaFinestra : FinestraTest
{
    TastiDellaFinestra()
    {
        pulsante.move(0, 50);
        finestra.setKeyPreview();
        finestra.mostraAttiva();
        finestra.diario.clear();
    }
    CasellaTesto testo{u"txt"_s, &finestra};
    Pulsante pulsante{u"pul"_s, &finestra, u"OK"_s};
};

QStringList dopoMostra()
{
    return {u"Initialize"_s, u"Load"_s, u"Activate"_s};
}

void attiva(Finestra &quale)
{
    quale.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&quale));
}

} // namespace

TEST_F(FinestraTest, IsFoundByItsNameWithItsProperties)
{
    EXPECT_EQ(finestra.objectName(), u"frmProva"_s);
    EXPECT_EQ(finestra.property("Caption").toString(), u"Prova"_s);
    EXPECT_EQ(finestra.property("Visible").toBool(), false);
    EXPECT_EQ(finestra.property("WindowState").toInt(), 0);
    EXPECT_TRUE(finestra.setProperty("Tag", u"AVVIATO"_s));
    EXPECT_EQ(finestra.Tag(), u"AVVIATO"_s);
}

TEST_F(FinestraTest, IsLoadedAtItsFirstShowing)
{
    EXPECT_FALSE(finestra.Caricata());
    EXPECT_TRUE(finestra.diario.isEmpty());
    finestra.Mostra();
    EXPECT_TRUE(finestra.Caricata());
    EXPECT_TRUE(finestra.Visible());
    EXPECT_EQ(finestra.diario, dopoMostra());
}

TEST_F(FinestraTest, ShowingItAgainDoesNothing)
{
    finestra.Mostra();
    finestra.Mostra();
    EXPECT_EQ(finestra.diario, dopoMostra());
}

TEST_F(FinestraTest, ShownAgainWhileItIsOpenItIsOnlyRaised)
{
    finestra.mostraAttiva();
    finestra.diario.clear();
    finestra.alzate = 0;
    finestra.Mostra();
    EXPECT_EQ(finestra.alzate, 1);
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraTest, ShownAgainWhileItIsMinimisedItIsRestored)
{
    finestra.mostraAttiva();
    for (const bool ingrandita : {false, true}) {
        finestra.setWindowState(ingrandita ? 2 : 0);
        static_cast<QWidget &>(finestra).setWindowState(finestra.windowState() |
                                                        Qt::WindowMinimized);
        ASSERT_EQ(finestra.WindowState(), 1);
        finestra.diario.clear();
        finestra.alzate = 0;
        finestra.Mostra();
        EXPECT_EQ(finestra.WindowState(), ingrandita ? 2 : 0);
        EXPECT_EQ(finestra.alzate, 1);
        EXPECT_TRUE(finestra.diario.isEmpty());
    }
}

TEST_F(FinestraTest, CanBeMaximisedOnlyIfItCanBeResized)
{
    FinestraDiProva fissa(u"frmPrincipale"_s);
    fissa.setFixedSize(300, 200);
    for (Finestra *quale : std::initializer_list<Finestra *>{&finestra, &fissa}) {
        quale->Mostra();
        EXPECT_EQ(quale->windowType(), Qt::Window);
        const Qt::WindowFlags pulsanti = quale->windowFlags();
        EXPECT_TRUE(pulsanti.testFlag(Qt::WindowMinimizeButtonHint));
        EXPECT_TRUE(pulsanti.testFlag(Qt::WindowCloseButtonHint));
        EXPECT_EQ(pulsanti.testFlag(Qt::WindowMaximizeButtonHint), quale == &finestra);
    }
}

TEST_F(FinestraTest, AsADialogItHasNoButtonsToMinimiseAndMaximise)
{
    Qt::WindowFlags pulsanti;
    QTimer::singleShot(20, &finestra, [&] {
        pulsanti = finestra.windowFlags();
        finestra.Nascondi();
    });
    finestra.MostraModale();
    EXPECT_EQ(pulsanti & Qt::WindowType_Mask, Qt::Dialog);
    EXPECT_FALSE(pulsanti.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(pulsanti.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(pulsanti.testFlag(Qt::WindowCloseButtonHint));
    // Without this flag the window system chooses the buttons.
    EXPECT_TRUE(pulsanti.testFlag(Qt::CustomizeWindowHint));
}

TEST_F(FinestraTest, ADialogBelongsToTheWindowBelowEvenIfAnotherProgramIsInFront)
{
    FinestraDiProva altra(u"frmAltra"_s);
    finestra.mostraAttiva();
    altra.mostraAttiva();
    altra.Scarica();
    FinestraDiProva dialogo(u"frmDialogo"_s);
    const AltroProgramma altro;
    const QWindow *sopra = nullptr;
    QTimer::singleShot(20, &dialogo, [&] {
        sopra = dialogo.windowHandle()->transientParent();
        dialogo.Nascondi();
    });
    dialogo.MostraModale();
    EXPECT_EQ(sopra, finestra.windowHandle());
}

TEST_F(FinestraTest, WhenHiddenItKeepsItsStateAndIsNotLoadedAgain)
{
    CasellaTesto testo(u"txt"_s, &finestra, u"1"_s);
    finestra.Mostra();
    testo.setText(u"42"_s);
    finestra.Nascondi();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_TRUE(finestra.Caricata());
    finestra.Mostra();
    EXPECT_EQ(testo.Text(), u"42"_s);
    EXPECT_EQ(finestra.diario, dopoMostra() << u"Activate"_s);
}

TEST_F(FinestraTest, UnloadedByCodeItAsksAndGetsItsDesignValuesAgain)
{
    finestra.Mostra();
    finestra.diario.clear();
    finestra.Scarica();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_FALSE(finestra.Caricata());
    EXPECT_EQ(finestra.diario, (QStringList{u"QueryUnload 1"_s, u"Unload"_s, u"Disegno"_s}));
}

TEST_F(FinestraTest, ClosedByTheUserItAsksWithTheModeOfTheUser)
{
    finestra.Mostra();
    finestra.diario.clear();
    finestra.close();
    EXPECT_FALSE(finestra.Caricata());
    EXPECT_EQ(finestra.diario, (QStringList{u"QueryUnload 0"_s, u"Unload"_s, u"Disegno"_s}));
}

TEST_F(FinestraTest, AfterUnloadingTheNextShowingLoadsItAgain)
{
    finestra.Mostra();
    finestra.Scarica();
    finestra.diario.clear();
    finestra.Mostra();
    EXPECT_EQ(finestra.diario, (QStringList{u"Load"_s, u"Activate"_s}));
}

TEST_F(FinestraTest, UnloadingAWindowThatIsNotLoadedDoesNothing)
{
    finestra.Scarica();
    finestra.close();
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraTest, QueryUnloadMayRefuse)
{
    finestra.Mostra();
    finestra.rifiutaQuery = true;
    finestra.diario.clear();
    finestra.close();
    EXPECT_TRUE(finestra.Visible());
    EXPECT_TRUE(finestra.Caricata());
    EXPECT_EQ(finestra.diario, QStringList{u"QueryUnload 0"_s});
    finestra.Scarica();
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(FinestraTest, UnloadMayRefuse)
{
    finestra.Mostra();
    finestra.rifiutaUnload = true;
    finestra.diario.clear();
    finestra.Scarica();
    EXPECT_TRUE(finestra.Visible());
    EXPECT_TRUE(finestra.Caricata());
    EXPECT_EQ(finestra.diario, (QStringList{u"QueryUnload 1"_s, u"Unload"_s}));
}

TEST_F(FinestraTest, AHiddenWindowCanBeUnloaded)
{
    finestra.Mostra();
    finestra.Nascondi();
    finestra.Scarica();
    EXPECT_FALSE(finestra.Caricata());
}

TEST_F(FinestraTest, ItsTagSurvivesUnloading)
{
    finestra.Mostra();
    finestra.setTag(u"Aperto"_s);
    finestra.Scarica();
    finestra.Mostra();
    EXPECT_EQ(finestra.Tag(), u"Aperto"_s);
}

TEST_F(FinestraTest, UnloadingResetsItsCaptionSizeAndState)
{
    finestra.Mostra();
    finestra.setCaption(u"Prova file.sqm"_s);
    finestra.resize(500, 500);
    finestra.setWindowState(2);
    finestra.Scarica();
    EXPECT_EQ(finestra.Caption(), u"Prova"_s);
    EXPECT_EQ(finestra.WindowState(), 0);
    EXPECT_EQ(finestra.size(), QSize(400, 300));
}

TEST_F(FinestraTest, ResettingTheDesignValuesRaisesNoEvents)
{
    struct ConTesto : FinestraDiProva
    {
        CasellaTesto testo{u"txt"_s, this, u"1"_s};
        Elenco lista{u"lst"_s, this};
        void Disegno() override
        {
            testo.setText(u"1"_s);
            lista.AddItem(u"a"_s);
            lista.setListIndex(0);
        }
    } conTesto;
    int volte = 0;
    conTesto.testo.Change.collega([&] { ++volte; });
    conTesto.lista.Click.collega([&] { ++volte; });
    conTesto.Mostra();
    conTesto.testo.setText(u"2"_s);
    EXPECT_EQ(volte, 1);
    conTesto.Scarica();
    EXPECT_EQ(conTesto.testo.Text(), u"1"_s);
    EXPECT_EQ(volte, 1);
    conTesto.testo.setText(u"3"_s);
    EXPECT_EQ(volte, 2);
}

TEST_F(FinestraTest, UnloadedInsideItsLoadItIsNotShown)
{
    finestra.inLoad = [&] { finestra.Scarica(); };
    finestra.Mostra();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_FALSE(finestra.Caricata());
    EXPECT_FALSE(finestra.diario.contains(u"Activate"_s));
    finestra.MostraModale();
    EXPECT_FALSE(finestra.Visible());
    finestra.inLoad = {};
    finestra.Mostra();
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(FinestraTest, MayShowAnotherWindowInsideItsLoad)
{
    FinestraDiProva altra(u"frmAltra"_s);
    finestra.inLoad = [&] { altra.Mostra(); };
    finestra.Mostra();
    EXPECT_TRUE(altra.Visible());
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(FinestraTest, IsActivatedAtEachShowingExactlyOnce)
{
    finestra.mostraAttiva();
    EXPECT_EQ(finestra.volte(u"Activate"_s), 1);
    finestra.Nascondi();
    finestra.mostraAttiva();
    EXPECT_EQ(finestra.volte(u"Activate"_s), 2);
}

TEST_F(FinestraTest, IsActivatedOnAChangeBetweenWindowsOfTheProgram)
{
    FinestraDiProva altra(u"frmAltra"_s);
    finestra.mostraAttiva();
    altra.mostraAttiva();
    EXPECT_EQ(finestra.volte(u"Activate"_s), 1);
    attiva(finestra);
    EXPECT_EQ(finestra.volte(u"Activate"_s), 2);
    EXPECT_EQ(altra.volte(u"Activate"_s), 1);
    attiva(altra);
    EXPECT_EQ(altra.volte(u"Activate"_s), 2);
}

TEST_F(FinestraTest, IsActivatedWhenTheWindowInFrontIsHiddenOrUnloaded)
{
    for (const bool scaricata : {false, true}) {
        FinestraDiProva altra(u"frmAltra"_s);
        finestra.mostraAttiva();
        altra.mostraAttiva();
        finestra.diario.clear();
        if (scaricata)
            altra.Scarica();
        else
            altra.Nascondi();
        attiva(finestra);
        EXPECT_EQ(finestra.volte(u"Activate"_s), 1);
    }
}

TEST_F(FinestraTest, IsNotActivatedOnReturnFromAMessageBox)
{
    finestra.mostraAttiva();
    finestra.diario.clear();
    const ManoSuiMessaggi mano(premiOK);
    messaggio(u"Collegamento non riuscito!"_s);
    attiva(finestra);
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraTest, IsNotActivatedOnReturnFromAnotherProgram)
{
    finestra.mostraAttiva();
    finestra.diario.clear();
    {
        const AltroProgramma altro;
        ASSERT_FALSE(finestra.isActiveWindow());
    }
    attiva(finestra);
    EXPECT_TRUE(finestra.diario.isEmpty());
}

TEST_F(FinestraTest, ShownAsADialogItEndsTheCallWhenItIsHidden)
{
    QTimer::singleShot(20, &finestra, [&] {
        EXPECT_TRUE(finestra.isModal());
        finestra.Nascondi();
    });
    finestra.MostraModale();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_TRUE(finestra.Caricata());
}

TEST_F(FinestraTest, ShownAsADialogItEndsTheCallWhenTheUserClosesIt)
{
    QTimer::singleShot(20, &finestra, [&] { finestra.close(); });
    finestra.MostraModale();
    EXPECT_FALSE(finestra.Caricata());
}

TEST_F(FinestraTest, ShownAsADialogItStaysOpenWhenItRefusesToClose)
{
    finestra.rifiutaQuery = true;
    int tentativi = 0;
    QTimer::singleShot(20, &finestra, [&] {
        finestra.close();
        ++tentativi;
        EXPECT_TRUE(finestra.Visible());
        QTimer::singleShot(20, &finestra, [&] { finestra.Nascondi(); });
    });
    finestra.MostraModale();
    EXPECT_EQ(tentativi, 1);
}

TEST_F(FinestraTest, IsBlockedByADialog)
{
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    int click = 0;
    pulsante.Click.collega([&] { ++click; });
    finestra.mostraAttiva();
    const QPoint punto = pulsante.geometry().center();
    FinestraDiProva dialogo(u"frmDialogo"_s);
    QTimer::singleShot(20, &dialogo, [&] {
        QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, punto);
        dialogo.Nascondi();
    });
    dialogo.MostraModale();
    EXPECT_EQ(click, 0);
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(click, 1);
}

TEST_F(FinestraTest, DialogsCanBeStacked)
{
    finestra.mostraAttiva();
    FinestraDiProva primo(u"frmPrimo"_s);
    FinestraDiProva secondo(u"frmSecondo"_s);
    QStringList ordine;
    QTimer::singleShot(20, &primo, [&] {
        QTimer::singleShot(20, &secondo, [&] { secondo.Nascondi(); });
        secondo.MostraModale();
        ordine += u"secondo"_s;
        primo.Nascondi();
    });
    primo.MostraModale();
    ordine += u"primo"_s;
    EXPECT_EQ(ordine, (QStringList{u"secondo"_s, u"primo"_s}));
}

TEST_F(FinestraTest, AWindowThatWasADialogCanBeShownAsAWindowAgain)
{
    QTimer::singleShot(20, &finestra, [&] { finestra.Nascondi(); });
    finestra.MostraModale();
    finestra.Mostra();
    EXPECT_FALSE(finestra.isModal());
}

TEST_F(FinestraTest, TimersRunDuringADialogAndDuringAMessageBox)
{
    Temporizzatore timer(u"tmr"_s, nullptr);
    int scatti = 0;
    timer.Timer.collega([&] {
        if (++scatti == 5)
            finestra.Nascondi();
    });
    timer.setInterval(1);
    timer.setEnabled(true);
    finestra.MostraModale();
    EXPECT_GE(scatti, 5);
    scatti = 100;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        if (scatti > 105)
            premiOK(box);
    });
    messaggio(u"Collegamento non riuscito!"_s);
    EXPECT_GT(scatti, 105);
}

TEST_F(FinestraTest, ItsWindowStateCanBeReadAndSet)
{
    finestra.Mostra();
    for (const int stato : {1, 2, 0}) {
        finestra.setWindowState(stato);
        EXPECT_EQ(finestra.WindowState(), stato);
    }
}

TEST_F(FinestraTest, HasItsPlaceOnTheScreenInLayoutUnits)
{
    finestra.Mostra();
    finestra.Move(1500, 750);
    EXPECT_EQ(finestra.pos(), QPoint(100, 50));
    EXPECT_EQ(finestra.Left(), finestra.frameGeometry().x() * 15);
    EXPECT_EQ(finestra.Width(), finestra.frameGeometry().width() * 15);
}

TEST_F(TastiDellaFinestra, TheWindowSeesAKeyBeforeTheControlThatHasTheFocus)
{
    testo.SetFocus();
    QString alTasto = u"?"_s;
    finestra.inKeyDown = [&] { alTasto = testo.Text(); };
    QTest::keyClick(&testo, Qt::Key_A);
    EXPECT_EQ(alTasto, QString());
    EXPECT_EQ(testo.Text(), u"a"_s);
    EXPECT_EQ(finestra.diario, (QStringList{u"KeyDown 65 0"_s, u"KeyUp 65 0"_s}));
}

TEST_F(TastiDellaFinestra, KeysHaveTheCodesOfTheDesign)
{
    const struct
    {
        Qt::Key tasto;
        int codice;
    } casi[] = {{Qt::Key_Left, 37}, {Qt::Key_Up, 38},    {Qt::Key_Right, 39},
                {Qt::Key_Down, 40}, {Qt::Key_Space, 32}, {Qt::Key_Delete, 46}};
    testo.SetFocus();
    for (const auto &caso : casi) {
        finestra.diario.clear();
        QTest::keyClick(&testo, caso.tasto);
        EXPECT_EQ(finestra.diario, (QStringList{u"KeyDown %1 0"_s.arg(caso.codice),
                                                u"KeyUp %1 0"_s.arg(caso.codice)}));
    }
}

TEST_F(TastiDellaFinestra, AKeyReportsTheModifierKeysThatAreHeld)
{
    testo.SetFocus();
    for (const auto &[tasti, numero] : {std::pair(Qt::KeyboardModifiers(Qt::ShiftModifier), 1),
                                        std::pair(Qt::ControlModifier | Qt::AltModifier, 6)}) {
        finestra.diario.clear();
        QKeyEvent evento(QEvent::KeyPress, Qt::Key_F2, tasti);
        QApplication::sendEvent(&testo, &evento);
        EXPECT_EQ(finestra.diario, QStringList{u"KeyDown 113 %1"_s.arg(numero)});
    }
}

TEST_F(TastiDellaFinestra, AKeyThatNoControlTakesCountsOnce)
{
    // A button ignores letters, so Qt sends the key to the window as well.
    pulsante.SetFocus();
    QTest::keyClick(&pulsante, Qt::Key_A);
    EXPECT_EQ(finestra.diario, (QStringList{u"KeyDown 65 0"_s, u"KeyUp 65 0"_s}));
}

TEST_F(TastiDellaFinestra, AKeyCountsOnceEvenIfItsHandlerMovesTheFocusToAParent)
{
    pulsante.SetFocus();
    finestra.inKeyDown = [&] { finestra.setFocus(); };
    QTest::keyPress(&pulsante, Qt::Key_A);
    EXPECT_EQ(finestra.diario, QStringList{u"KeyDown 65 0"_s});
}

TEST_F(TastiDellaFinestra, AKeyCountsOnceEvenIfOtherKeysComeWhileItIsHandled)
{
    pulsante.SetFocus();
    finestra.inKeyDown = [&] {
        finestra.inKeyDown = {};
        QTest::keyClick(&pulsante, Qt::Key_B);
    };
    QTest::keyPress(&pulsante, Qt::Key_A);
    EXPECT_EQ(finestra.diario,
              (QStringList{u"KeyDown 65 0"_s, u"KeyDown 66 0"_s, u"KeyUp 66 0"_s}));
}

TEST_F(TastiDellaFinestra, WithoutAFocusedControlTheWindowSeesItsKeysAsWell)
{
    testo.SetFocus();
    testo.clearFocus();
    QTest::keyClick(finestra.windowHandle(), Qt::Key_Left);
    EXPECT_EQ(finestra.diario, (QStringList{u"KeyDown 37 0"_s, u"KeyUp 37 0"_s}));
}

TEST_F(TastiDellaFinestra, KeysOfTheWindowSystemCountOnce)
{
    for (QWidget *controllo : std::initializer_list<QWidget *>{&testo, &pulsante}) {
        controllo->setFocus();
        finestra.diario.clear();
        QTest::keyClick(finestra.windowHandle(), Qt::Key_Left);
        EXPECT_EQ(finestra.diario, (QStringList{u"KeyDown 37 0"_s, u"KeyUp 37 0"_s}));
    }
}

TEST_F(TastiDellaFinestra, AKeyEventAtTheAddressOfAnEarlierOneCountsAsAnotherKey)
{
    // Both events have the same address. The second one, to the window, is another key, not the
    // first one that Qt sends on to a parent.
    std::optional<QKeyEvent> evento;
    evento.emplace(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(&pulsante, &*evento);
    evento.emplace(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(&finestra, &*evento);
    EXPECT_EQ(finestra.volte(u"KeyDown 38 0"_s), 2);
}

TEST_F(TastiDellaFinestra, TheSameKeyPressedAgainCountsAgain)
{
    pulsante.SetFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&pulsante, Qt::Key_A);
    EXPECT_EQ(finestra.volte(u"KeyDown 65 0"_s), 3);
    EXPECT_EQ(finestra.volte(u"KeyUp 65 0"_s), 3);
}

TEST_F(TastiDellaFinestra, AHeldKeyRepeatsKeyDownAndGivesOneKeyUp)
{
    for (QWidget *controllo : std::initializer_list<QWidget *>{&testo, &pulsante, &finestra}) {
        controllo->setFocus();
        finestra.diario.clear();
        const auto manda = [&](QEvent::Type tipo, bool ripetuto) {
            QKeyEvent evento(tipo, Qt::Key_Up, Qt::NoModifier, QString(), ripetuto);
            QApplication::sendEvent(controllo, &evento);
        };
        manda(QEvent::KeyPress, false);
        for (int i = 0; i < 3; ++i) {
            manda(QEvent::KeyRelease, true);
            manda(QEvent::KeyPress, true);
        }
        manda(QEvent::KeyRelease, false);
        EXPECT_EQ(finestra.diario,
                  (QStringList{u"KeyDown 38 0"_s, u"KeyDown 38 0"_s, u"KeyDown 38 0"_s,
                               u"KeyDown 38 0"_s, u"KeyUp 38 0"_s}))
            << controllo->objectName().toStdString();
    }
}

TEST_F(TastiDellaFinestra, KeysOfAnotherWindowDoNotReachThisOne)
{
    FinestraDiProva altra(u"frmAltra"_s);
    altra.setKeyPreview();
    CasellaTesto suo(u"txtSuo"_s, &altra);
    altra.mostraAttiva();
    suo.SetFocus();
    altra.diario.clear();
    QTest::keyClick(&suo, Qt::Key_A);
    EXPECT_TRUE(finestra.diario.isEmpty());
    EXPECT_EQ(altra.diario, (QStringList{u"KeyDown 65 0"_s, u"KeyUp 65 0"_s}));
}

TEST_F(TastiDellaFinestra, EnterOnAButtonWithTheFocusClicksThatOneOnly)
{
    Pulsante predefinito(u"pulPredefinito"_s, &finestra, u"Predefinito"_s);
    predefinito.show();
    QStringList click;
    pulsante.Click.collega([&] { click += u"suo"_s; });
    predefinito.Click.collega([&] { click += u"predefinito"_s; });
    finestra.setPredefinito(&predefinito);
    pulsante.SetFocus();
    QTest::keyClick(&pulsante, Qt::Key_Return);
    predefinito.SetFocus();
    QTest::keyClick(&predefinito, Qt::Key_Return);
    EXPECT_EQ(click, (QStringList{u"suo"_s, u"predefinito"_s}));
}

TEST_F(TastiDellaFinestra, EnterOnADisabledDefaultButtonDoesNothing)
{
    int click = 0;
    pulsante.Click.collega([&] { ++click; });
    finestra.setPredefinito(&pulsante);
    pulsante.setEnabled(false);
    testo.SetFocus();
    QTest::keyClick(&testo, Qt::Key_Return);
    EXPECT_EQ(click, 0);
}

TEST_F(TastiDellaFinestra, HeldEnterAndEscClickOnce)
{
    Pulsante annulla(u"pulAnnulla"_s, &finestra, u"Annulla"_s);
    annulla.show();
    QStringList click;
    pulsante.Click.collega([&] { click += u"predefinito"_s; });
    annulla.Click.collega([&] { click += u"annulla"_s; });
    finestra.setPredefinito(&pulsante);
    finestra.setAnnulla(&annulla);
    for (QWidget *controllo : std::initializer_list<QWidget *>{&testo, &pulsante}) {
        for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
            click.clear();
            controllo->setFocus();
            for (int i = 0; i < 5; ++i) {
                QKeyEvent evento(QEvent::KeyPress, tasto, Qt::NoModifier, QString(), i > 0);
                QApplication::sendEvent(controllo, &evento);
            }
            EXPECT_EQ(click.size(), 1) << tasto;
        }
    }
}

TEST(Finestra, NothingIsPlacedOverTheSplashWhileAnotherWindowIsOpen)
{
    FinestraDiProva console;
    console.mostraAttiva();
    FinestraDiProva splash(u"frmSplash"_s);
    splash.setWindowFlags(Qt::SplashScreen);
    splash.mostraAttiva();
    EXPECT_EQ(Finestra::Davanti(), &console);
    console.Nascondi();
    EXPECT_EQ(Finestra::Davanti(), &splash);
}
