#include "tests/support/Controlli.h"
#include "controls/Comandi.h"
#include "controls/Temporizzatore.h"

namespace {

struct Ricevente
{
    int volte = 0;
    int somma = 0;
    void senzaArgomenti() { ++volte; }
    void conArgomenti(int a, int b) { somma = a + b; }
};

// Runs in a child process: answers the box that is to come, whose text goes to standard error.
void conMessaggioLetto(const std::function<void()> &gesto)
{
    const ManoSuiMessaggi mano([](QMessageBox &box) {
        std::cerr << box.text().toStdString() << std::endl;
        premiOK(box);
    });
    gesto();
}

} // namespace

TEST(Evento, without_a_handler_does_nothing)
{
    const Evento<int> evento;
    evento(3);
}

TEST(Evento, hands_its_arguments_to_the_handler)
{
    Ricevente ricevente;
    Evento<int, int> evento;
    evento.collega(&ricevente, &Ricevente::conArgomenti);
    evento(3, 4);
    EXPECT_EQ(ricevente.somma, 7);
}

TEST(Evento, calls_a_handler_that_leaves_out_the_arguments)
{
    Ricevente ricevente;
    Evento<int, int> evento;
    evento.collega(&ricevente, &Ricevente::senzaArgomenti);
    evento(3, 4);
    EXPECT_EQ(ricevente.volte, 1);
}

TEST(Evento, lets_a_handler_change_a_reference)
{
    Evento<int &> evento;
    evento.collega([](int &tasto) { tasto = 0; });
    int tasto = 65;
    evento(tasto);
    EXPECT_EQ(tasto, 0);
}

TEST(Evento, may_be_given_another_handler_by_its_handler)
{
    int prima = 0;
    int seconda = 0;
    Evento<> evento;
    evento.collega([&] {
        evento.collega([&] { ++seconda; });
        ++prima;
    });
    evento();
    evento();
    EXPECT_EQ(prima, 1);
    EXPECT_EQ(seconda, 1);
}

TEST(Evento, is_not_raised_while_events_are_held_back)
{
    int volte = 0;
    Evento<> evento;
    evento.collega([&] { ++volte; });
    {
        const EventiSospesi sospesi;
        evento();
    }
    EXPECT_EQ(volte, 0);
    evento();
    EXPECT_EQ(volte, 1);
}

TEST(Gestore, an_error_that_nobody_handles_shows_its_box_and_ends_the_program)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                    std::_Exit(77);
                }),
                ::testing::ExitedWithCode(1), "Impossibile trovare il file \\(53\\)");
}

TEST(Gestore, a_foreign_exception_ends_the_program_the_same_way)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    eseguiGestore([] { throw std::runtime_error("guasto"); });
                    std::_Exit(77);
                }),
                ::testing::ExitedWithCode(1), "Errore imprevisto: guasto");
}

TEST(Gestore, while_the_box_of_an_error_is_open_no_timer_ticks_and_no_handler_runs)
{
    EXPECT_EXIT(
        {
            // What meets the state that the error left behind fails in its turn.
            Temporizzatore timer(u"tmrProva"_s, nullptr);
            timer.Timer.collega([] { throw Errore(Errore::FileGiaAperto); });
            timer.setInterval(1);
            timer.setEnabled(true);
            int visite = 0;
            const ManoSuiMessaggi mano([&](QMessageBox &box) {
                eseguiGestore([] { throw Errore(Errore::FileNonAperto); });
                if (++visite < 50)
                    return;
                std::cerr << box.text().toStdString() << "|ticks " << timer.Enabled() << std::endl;
                premiOK(box);
            });
            eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
            std::_Exit(77);
        },
        ::testing::ExitedWithCode(1), "Impossibile trovare il file \\(53\\)[^|]*\\|ticks 0\n$");
}

TEST(Gestore, the_last_act_of_the_program_comes_after_the_box)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    impostaUltimoAtto([] { std::cerr << "last act" << std::endl; });
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                }),
                ::testing::ExitedWithCode(1), "\\(53\\)[^|]*\nlast act\n$");
}

TEST(Gestore, a_last_act_that_fails_is_passed_over)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    impostaUltimoAtto([] { throw Errore(Errore::LineaPersa); });
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                }),
                ::testing::ExitedWithCode(1), "\\(53\\)");
}

TEST(Gestore, an_error_from_a_click_does_not_cross_the_event_dispatch)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    FinestraDiProva finestra;
                    Pulsante pulsante(u"pulProva"_s, &finestra, u"Prova"_s);
                    pulsante.Click.collega([] { throw Errore(Errore::Overflow); });
                    finestra.Mostra();
                    QTest::mouseClick(&pulsante, Qt::LeftButton);
                    std::_Exit(77);
                }),
                ::testing::ExitedWithCode(1), "Numero troppo grande o troppo piccolo \\(6\\)");
}
