// The waits that count rounds of the pump, on a line in memory: the keep-alive and MostraInvio.
#include "tests/link/BancoSessioneFinta.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int fineBarra = 100000;

} // namespace

TEST(MantieniVivo, SendsBothStateRequests)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.scritto = [&](const QByteArray &) { p.porta.arriva(b({31})); };
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.porta.scritture, (QList<QByteArray>{b({29, 132}), b({28, 103})}));
}

TEST(MantieniVivo, AnswerBytesGoIntoTheAccumulatorInTheOrderOfArrival)
{
    BancoSessioneFinta p;
    p.collega();
    // The engine waits for the rest of a telegram, and the keep-alive reads it.
    p.porta.arriva(b({32, 100}));
    ASSERT_TRUE(aspetta([&] { return p.banco.tmrElabInput.accumulatore.lunghezza() == 2; }));
    p.porta.scritto = [&](const QByteArray &) { p.porta.arriva(b({200, 31, 7})); };
    p.banco.tmrControllaConn.Timer();
    p.porta.scritto = nullptr;
    EXPECT_EQ(p.banco.tmrElabInput.accumulatore.tutto().first(5), b({32, 100, 200, 31, 7}));
    ASSERT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"7°"_s; }));
    EXPECT_EQ(p.telemetria.testi.first(), u"Batterie:13"_s);
}

TEST(MantieniVivo, AnAnswerShowsConnessoAndEmptiesTheBar)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.BarraStato.setPanels(1, u"Ricerca..."_s);
    p.banco.BarraCaricamento.setValore(700);
    p.porta.arriva(b({99}));
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

TEST(MantieniVivo, ShowsTheSearchWhenTheRobotIsSilentForLong)
{
    BancoSessioneFinta p;
    p.collega();
    int barra = 0;
    const Durante durante([&] {
        if (p.pannello(1) == u"Ricerca..."_s && p.banco.BarraCaricamento.Value() > 5000 &&
            barra == 0) {
            barra = p.banco.BarraCaricamento.Value();
            p.porta.arriva(b({99}));
        }
    });
    p.banco.tmrControllaConn.Timer();
    EXPECT_GT(barra, 5000);
    EXPECT_EQ(p.pannello(1), u"Connesso"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

TEST(MantieniVivo, DisconnectsOnlyAfterTwoTicksWithoutAnAnswer)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.pannello(1), u"Ricerca..."_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), fineBarra);
    EXPECT_TRUE(p.collegato());
    EXPECT_TRUE(p.banco.COM.PortOpen());
    EXPECT_TRUE(p.finestre.registro.isEmpty());

    QString annuncio;
    p.finestre.premuto = [&](PulsanteBarra &pulsante) {
        annuncio = p.pannello(3);
        EXPECT_EQ(&pulsante, &p.pulsante());
        p.sessione.Scollega();
    };
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(annuncio, u"Robot non trovato, chiusura della connessione in corso..."_s);
    EXPECT_EQ(p.finestre.registro.first(), u"ButtonClick"_s);
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
    EXPECT_FALSE(p.banco.COM.PortOpen());
    EXPECT_EQ(p.porta.scritture.last(), b({4}));
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST(MantieniVivo, AnAnswerBetweenTwoTicksWithoutOneKeepsTheConnection)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.tmrControllaConn.Timer();
    p.porta.arriva(b({99}));
    p.banco.tmrControllaConn.Timer();
    p.banco.tmrControllaConn.Timer();
    EXPECT_TRUE(p.banco.COM.PortOpen());
    EXPECT_TRUE(p.finestre.registro.isEmpty());
    EXPECT_EQ(p.pannello(1), u"Ricerca..."_s);
}

TEST(MantieniVivo, EndsSilentlyIfTheUserDisconnectsMeanwhile)
{
    BancoSessioneFinta p;
    p.collega();
    bool fatto = false;
    const Durante durante([&] {
        if (!fatto && p.pannello(1) == u"Ricerca..."_s) {
            fatto = true;
            p.banco.BarraPulsanti.ButtonClick(p.pulsante());
        }
    });
    p.banco.tmrControllaConn.Timer();
    EXPECT_EQ(p.pannello(1), u"Non connesso"_s);
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
    EXPECT_EQ(p.pulsante().Image(), 1);
    EXPECT_FALSE(p.finestre.registro.contains(u"ButtonClick"_s));
}

TEST(MantieniVivo, ALostLineEndsTheSessionAfterTwoTicksWithoutAnAnswer)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.persa = true;
    p.banco.tmrControllaConn.setInterval(1);
    EXPECT_TRUE(aspetta([&] { return !p.banco.COM.PortOpen(); }));
    EXPECT_TRUE(aspetta([&] { return p.pannello(3) == u"Disconnesso"_s; }));
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}

TEST(Sensori, EachTickOfTheirTimerPollsThem)
{
    BancoSessioneFinta p;
    p.collega();
    p.banco.tmrSensori.setInterval(1);
    EXPECT_TRUE(aspetta([&] { return p.porta.scritture.size() >= 3; }));
    for (const QByteArray &scrittura : p.porta.scritture)
        EXPECT_EQ(scrittura, b({27, 70}));
}

TEST(MostraInvio, WithThePortClosedShowsNothing)
{
    BancoSessioneFinta p;
    p.banco.BarraStato.setPanels(3, u"prima"_s);
    p.banco.BarraCaricamento.setValore(50);
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.pannello(3), u"prima"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 50);
}

TEST(MostraInvio, ShowsItsTextAsSoonAsTheRobotReacts)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.arriva(b({31, 20}));
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.pannello(3), u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

TEST(MostraInvio, WithoutAReactionShowsNoAnswerAndLeavesTheBarAtItsEnd)
{
    BancoSessioneFinta p;
    p.collega();
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.pannello(3), u"Nessuna risposta."_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), fineBarra);
    EXPECT_TRUE(p.collegato());
}

TEST(MostraInvio, ASmallerCountIsAReactionToo)
{
    BancoSessioneFinta p;
    p.collega();
    p.porta.arriva(b({31, 21}));
    p.sessione.MostraInvio(u"uno"_s);
    ASSERT_EQ(p.pannello(3), u"uno"_s);
    // Meanwhile the engine has taken the two bytes.
    ASSERT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"21°"_s; }));
    p.sessione.MostraInvio(u"due"_s);
    EXPECT_EQ(p.pannello(3), u"due"_s);
    EXPECT_EQ(p.banco.BarraCaricamento.Value(), 1);
}

TEST(MostraInvio, DoesNotLoseTheBytesThatItCounts)
{
    BancoSessioneFinta p;
    p.collega();
    for (int giro = 1; giro <= 5; ++giro) {
        p.porta.arriva(b({31, giro}));
        p.sessione.MostraInvio(u"fatto"_s);
        ASSERT_TRUE(aspetta([&] { return p.telemetria.testi.size() == giro; }));
    }
}

TEST(MostraInvio, EndsSilentlyIfTheUserDisconnectsMeanwhile)
{
    BancoSessioneFinta p;
    p.collega();
    bool fatto = false;
    const Durante durante([&] {
        if (!fatto && p.banco.BarraCaricamento.Value() > 100) {
            fatto = true;
            p.sessione.Scollega();
        }
    });
    p.sessione.MostraInvio(u"Tessaro sta andando avanti"_s);
    EXPECT_EQ(p.pannello(3), u"Disconnesso"_s);
    EXPECT_TRUE(p.messaggi.visti().isEmpty());
}
