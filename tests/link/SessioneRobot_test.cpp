// A connection with the simulated robot over a pseudo-terminal.
#include "serial/PortaAsio.h"
#include "simulator/Simulatore.h"
#include "tests/link/BancoSessione.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A robot at COM1 that sends without the speed limit of a serial line.
class SessioneRobot : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(robot.apri()) << robot.errore().toStdString();
        ASSERT_TRUE(robot.collegaPorta(p.cartella.percorso(), 1));
        robot.impostaBaud(0);
    }
    bool ricevuti(const QByteArray &byte)
    {
        return aspetta([&] { return robot.ricevuti().contains(byte); });
    }

    BancoSessione p{std::make_unique<PortaAsio>()};
    Simulatore robot;
};

} // namespace

TEST_F(SessioneRobot, AnAttemptSucceedsAndTheTelemetryIsShown)
{
    robot.robot().impostaTemperatura(23);
    robot.robot().impostaBatterie(150, 90);
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_TRUE(p.collegato());
    EXPECT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"23°"_s; }));
    EXPECT_TRUE(aspetta([&] { return p.banco.imgBattLogica.toolTip() == u"150/255 (Media)"_s; }));
    EXPECT_TRUE(aspetta([&] { return p.banco.imgBattMotori.toolTip() == u"90/255 (Scarica)"_s; }));
    EXPECT_TRUE(robot.ricevuti().startsWith(b({3, 1, 1})));
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST_F(SessioneRobot, AtTheSpeedOfTheLineTheAttemptSucceedsToo)
{
    robot.impostaBaud(9600);
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
}

TEST_F(SessioneRobot, ChangesAreShownWhileTheSessionLasts)
{
    p.sessione.Collega();
    robot.robot().impostaTemperatura(41);
    EXPECT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"41°"_s; }));
    robot.robot().impostaUltrasuoni(1, 0, 1);
    EXPECT_TRUE(aspetta([&] {
        return p.banco.shpUltrasuoniDx.Visible() && !p.banco.shpUltrasuoniCe.Visible() &&
               p.banco.shpUltrasuoniSx.Visible();
    }));
}

TEST_F(SessioneRobot, TheSensorsArePolledAndNothingUnknownIsSent)
{
    p.sessione.Collega();
    EXPECT_TRUE(ricevuti(b({29, 132, 28, 103})));
    EXPECT_TRUE(ricevuti(b({27, 70})));
    EXPECT_EQ(robot.diario().nonCapiti(), QByteArray());
}

TEST_F(SessioneRobot, DisconnectingEndsTheSessionAtTheRobot)
{
    p.sessione.Collega();
    ASSERT_TRUE(aspetta([&] { return robot.robot().stato().sessioneAperta; }));
    p.sessione.Scollega();
    EXPECT_TRUE(aspetta([&] { return !robot.robot().stato().sessioneAperta; }));
    EXPECT_TRUE(aspetta([&] { return !robot.portaAperta(); }));
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
}

TEST_F(SessioneRobot, ConnectsAndDisconnectsManyTimes)
{
    for (int giro = 1; giro <= 5; ++giro) {
        robot.robot().impostaTemperatura(10 + giro);
        p.sessione.Collega();
        ASSERT_EQ(p.pannello(1), u"Connesso"_s);
        ASSERT_TRUE(aspetta(
            [&] { return p.banco.lblTemperatura.Caption() == QString::number(10 + giro) + u'°'; }));
        p.sessione.Scollega();
        ASSERT_EQ(p.pannello(1), u"Non connesso"_s);
    }
}

