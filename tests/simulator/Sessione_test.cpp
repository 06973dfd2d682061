// The session, the telemetry, and what the actuators do to the robot's state.
#include "simulator/robot/Memoria.h"
#include "tests/simulator/RobotInProva.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Sessione, OpeningIsAnsweredWithBatteriesAndTemperature)
{
    RobotInProva p;
    p.robot.impostaBatterie(150, 90);
    p.robot.impostaTemperatura(23);
    p.robot.ricevi(b({3, 1, 1}));
    EXPECT_TRUE(p.robot.stato().sessioneAperta);
    EXPECT_EQ(p.presi(), b({32, 150, 90, 31, 23}));
}

TEST(Sessione, NothingIsSentWhileNoSessionIsOpen)
{
    RobotInProva p;
    p.robot.impostaTemperatura(30);
    p.robot.ricevi(b({27, 70, 19, 65, 1}));
    EXPECT_TRUE(p.telegrammi.isEmpty());
    EXPECT_EQ(p.robot.stato().base, MotoBase::Fermo);
    EXPECT_EQ(p.diario.voci().constLast().nota, u"sessione chiusa: ignorato"_s);
}

TEST(Sessione, ClosingSilencesTheRobotAndStopsIt)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 65, 2, 11, 160, 0, 4}));
    p.telegrammi.clear();
    EXPECT_FALSE(p.robot.stato().sessioneAperta);
    EXPECT_EQ(p.robot.stato().base, MotoBase::Fermo);
    EXPECT_TRUE(p.robot.prossimaRiga().isEmpty());
    p.robot.ricevi(b({27, 70}));
    EXPECT_TRUE(p.telegrammi.isEmpty());
}

TEST(Sessione, ANudgeIsAnsweredWithTheGreetingAgain)
{
    RobotInProva p;
    p.robot.ricevi(b({1}));
    EXPECT_TRUE(p.telegrammi.isEmpty());
    p.apri();
    p.robot.ricevi(b({1}));
    EXPECT_EQ(p.presi().size(), 5);
}

TEST(Sessione, ASessionCanBeOpenedAgainAfterClosing)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({4, 3, 1, 1}));
    EXPECT_TRUE(p.robot.stato().sessioneAperta);
    EXPECT_EQ(p.presi().size(), 5);
}

TEST(Sessione, AnsweringOnlyAfterTheNudgeKeepsQuietBeforeIt)
{
    RobotInProva p;
    p.robot.guasti().soloDopoSollecito = true;
    p.robot.ricevi(b({3, 1, 1, 27, 70}));
    EXPECT_TRUE(p.telegrammi.isEmpty());
    p.robot.ricevi(b({1}));
    EXPECT_EQ(p.presi().size(), 5);
    p.robot.ricevi(b({27, 70}));
    EXPECT_FALSE(p.telegrammi.isEmpty());
}

TEST(Sessione, ASingleByteIsAllThatTheFaultyOpeningGives)
{
    RobotInProva p;
    p.robot.guasti().unSoloByte = true;
    p.robot.ricevi(b({3, 1, 1, 1}));
    EXPECT_EQ(p.presi().size(), 1);
}

TEST(Sessione, ASilentRobotObeysAndSaysNothing)
{
    RobotInProva p;
    p.apri();
    p.robot.guasti().silenzio = true;
    p.robot.ricevi(b({19, 37, 8, 27, 70, 11, 160, 0}));
    EXPECT_EQ(p.robot.stato().ledTesta, LedVs);
    EXPECT_TRUE(p.telegrammi.isEmpty());
    EXPECT_TRUE(p.robot.prossimaRiga().isEmpty());
}

TEST(Telemetria, TheSensorPollGivesUltrasonicAndTemperature)
{
    RobotInProva p;
    p.robot.impostaUltrasuoni(1, 0, 200);
    p.robot.impostaTemperatura(40);
    p.apri();
    p.robot.ricevi(b({27, 70}));
    EXPECT_EQ(p.presi(), b({33, 1, 0, 200, 31, 40}));
}

TEST(Telemetria, TheTwoStatusRequestsGiveBatteriesAndTemperature)
{
    RobotInProva p;
    p.robot.impostaBatterie(7, 8);
    p.robot.impostaTemperatura(9);
    p.apri();
    p.robot.ricevi(b({29, 132}));
    EXPECT_EQ(p.presi(), b({32, 7, 8}));
    p.robot.ricevi(b({28, 103}));
    EXPECT_EQ(p.presi(), b({31, 9}));
}

TEST(Telemetria, AChangedSensorIsToldAtOnce)
{
    RobotInProva p;
    p.apri();
    p.robot.impostaTemperatura(51);
    p.robot.impostaBatterie(0, 255);
    p.robot.impostaUltrasuoni(0, 9, 0);
    EXPECT_EQ(p.presi(), b({31, 51, 32, 0, 255, 33, 0, 9, 0}));
}

TEST(Telemetria, AChangedSensorWaitsForThePollWhenToldSo)
{
    RobotInProva p;
    p.apri();
    p.robot.impostaInvioImmediato(false);
    p.robot.impostaTemperatura(51);
    EXPECT_TRUE(p.telegrammi.isEmpty());
    p.robot.ricevi(b({28, 103}));
    EXPECT_EQ(p.presi(), b({31, 51}));
}

TEST(Telemetria, SensorValuesAreHeldToAByte)
{
    RobotInProva p;
    p.apri();
    p.robot.impostaTemperatura(300);
    p.robot.impostaBatterie(-5, 256);
    EXPECT_EQ(p.presi(), b({31, 255, 32, 0, 255}));
}

