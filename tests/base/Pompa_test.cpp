#include "base/Pompa.h"

#include "tests/support/Controlli.h"
#include "controls/Temporizzatore.h"

#include <QElapsedTimer>
#include <thread>

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

// What other tests have left behind.
void svuota()
{
    for (int i = 0; i < 100; ++i)
        pompa();
}

} // namespace

TEST(Pompa, one_round_handles_all_events_that_are_waiting)
{
    svuota();
    Contatore contatore;
    for (int i = 0; i < 50; ++i)
        QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_EQ(contatore.eventi, 50);
}

TEST(Pompa, one_round_handles_the_events_that_events_bring_along)
{
    svuota();
    Contatore contatore;
    contatore.seguito = 5;
    QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_EQ(contatore.eventi, 6);
}

TEST(Pompa, one_round_ticks_every_timer_that_is_due)
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

TEST(Pompa, one_round_handles_events_and_due_timers_alike)
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

TEST(Pompa, a_flood_of_events_does_not_hold_a_round_for_ever)
{
    Contatore contatore;
    contatore.seguito = 1000000000;
    QCoreApplication::postEvent(&contatore, new QEvent(QEvent::User));
    pompa();
    EXPECT_GE(contatore.eventi, 1);
    contatore.seguito = 0;
    svuota();
}

TEST(Pompa, may_run_inside_an_event_that_it_handles)
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

TEST(Pompa, a_timer_cannot_take_what_came_in_the_pause_before_the_counter_of_rounds_has_looked)
{
    // Something is put down during the pause at a round's end, while a timer is due that would take
    // it away: whoever counts rounds must find it first.
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
    // What comes while events are handled may go to the timer. Were the pause before that, the
    // counter would find next to nothing.
    EXPECT_GT(vistoDalGiro * 5, presoDalTimer);
}
