#include "controls/Comandi.h"
#include "controls/Temporizzatore.h"
#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

struct Ricevente
{
    int volte = 0;
    int somma = 0;
    void senzaArgomenti() { ++volte; }
    void conArgomenti(int a, int b) { somma = a + b; }
};

// For a child process: writes the text of the message box to standard error and presses OK.
void conMessaggioLetto(const std::function<void()> &gesto)
{
    const ManoSuiMessaggi mano([](QMessageBox &box) {
        std::cerr << box.text().toStdString() << std::endl;
        premiOK(box);
    });
    gesto();
}

} // namespace

TEST(Evento, DoesNothingWithoutAHandler)
{
    const Evento<int> evento;
    evento(3);
}

TEST(Evento, PassesItsArgumentsToTheHandler)
{
    Ricevente ricevente;
    Evento<int, int> evento;
    evento.collega(&ricevente, &Ricevente::conArgomenti);
    evento(3, 4);
    EXPECT_EQ(ricevente.somma, 7);
}

TEST(Evento, CallsAHandlerThatLeavesOutTheArguments)
{
    Ricevente ricevente;
    Evento<int, int> evento;
    evento.collega(&ricevente, &Ricevente::senzaArgomenti);
    evento(3, 4);
    EXPECT_EQ(ricevente.volte, 1);
}

TEST(Evento, LetsAHandlerChangeAReference)
{
    Evento<int &> evento;
    evento.collega([](int &tasto) { tasto = 0; });
    int tasto = 65;
    evento(tasto);
    EXPECT_EQ(tasto, 0);
}

TEST(Evento, ItsHandlerMaySetAnotherHandler)
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

TEST(Evento, IsNotRaisedWhileEventsAreSuspended)
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

TEST(Gestore, AnUnhandledErrorShowsItsMessageAndEndsTheProgram)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                    std::_Exit(77);
                }),
                ::testing::ExitedWithCode(1), "Impossibile trovare il file \\(53\\)");
}

TEST(Gestore, AnExceptionOfAnotherTypeEndsTheProgramInTheSameWay)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    eseguiGestore([] { throw std::runtime_error("guasto"); });
                    std::_Exit(77);
                }),
                ::testing::ExitedWithCode(1), "Errore imprevisto: guasto");
}

TEST(Gestore, WhileTheBoxOfAnErrorIsOpenNoTimerTicksAndNoHandlerRuns)
{
    EXPECT_EXIT(
        {
            // A timer and a handler that would fail as well.
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

TEST(Gestore, TheLastActOfTheProgramComesAfterTheMessageBox)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    impostaUltimoAtto([] { std::cerr << "last act" << std::endl; });
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                }),
                ::testing::ExitedWithCode(1), "\\(53\\)[^|]*\nlast act\n$");
}

TEST(Gestore, AnErrorInTheLastActIsIgnored)
{
    EXPECT_EXIT(conMessaggioLetto([] {
                    impostaUltimoAtto([] { throw Errore(Errore::LineaPersa); });
                    eseguiGestore([] { throw Errore(Errore::FileNonTrovato); });
                }),
                ::testing::ExitedWithCode(1), "\\(53\\)");
}

TEST(Gestore, AnErrorFromAClickDoesNotCrossTheEventDispatch)
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