TEST(Telemetria, WithAnswersOffOnlyPollsAndActionsStaySilent)
{
    RobotInProva p;
    p.apri();
    p.robot.impostaRisponde(false);
    p.robot.ricevi(b({27, 70, 29, 132, 28, 103, 19, 65, 1}));
    EXPECT_TRUE(p.telegrammi.isEmpty());
    p.robot.ricevi(b({1}));
    EXPECT_EQ(p.presi().size(), 5);
}

TEST(Attuatori, EveryActionIsFollowedByAReaction)
{
    QTemporaryDir radice;
    for (const QByteArray &comando :
         {b({19, 2, 1}),    b({19, 3, 1}),       b({19, 33, 1}),  b({19, 34, 1}),
          b({19, 35, 1}),   b({19, 36, 1}),      b({19, 37, 1}),  b({19, 38, 1}),
          b({19, 65, 1}),   b({19, 65, 0}),      b({19, 66, 1}),  b({19, 67, 18}),
          b({19, 68, 18}),  b({19, 73, 4}),      b({19, 97, 70}), b({19, 99, 0}),
          b({19, 99, 129}), b({19, 99, 65}),     b({19, 99, 33}), b({19, 129, 2}),
          b({19, 130, 4}),  b({19, 131, 0}),     b({19, 139, 0}), b({19, 140, 255}),
          b({19, 161, 1}),  b({10, 10, 128, 0}), b({12})}) {
        RobotInProva p;
        p.robot.memoria().impostaRadice(radice.path());
        p.apri();
        p.robot.ricevi(comando);
        EXPECT_EQ(p.presi(), b({33, 0, 0, 0})) << comando.toHex(' ').toStdString();
    }
}

TEST(Attuatori, LedsLightOneByOneAndGoOut)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 37, 8, 19, 37, 16}));
    EXPECT_EQ(p.robot.stato().ledTesta, LedVs | LedBd);
    p.robot.ricevi(b({19, 38, 8}));
    EXPECT_EQ(p.robot.stato().ledTesta, LedBd);
}

TEST(Attuatori, SwitchesFollowTheirCommands)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 131, 255, 19, 140, 255, 19, 139, 255, 19, 161, 1}));
    EXPECT_TRUE(p.robot.stato().ledPosizione);
    EXPECT_TRUE(p.robot.stato().toolDestro);
    EXPECT_TRUE(p.robot.stato().toolSinistro);
    EXPECT_TRUE(p.robot.stato().pinzaAperta);
    p.robot.ricevi(b({19, 131, 0, 19, 140, 0, 19, 139, 0, 19, 161, 2}));
    EXPECT_FALSE(p.robot.stato().ledPosizione);
    EXPECT_FALSE(p.robot.stato().toolDestro);
    EXPECT_FALSE(p.robot.stato().toolSinistro);
    EXPECT_FALSE(p.robot.stato().pinzaAperta);
}

TEST(Attuatori, WhatItSaidStaysInItsState)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 97, 81}));
    EXPECT_EQ(p.robot.stato().detto, u"Sono Tessaro"_s);
    EXPECT_EQ(p.robot.stato().ultimaRiproduzione, 81);
    p.robot.ricevi(b({19, 97, 214}));
    EXPECT_EQ(p.robot.stato().detto, u"♪ Campana"_s);
}

TEST(Attuatori, AMessageIsRecordedPlayedAndDeleted)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 99, 67, 19, 99, 67}));
    EXPECT_TRUE(p.robot.stato().messaggi.contains(3));
    EXPECT_TRUE(p.robot.stato().messaggioRegistra);
    p.robot.ricevi(b({19, 99, 0}));
    EXPECT_EQ(p.robot.stato().messaggioInCorso, 0);
    p.robot.ricevi(b({19, 99, 131}));
    EXPECT_EQ(p.robot.stato().detto, u"Messaggio 3"_s);
    p.robot.ricevi(b({19, 99, 35}));
    EXPECT_TRUE(p.robot.stato().messaggi.empty());
}

TEST(Attuatori, AnInternalProgramRunsUntilItIsStopped)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 2, 9}));
    EXPECT_EQ(p.robot.stato().programma, 3);
    p.robot.ricevi(b({19, 2, 0}));
    EXPECT_EQ(p.robot.stato().programma, 0);
}

TEST(Attuatori, APhotoIsStoredInTheDisk)
{
    QTemporaryDir radice;
    RobotInProva p;
    p.robot.memoria().impostaRadice(radice.path());
    p.apri();
    p.robot.ricevi(b({19, 3, 1, 19, 3, 1}));
    EXPECT_EQ(p.robot.stato().foto, 2);
    EXPECT_FALSE(QImage(radice.filePath(u"foto/foto001.jpg"_s)).isNull());
    EXPECT_FALSE(QImage(radice.filePath(u"foto/foto002.jpg"_s)).isNull());
}

TEST(Attuatori, APhotoIsLostWhenTheStorageIsFull)
{
    QTemporaryDir radice;
    RobotInProva p;
    p.robot.memoria().impostaRadice(radice.path());
    p.apri();
    p.robot.guasti().memoriaPiena = true;
    p.robot.ricevi(b({19, 3, 1}));
    EXPECT_EQ(p.robot.stato().foto, 0);
    EXPECT_EQ(p.diario.conta(u"Memoria piena: foto perduta"_s), 1);
}
