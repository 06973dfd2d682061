#include "controls/Temporizzatore.h"

#include "base/Pompa.h"
#include "tests/support/Controlli.h"

#include <QElapsedTimer>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Provato : ::testing::Test
{
    Provato() : timer(u"tmrProva"_s, nullptr)
    {
        timer.Timer.collega([this] {
            ++scatti;
            if (nelloScatto)
                nelloScatto();
        });
    }

    Temporizzatore timer;
    int scatti = 0;
    std::function<void()> nelloScatto;
};

// Runs the pump until another timer with this interval has ticked.
void pompaPer(int millisecondi)
{
    bool passati = false;
    QTimer::singleShot(millisecondi, Qt::PreciseTimer, qApp, [&] { passati = true; });
    while (!passati)
        pompa();
}

} // namespace

using TemporizzatoreTest = Provato;

TEST_F(TemporizzatoreTest, IsFoundByItsNameAndHasItsProperties)
{
    QObject finestra;
    Temporizzatore suo(u"tmrElabInput"_s, &finestra);
    auto *trovato = finestra.findChild<QObject *>(u"tmrElabInput"_s);
    ASSERT_EQ(trovato, &suo);
    EXPECT_TRUE(trovato->setProperty("Interval", 300));
    EXPECT_TRUE(trovato->setProperty("Enabled", true));
    EXPECT_TRUE(trovato->setProperty("Tag", u"abc"_s));
    EXPECT_EQ(suo.Interval(), 300);
    EXPECT_TRUE(suo.Enabled());
    EXPECT_EQ(suo.Tag(), u"abc"_s);
}

TEST_F(TemporizzatoreTest, StartsDisabledWithoutAnInterval)
{
    EXPECT_EQ(timer.Interval(), 0);
    EXPECT_FALSE(timer.Enabled());
}

TEST_F(TemporizzatoreTest, TakesIntervalsFrom0To65535)
{
    for (const int buono : {0, 1, 300, 65534, 65535}) {
        timer.setInterval(buono);
        EXPECT_EQ(timer.Interval(), buono);
    }
}

TEST_F(TemporizzatoreTest, RefusesAnyOtherIntervalAndKeepsTheOldOne)
{
    timer.setInterval(300);
    for (const int cattivo :
         {-1, 65536, 60000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(erroreDi([&] { timer.setInterval(cattivo); }), 380) << cattivo;
        EXPECT_EQ(timer.Interval(), 300);
    }
}

TEST_F(TemporizzatoreTest, ARefusedIntervalDoesNotStopIt)
{
    timer.setInterval(5);
    timer.setEnabled(true);
    EXPECT_EQ(erroreDi([&] { timer.setInterval(65536); }), 380);
    EXPECT_TRUE(attendi([&] { return scatti >= 2; }));
}

TEST_F(TemporizzatoreTest, TicksRepeatedlyWhileItIsEnabled)
{
    timer.setInterval(1);
    timer.setEnabled(true);
    EXPECT_TRUE(attendi([&] { return scatti >= 3; }));
}

TEST_F(TemporizzatoreTest, DoesNotTickWhileItIsDisabled)
{
    timer.setInterval(1);
    pompaPer(20);
    EXPECT_EQ(scatti, 0);
    timer.setEnabled(true);
    timer.setEnabled(false);
    pompaPer(20);
    EXPECT_EQ(scatti, 0);
}

TEST_F(TemporizzatoreTest, Interval0StopsTheTicksAndLeavesItEnabled)
{
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti >= 1; }));
    timer.setInterval(0);
    const int prima = scatti;
    pompaPer(20);
    EXPECT_EQ(scatti, prima);
    EXPECT_TRUE(timer.Enabled());
    timer.setInterval(1);
    EXPECT_TRUE(attendi([&] { return scatti > prima; }));
}

TEST_F(TemporizzatoreTest, EnablingItWithInterval0GivesNoTick)
{
    timer.setEnabled(true);
    pompaPer(20);
    EXPECT_EQ(scatti, 0);
}

TEST_F(TemporizzatoreTest, SettingTheIntervalStartsANewPeriod)
{
    timer.setInterval(200);
    timer.setEnabled(true);
    QElapsedTimer daUltima;
    for (int i = 0; i < 15; ++i) {
        pompaPer(20);
        timer.setInterval(200);
        daUltima.start();
        if (scatti > 0)
            break;
    }
    ASSERT_EQ(scatti, 0) << "300 ms have passed, but never 200 ms since the last setting";
    ASSERT_TRUE(attendi([&] { return scatti > 0; }));
    EXPECT_GE(daUltima.elapsed(), 199);
}

