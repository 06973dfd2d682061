#include "base/Pompa.h"

#include "controls/Temporizzatore.h"
#include "tests/support/Controlli.h"

#include <QElapsedTimer>
#include <thread>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

struct Contatore : QObject
{
    int eventi = 0;
    int seguito = 0;
    bool event(QEvent *evento) override
    {
        if (evento->type() != QEvent::User)
            return QObject::event(evento);
        ++eventi;
        if (seguito-- > 0)
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        return true;
    }
};

// Handles the events that earlier tests have left.
void svuota()
{
    for (int i = 0; i < 100; ++i)
        pompa();
}

} // namespace

TEST(Pompa, OneRoundHandlesAllEventsThatAreWaiting)
{
    svuota();
    Contatore contatore;
    for (int i = 0; i < 50; ++i)
        QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_EQ(contatore.eventi, 50);
}

TEST(Pompa, OneRoundAlsoHandlesTheEventsThatEventsPost)
{
    svuota();
    Contatore contatore;
    contatore.seguito = 5;
    QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_EQ(contatore.eventi, 6);
}

TEST(Pompa, OneRoundTicksEveryTimerThatIsDue)
{
    Temporizzatore uno(u"tmrUno"_s, nullptr);
    Temporizzatore due(u"tmrDue"_s, nullptr);
    int scattiUno = 0;
    int scattiDue = 0;
    uno.Timer.collega([&] { ++scattiUno; });
    due.Timer.collega([&] { ++scattiDue; });
    for (Temporizzatore *timer : {&uno, &due}) {
        timer->setInterval(10);
        timer->setEnabled(true);
    }
    svuota();
    const int prima = scattiUno + scattiDue;
    std::this_thread::sleep_for(25ms);
    pompa();
    EXPECT_GE(scattiUno + scattiDue, prima + 2);
    EXPECT_GE(scattiUno, 1);
    EXPECT_GE(scattiDue, 1);
}

TEST(Pompa, OneRoundHandlesEventsAndDueTimersAlike)
{
    Temporizzatore timer(u"tmrProva"_s, nullptr);
    int scatti = 0;
    timer.Timer.collega([&] { ++scatti; });
    timer.setInterval(10);
    timer.setEnabled(true);
    svuota();
    scatti = 0;
    Contatore contatore;
    std::this_thread::sleep_for(25ms);
    QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_EQ(contatore.eventi, 1);
    EXPECT_GE(scatti, 1);
}

TEST(Pompa, AFloodOfEventsDoesNotHoldARoundForEver)
{
    Contatore contatore;
    contatore.seguito = 1000000000;
    QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_GE(contatore.eventi, 1);
    contatore.seguito = 0;
    svuota();
}

TEST(Pompa, MayRunInsideAnEventThatItHandles)
{
    svuota();
    Contatore contatore;
    int dentro = 0;
    QTimer::singleShot(0, &contatore, [&] {
        QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
        pompa();
        dentro = contatore.eventi;
    });
    while (dentro == 0)
        pompa();
    EXPECT_EQ(dentro, 1);
}

TEST(Pompa, ACallerThatCountsRoundsSeesWhatCameInThePauseBeforeATimerDoes)
{
    // Another thread adds to arrivato, mostly during the pause at the end of a round. A timer that
    // is due then would take it away, but the caller of the pump must see it first.
    std::atomic<int> arrivato = 0;
    int presoDalTimer = 0;
    int vistoDalGiro = 0;
    Temporizzatore timer(u"tmrProva"_s, nullptr);
    timer.Timer.collega([&] { presoDalTimer += arrivato.exchange(0); });
    timer.setInterval(1);
    timer.setEnabled(true);
    std::atomic<bool> basta = false;
    std::thread mittente([&] {
        while (!basta) {
            std::this_thread::sleep_for(3ms);
            ++arrivato;
        }
    });
    while (vistoDalGiro + presoDalTimer < 60) {
        pompa();
        vistoDalGiro += arrivato.exchange(0);
    }
    basta = true;
    mittente.join();
    // What comes while events are handled may go to the timer. If the pause came before the events,
    // the caller would see next to nothing.
    EXPECT_GT(vistoDalGiro * 5, presoDalTimer);
}