TEST_F(SessioneRobot, OneByteDoesNotCountAsAnAnswer)
{
    robot.guasti().unSoloByte = true;
    p.banco.tmrChiusuraAutomatica.setInterval(50);
    p.sessione.Collega();
    EXPECT_EQ(p.messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_FALSE(p.banco.COM.PortOpen());
}

TEST_F(SessioneRobot, AnAnswerAfterTheNudgeCompletesTheAttempt)
{
    robot.guasti().soloDopoSollecito = true;
    p.banco.tmrChiusuraAutomatica.setInterval(50);
    const Durante durante([&] {
        // The nudge was sent. A long interval gives the answer enough time.
        if (robot.ricevuti().size() >= 4 && p.banco.tmrChiusuraAutomatica.Interval() == 50)
            p.banco.tmrChiusuraAutomatica.setInterval(60000);
    });
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_TRUE(robot.ricevuti().startsWith(b({3, 1, 1, 1})));
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST_F(SessioneRobot, TheAttemptFailsIfTheRobotIsSilent)
{
    robot.guasti().silenzio = true;
    p.banco.tmrChiusuraAutomatica.setInterval(20);
    p.sessione.Collega();
    EXPECT_EQ(p.messaggi.testi(), QStringList{u"Collegamento non riuscito!"_s});
    EXPECT_FALSE(p.pulsante().Image() == 6);
}

TEST_F(SessioneRobot, APortInUseIsReported)
{
    ControlloSeriale altro(u"altro"_s, nullptr, std::make_unique<PortaAsio>(),
                           p.cartella.percorso());
    altro.setPortOpen(true);
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    ASSERT_FALSE(p.messaggi.visti().isEmpty());
    EXPECT_EQ(p.messaggi.visti().first().titolo, u"Errore - Collegamento"_s);
    EXPECT_TRUE(p.messaggi.visti().first().testo.endsWith(u"(8005)"_s));
}

TEST_F(SessioneRobot, AFileThatIsNotAPortIsReported)
{
    p.cartella.scrivi(u"COM2"_s, "niente");
    p.cartella.scrivi(u"Porta COM"_s, "2\r\n");
    p.banco.tmrSensori.setInterval(0);
    p.sessione.Collega();
    ASSERT_FALSE(p.messaggi.visti().isEmpty());
    EXPECT_TRUE(p.messaggi.visti().first().testo.endsWith(u"(8002)"_s));
    EXPECT_EQ(p.cartella.leggi(u"COM2"_s), "niente");
}

TEST_F(SessioneRobot, ACommandIsAnsweredAndItsTextShown)
{
    p.sessione.Collega();
    // What the robot answers is the poll of its sensors, which comes during the wait.
    ComandiTessaro::BaseAvanti(p.banco.COM, 2);
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.pannello(3), u"Tessaro sta andando avanti"_s);
    EXPECT_TRUE(ricevuti(b({19, 65, 2})));
}

TEST_F(SessioneRobot, TheVideoStarts)
{
    p.sessione.Collega();
    EXPECT_TRUE(ComandiTessaro::AvviaVideo(p.banco.COM, 1, 0, p.sessione));
    EXPECT_EQ(p.pannello(3), u"Video partito"_s);
    EXPECT_TRUE(ricevuti(b({10, 1, 128, 0})));
    EXPECT_TRUE(ricevuti(b({11, 160, 0})));
}

TEST_F(SessioneRobot, ARobotThatFallsSilentIsSearchedForAndThenDisconnected)
{
    p.banco.tmrControllaConn.setInterval(50);
    p.sessione.Collega();
    robot.guasti().silenzio = true;
    EXPECT_TRUE(aspetta([&] { return p.pannello(1) == u"Ricerca..."_s; }));
    EXPECT_TRUE(aspetta([&] { return p.pannello(3) == u"Disconnesso"_s; }));
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_TRUE(aspetta([&] { return !robot.robot().stato().sessioneAperta; }));
}

TEST_F(SessioneRobot, ARobotThatComesBackIsConnectedAgain)
{
    p.banco.tmrControllaConn.setInterval(50);
    p.sessione.Collega();
    robot.guasti().silenzio = true;
    ASSERT_TRUE(aspetta([&] { return p.pannello(1) == u"Ricerca..."_s; }));
    robot.guasti().silenzio = false;
    EXPECT_TRUE(aspetta([&] { return p.pannello(1) == u"Connesso"_s; }));
    EXPECT_TRUE(p.banco.COM.PortOpen());
}

TEST_F(SessioneRobot, AFarEndThatVanishesIsDisconnectedAndCanBeConnectedAgain)
{
    p.banco.tmrControllaConn.setInterval(50);
    p.sessione.Collega();
    robot.sgancia();
    EXPECT_TRUE(aspetta([&] { return p.pannello(3) == u"Disconnesso"_s; }));
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
    ASSERT_TRUE(robot.riaggancia());
    p.banco.tmrControllaConn.setInterval(5000);
    p.sessione.Collega();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
}

TEST_F(SessioneRobot, ATelegramCutByTheEndOfASessionDisturbsTheNextOneOnlyBriefly)
{
    p.sessione.Collega();
    ASSERT_TRUE(aspetta([&] { return !p.banco.lblTemperatura.Caption().isEmpty(); }));
    // The last bytes of the robot are half a telegram.
    p.banco.tmrSensori.setEnabled(false);
    robot.guasti().silenzio = true;
    ASSERT_TRUE(aspetta([&] { return robot.inCoda() == 0; }));
    robot.inviaGrezzo(b({32, 200}));
    ASSERT_TRUE(aspetta([&] {
        return p.banco.tmrElabInput.accumulatore.tutto().endsWith(b({32, 200}));
    }));
    p.sessione.Scollega();
    robot.guasti().silenzio = false;
    robot.robot().impostaTemperatura(37);
    p.sessione.Collega();
    EXPECT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"37°"_s; }));
}

TEST_F(SessioneRobot, AFloodOfTelegramsDoesNotPreventTheDisconnection)
{
    p.sessione.Collega();
    robot.guasti().alluvione = true;
    ASSERT_TRUE(aspetta([&] { return p.telemetria.testi.size() > 500; }));
    p.sessione.Scollega();
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
}

TEST_F(SessioneRobot, ANoisyLineDoesNotEndTheConnection)
{
    robot.impostaSeme(7);
    p.sessione.Collega();
    robot.guasti().persi = 0.05;
    robot.guasti().doppi = 0.05;
    robot.guasti().sporchi = 0.05;
    robot.guasti().alluvione = true;
    ASSERT_TRUE(aspetta([&] { return p.telemetria.testi.size() > 500; }));
    EXPECT_TRUE(p.banco.COM.PortOpen());
}
