// The disconnection, on a line in memory.
#include "tests/link/BancoSessioneFinta.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Scollega, SendsTheEndOfTheSessionAndClosesThePort)
{
    BancoSessioneFinta p;
    p.collega();
    p.sessione.Scollega();
    EXPECT_EQ(p.porta.scritture, QList<QByteArray>{b({4})});
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_TRUE(p.fermo());
}

TEST(Scollega, ResetsTheConsole)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.arriva(b({31, 20, 32, 100, 200, 33, 1, 1, 1, 99}));
    ASSERT_TRUE(aspetta([&] { return p.pannello(2) == u"<99>"_s; }));
    p.sessione.Scollega();
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(p.pannello(2), u"<>"_s);
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_FALSE(p.banco.imgLivBattLogica.Visible());
    EXPECT_FALSE(p.banco.imgLivBattMotori.Visible());
    EXPECT_FALSE(p.banco.shpUltrasuoniDx.Visible());
    EXPECT_FALSE(p.banco.shpUltrasuoniCe.Visible());
    EXPECT_FALSE(p.banco.shpUltrasuoniSx.Visible());
    EXPECT_EQ(p.banco.imgBattLogica.toolTip(), QString());
    EXPECT_EQ(p.banco.imgBattMotori.toolTip(), QString());
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    EXPECT_EQ(p.pulsante().Image(), 1);
    EXPECT_EQ(p.pulsante().toolTip(), u"Connetti ad Tessaro"_s);
}

TEST(Scollega, UnloadsTheWindowsFirstAndStopsAStartedRunner)
{
    for (const bool avviato : {true, false}) {
        BancoSessioneFinta p;
        p.collega();
        p.finestre.vigilio = avviato;
        QStringList prima;
        p.porta.scritto = [&](const QByteArray &) {
            prima = p.finestre.registro;
            // The timers are stopped already, the port is still open.
            EXPECT_TRUE(p.fermo());
            EXPECT_TRUE(p.banco.COM.PortOpen());
        };
        p.sessione.Scollega();
        QStringList attese = {u"scaricaCamera"_s, u"scaricaEsploraFile"_s};
        if (avviato)
            attese << u"stoppaVigilio"_s;
        EXPECT_EQ(prima, attese);
        EXPECT_EQ(p.finestre.registro, attese);
    }
}

TEST(Scollega, LeavesTheAccumulatorAsItIs)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.arriva(b({32, 100}));
    ASSERT_TRUE(aspetta([&] { return p.banco.tmrElabInput.accumulatore.lunghezza() == 2; }));
    p.sessione.Scollega();
    EXPECT_EQ(p.banco.tmrElabInput.accumulatore.tutto(), b({32, 100}));
}

TEST(Scollega, IgnoresALineThatTakesNoBytes)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.persa = true;
    p.sessione.Scollega();
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}
