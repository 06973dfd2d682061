// Keyboard and contrast in the window of the simulated robot.
#include "simulator/Simulatore.h"
#include "simulator/robot/Stanza.h"
#include "simulator/window/FinestraSimulatore.h"
#include "tests/app/Tastiera.h"
#include "tests/support/Contrasto.h"

#include <QTest>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

struct TastieraSimulatore : testing::Test
{
    TastieraSimulatore() { finestra.show(); }
    void SetUp() override { portaAvanti(finestra); }

    Simulatore sim;
    FinestraSimulatore finestra{sim};
};

} // namespace

TEST_F(TastieraSimulatore, WhatTakesAClickIsReachedByTheKeyboard)
{
    EXPECT_THAT(irraggiungibili(finestra), testing::IsEmpty());
    QStringList nomi;
    for (const QWidget *controllo : giroDiTab(finestra))
        nomi << controllo->objectName();
    EXPECT_TRUE(nomi.contains(u"quadroStanza"_s));
    EXPECT_TRUE(nomi.contains(u"pulStacca"_s));
}

TEST_F(TastieraSimulatore, TheTabKeyFollowsTheReadingOrder)
{
    EXPECT_THAT(fuoriOrdine(finestra), testing::IsEmpty());
}

TEST_F(TastieraSimulatore, EveryTextHasEnoughContrast)
{
    EXPECT_THAT(pocoLeggibili(finestra), testing::IsEmpty());
}

TEST_F(TastieraSimulatore, TheArrowsMoveTheRobotAndWhatTheSpaceBarChooses)
{
    auto *stanza = finestra.findChild<QWidget *>(u"quadroStanza"_s);
    stanza->setFocus(Qt::TabFocusReason);
    const QPointF robot(sim.robot().stato().x, sim.robot().stato().y);
    QTest::keyClick(stanza, Qt::Key_Right);
    QTest::keyClick(stanza, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(QPointF(sim.robot().stato().x, sim.robot().stato().y), robot + QPointF(10, 1));

    const QPointF cosa = sim.robot().stanza().cose().at(0).centro;
    const QImage senzaCosa = stanza->grab().toImage();
    QTest::keyClick(stanza, Qt::Key_Space);
    EXPECT_NE(stanza->grab().toImage(), senzaCosa) << "the choice is visible";
    QTest::keyClick(stanza, Qt::Key_Left);
    QTest::keyClick(stanza, Qt::Key_Up);
    EXPECT_EQ(sim.robot().stanza().cose().at(0).centro, cosa - QPointF(10, 10));
    EXPECT_EQ(QPointF(sim.robot().stato().x, sim.robot().stato().y), robot + QPointF(10, 1));

    // The space bar chooses one thing after the other, and then the robot again.
    for (qsizetype i = 0; i < sim.robot().stanza().cose().size(); ++i)
        QTest::keyClick(stanza, Qt::Key_Space);
    QTest::keyClick(stanza, Qt::Key_Left);
    EXPECT_EQ(QPointF(sim.robot().stato().x, sim.robot().stato().y), robot + QPointF(0, 1));
}
