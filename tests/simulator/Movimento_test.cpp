// How the robot moves over time.
#include "simulator/robot/Stanza.h"
#include "tests/simulator/RobotInProva.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
// An empty room, the robot in its middle looking right.
struct Pista : RobotInProva
{
    Pista()
    {
        robot.stanza().cose().clear();
        robot.impostaPosa(200, 150, 0);
        apri();
    }
    void passa(int secondi)
    {
        for (int i = 0; i < secondi * 50; ++i)
            robot.avanza(20);
    }
    const StatoRobot &stato() { return robot.stato(); }
};
} // namespace

TEST(Movimento, ForwardGoesWhereTheRobotLooksUntilStopped)
{
    Pista p;
    p.robot.ricevi(b({19, 65, 1}));
    p.passa(2);
    EXPECT_NEAR(p.stato().x, 224.0, 0.01);
    EXPECT_NEAR(p.stato().y, 150.0, 0.01);
    p.robot.ricevi(b({19, 65, 0}));
    p.passa(2);
    EXPECT_NEAR(p.stato().x, 224.0, 0.01);
}

TEST(Movimento, FastIsFasterThanSlow)
{
    Pista piano;
    Pista forte;
    piano.robot.ricevi(b({19, 65, 1}));
    forte.robot.ricevi(b({19, 65, 2}));
    piano.passa(1);
    forte.passa(1);
    EXPECT_GT(forte.stato().x, piano.stato().x + 5.0);
}

TEST(Movimento, BackwardGoesTheOtherWay)
{
    Pista p;
    p.robot.ricevi(b({19, 66, 1}));
    p.passa(1);
    EXPECT_NEAR(p.stato().x, 188.0, 0.01);
}

TEST(Movimento, AQuarterTurnEndsByItself)
{
    Pista p;
    p.robot.ricevi(b({19, 67, 17}));
    p.passa(5);
    EXPECT_NEAR(p.stato().direzione, 90.0, 0.01);
    EXPECT_EQ(p.stato().base, MotoBase::Fermo);
}

TEST(Movimento, AHalfTurnToTheLeftEndsByItself)
{
    Pista p;
    p.robot.ricevi(b({19, 68, 18}));
    p.passa(5);
    EXPECT_NEAR(p.stato().direzione, 180.0, 0.01);
    EXPECT_EQ(p.stato().base, MotoBase::Fermo);
}

TEST(Movimento, ATurnWithoutEndGoesOnUntilStopped)
{
    Pista p;
    p.robot.ricevi(b({19, 67, 16}));
    p.passa(20);
    EXPECT_EQ(p.stato().base, MotoBase::GiraDestra);
    p.robot.ricevi(b({19, 65, 0}));
    EXPECT_EQ(p.stato().base, MotoBase::Fermo);
}

TEST(Movimento, AWallStopsTheBase)
{
    Pista p;
    p.robot.ricevi(b({19, 65, 2}));
    p.passa(30);
    EXPECT_EQ(p.stato().base, MotoBase::Fermo);
    EXPECT_TRUE(p.stato().urtato);
    EXPECT_LE(p.stato().x, Stanza::larghezza - Stanza::raggioRobot);
    EXPECT_GT(p.stato().x, Stanza::larghezza - Stanza::raggioRobot - 2.0);
    EXPECT_EQ(p.diario.conta(u"Urto: la base si ferma"_s), 1);
}

TEST(Movimento, AHeavyThingStopsTheBaseAndALightOneIsPushed)
{
    Pista p;
    p.robot.stanza().cose() = {{u"Scatola"_s, {260, 150}, 10, 30, Qt::black, false}};
    p.robot.ricevi(b({19, 65, 2}));
    p.passa(10);
    EXPECT_LT(p.stato().x, 231.0);

    Pista q;
    q.robot.stanza().cose() = {{u"Palla"_s, {260, 150}, 10, 20, Qt::red, true}};
    q.robot.ricevi(b({19, 65, 2}));
    q.passa(2);
    EXPECT_NEAR(q.stato().x, 260.0, 0.1);
    EXPECT_NEAR(q.robot.stanza().cose().constFirst().centro.x(), 290.0, 0.1);
}

TEST(Movimento, ArmsRiseLowerAndStopHalfway)
{
    Pista p;
    p.robot.ricevi(b({19, 129, 2, 19, 130, 2}));
    p.passa(1);
    p.robot.ricevi(b({19, 130, 0}));
    p.passa(3);
    EXPECT_DOUBLE_EQ(p.stato().braccio[0], 1.0);
    EXPECT_NEAR(p.stato().braccio[1], 0.5, 0.01);
    p.robot.ricevi(b({19, 129, 4}));
    p.passa(3);
    EXPECT_DOUBLE_EQ(p.stato().braccio[0], 0.0);
}

TEST(Movimento, ThePelvisRisesAndFalls)
{
    Pista p;
    p.robot.ricevi(b({19, 73, 4}));
    p.passa(3);
    EXPECT_DOUBLE_EQ(p.stato().bacino, 1.0);
    p.robot.ricevi(b({19, 73, 8}));
    p.passa(3);
    EXPECT_DOUBLE_EQ(p.stato().bacino, 0.0);
}

TEST(Movimento, TheHeadTurnsByStepsWithinItsLimits)
{
    Pista p;
    p.robot.ricevi(b({19, 35, 2, 19, 33, 1}));
    p.passa(2);
    EXPECT_DOUBLE_EQ(p.stato().testaO, 30.0);
    EXPECT_DOUBLE_EQ(p.stato().testaV, 15.0);
    p.robot.ricevi(b({19, 36, 12, 19, 36, 12, 19, 34, 4}));
    p.passa(4);
    EXPECT_DOUBLE_EQ(p.stato().testaO, -90.0);
    EXPECT_DOUBLE_EQ(p.stato().testaV, -30.0);
}

TEST(Movimento, TheSensorsCanFollowTheRoom)
{
    Pista p;
    p.robot.impostaUltrasuoniDallaStanza(true);
    p.robot.impostaPosa(Stanza::larghezza - 35.0, 150, 0);
    p.robot.avanza(20);
    EXPECT_NE(p.stato().ultrasuoni[1], 0);
    const QByteArray telegramma = p.presi();
    ASSERT_EQ(telegramma.size(), 4);
    EXPECT_EQ(telegramma.at(0), 33);
    p.robot.impostaPosa(200, 150, 0);
    p.robot.avanza(20);
    EXPECT_EQ(p.stato().ultrasuoni, (std::array<int, 3>{0, 0, 0}));
}