TEST_F(TemporizzatoreTest, SettingEnabledStartsANewPeriodEvenIfItIsEnabled)
{
    timer.setInterval(200);
    timer.setEnabled(true);
    QElapsedTimer daUltima;
    for (int i = 0; i < 15; ++i) {
        pompaPer(20);
        timer.setEnabled(true);
        daUltima.start();
        if (scatti > 0)
            break;
    }
    ASSERT_EQ(scatti, 0);
    ASSERT_TRUE(attendi([&] { return scatti > 0; }));
    EXPECT_GE(daUltima.elapsed(), 199);
}

TEST_F(TemporizzatoreTest, NeverTicksInsideItsOwnTick)
{
    int dentro = 0;
    int massimo = 0;
    nelloScatto = [&] {
        massimo = qMax(massimo, ++dentro);
        pompaPer(20);
        --dentro;
    };
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti >= 2 && dentro == 0; }));
    EXPECT_EQ(massimo, 1);
}

TEST_F(TemporizzatoreTest, NeverTicksInsideItsOwnTickEvenIfItIsSetAgainThere)
{
    int dentro = 0;
    int massimo = 0;
    nelloScatto = [&] {
        massimo = qMax(massimo, ++dentro);
        timer.setInterval(1);
        timer.setEnabled(true);
        pompaPer(20);
        --dentro;
    };
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti >= 2 && dentro == 0; }));
    EXPECT_EQ(massimo, 1);
}

TEST_F(TemporizzatoreTest, OtherTimersTickInsideItsTick)
{
    Temporizzatore altro(u"tmrAltro"_s, nullptr);
    int scattiAltro = 0;
    altro.Timer.collega([&] { ++scattiAltro; });
    altro.setInterval(1);
    altro.setEnabled(true);
    bool visto = false;
    nelloScatto = [&] {
        const int prima = scattiAltro;
        while (scattiAltro < prima + 2)
            pompa();
        visto = true;
        timer.setEnabled(false);
    };
    timer.setInterval(1);
    timer.setEnabled(true);
    EXPECT_TRUE(attendi([&] { return visto; }));
}

TEST_F(TemporizzatoreTest, DisabledInItsOwnTickItTicksNoMore)
{
    nelloScatto = [&] { timer.setEnabled(false); };
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti == 1; }));
    pompaPer(20);
    EXPECT_EQ(scatti, 1);
}

TEST_F(TemporizzatoreTest, DoesNotTickWhileATickIsSuspended)
{
    std::unique_ptr<Temporizzatore::ScattoAperto> sospeso;
    nelloScatto = [&] {
        if (scatti == 1)
            sospeso = std::make_unique<Temporizzatore::ScattoAperto>(timer);
    };
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti == 1; }));
    pompaPer(30);
    EXPECT_EQ(scatti, 1);
    sospeso.reset();
    EXPECT_TRUE(attendi([&] { return scatti >= 3; }));
}

TEST_F(TemporizzatoreTest, SettingItAgainDoesNotMakeItTickDuringASuspendedTick)
{
    std::unique_ptr<Temporizzatore::ScattoAperto> sospeso;
    nelloScatto = [&] {
        if (scatti == 1)
            sospeso = std::make_unique<Temporizzatore::ScattoAperto>(timer);
    };
    timer.setInterval(1);
    timer.setEnabled(true);
    ASSERT_TRUE(attendi([&] { return scatti == 1; }));
    timer.setEnabled(false);
    timer.setEnabled(true);
    timer.setInterval(2);
    pompaPer(30);
    EXPECT_EQ(scatti, 1);
    sospeso.reset();
    EXPECT_TRUE(attendi([&] { return scatti >= 2; }));
}

TEST_F(TemporizzatoreTest, DisabledDuringASuspendedTickItTicksNoMoreAfterIt)
{
    auto sospeso = std::make_unique<Temporizzatore::ScattoAperto>(timer);
    timer.setInterval(1);
    timer.setEnabled(true);
    pompaPer(10);
    timer.setEnabled(false);
    sospeso.reset();
    pompaPer(20);
    EXPECT_EQ(scatti, 0);
}

TEST_F(TemporizzatoreTest, AllTimersCanBeStoppedAtOnce)
{
    auto andato = std::make_unique<Temporizzatore>(u"tmrAndato"_s, nullptr);
    andato.reset();
    Temporizzatore altro(u"tmrAltro"_s, nullptr);
    altro.setEnabled(true);
    timer.setInterval(1);
    timer.setEnabled(true);
    Temporizzatore::fermaTutti();
    EXPECT_FALSE(timer.Enabled());
    EXPECT_FALSE(altro.Enabled());
    pompaPer(20);
    EXPECT_EQ(scatti, 0);
}
