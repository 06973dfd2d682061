#include "Messaggi.h"

#include "Aiuti.h"
#include "Italiano.h"

namespace {

QString nudo(const QString &testo)
{
    return QString(testo).remove(u'&');
}

// Shows the box, does the gesture once it is there, and gives the answer.
Risposta risposta(Pulsanti pulsanti, const std::function<void(QMessageBox &)> &gesto)
{
    const ManoSuiMessaggi mano([&](QMessageBox &box) { gesto(box); });
    return messaggio(u"Vuoi salvare la lista?"_s, Icona::Domanda, pulsanti, u"Sequor"_s);
}

void premi(QMessageBox &box, QMessageBox::StandardButton quale)
{
    QTest::mouseClick(box.button(quale), Qt::LeftButton);
}

} // namespace

TEST(Messaggi, shows_its_text_title_and_icon)
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

TEST(Messaggi, without_a_title_it_bears_the_programs_name)
{
    QString titolo;
    const ManoSuiMessaggi mano([&](QMessageBox &box) {
        titolo = box.windowTitle();
        premiOK(box);
    });
    messaggio(u"x"_s);
    EXPECT_EQ(titolo, u"Lumbra"_s);
}

TEST(Messaggi, gives_the_button_that_was_pressed)
{
    EXPECT_EQ(risposta(Pulsanti::OK, premiOK), Risposta::OK);
    for (const Pulsanti quali : {Pulsanti::SiNo, Pulsanti::SiNoAnnulla}) {
        EXPECT_EQ(risposta(quali, [](auto &box) { premi(box, QMessageBox::Yes); }), Risposta::Si);
        EXPECT_EQ(risposta(quali, [](auto &box) { premi(box, QMessageBox::No); }), Risposta::No);
    }
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, [](auto &box) { premi(box, QMessageBox::Cancel); }),
              Risposta::Annulla);
}

TEST(Messaggi, closing_the_box_counts_as_ok_or_as_annulla)
{
    const auto chiudi = [](QMessageBox &box) { box.close(); };
    const auto esc = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); };
    EXPECT_EQ(risposta(Pulsanti::OK, chiudi), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::OK, esc), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, chiudi), Risposta::Annulla);
    EXPECT_EQ(risposta(Pulsanti::SiNoAnnulla, esc), Risposta::Annulla);
}

TEST(Messaggi, a_question_between_yes_and_no_cannot_be_closed)
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

TEST(Messaggi, enter_presses_the_first_button)
{
    const auto invio = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); };
    EXPECT_EQ(risposta(Pulsanti::OK, invio), Risposta::OK);
    EXPECT_EQ(risposta(Pulsanti::SiNo, invio), Risposta::Si);
}

TEST(Messaggi, a_key_that_was_held_before_the_box_came_does_not_answer_it)
{
    // Some window of the program is always there before a box.
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

TEST(Messaggi, the_standard_buttons_speak_italian_whatever_the_systems_language_is)
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
