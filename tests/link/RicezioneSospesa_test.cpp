// The receive engine: a tick that waits for a byte.
#include "link/ComandiTessaro.h"
#include "tests/link/BancoRicezione.h"
#include "tests/support/Modali.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ScattoSospeso, ASingle31WaitsForItsTemperature)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    EXPECT_EQ(p.tmrElabInput().Tag(), u"\u001f"_s);
    EXPECT_EQ(p.pannello(2), QString());
    ASSERT_TRUE(p.digerisci(b({21})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"21°"_s);
    EXPECT_EQ(p.pannello(2), u"<31>"_s);
    EXPECT_EQ(p.telemetria.testi.size(), 1);
}

TEST(ScattoSospeso, FieldsAlreadyReadAreNotReadAgain)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({33, 1})));
    // The first shape is set as soon as its byte has arrived.
    EXPECT_TRUE(p.banco.shpUltrasuoniDx.Visible());
    // A change made meanwhile stays, because the byte is not read again.
    p.banco.shpUltrasuoniDx.setVisible(false);
    ASSERT_TRUE(p.digerisci(b({1, 1})));
    EXPECT_FALSE(p.banco.shpUltrasuoniDx.Visible());
    EXPECT_EQ(p.telemetria.testi, QStringList{u"Ultrasuoni:011"_s});
}

TEST(ScattoSospeso, DoesNotTickAgain)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({33, 1})));
    p.banco.shpUltrasuoniDx.setVisible(false);
    // A second tick would read the telegram again from its first byte.
    int altri = 0;
    Temporizzatore orologio(u"orologio"_s, nullptr);
    orologio.Timer.collega([&] { ++altri; });
    orologio.setInterval(1);
    orologio.setEnabled(true);
    ASSERT_TRUE(aspetta([&] { return altri >= 20; }));
    EXPECT_FALSE(p.banco.shpUltrasuoniDx.Visible());
}

TEST(ScattoSospeso, LetsOtherTimersTick)
{
    BancoRicezione p;
    gira(3);
    int ticchettii = 0;
    p.banco.tmrSensori.Timer.collega([&] { ++ticchettii; });
    p.banco.tmrSensori.setInterval(1);
    p.banco.tmrSensori.setEnabled(true);
    EXPECT_TRUE(aspetta([&] { return ticchettii >= 5; }));
}

TEST(ScattoSospeso, WatchesTheLineOnlyWhileItWaits)
{
    BancoRicezione p;
    EXPECT_FALSE(p.porta.sorvegliata());
    ASSERT_TRUE(aspetta([&] { return p.porta.sorvegliata(); }));
    // An incomplete row ends the tick; the next tick of the timer looks again.
    p.banco.tmrElabInput.setEnabled(false);
    ASSERT_TRUE(p.arriva(b({13})));
    EXPECT_FALSE(p.porta.sorvegliata());
}

TEST(ScattoSospeso, IsResumedByBytesThatOtherCodeAppends)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    p.accumulatore().aggiungi(b({19}));
    EXPECT_TRUE(aspetta([&] { return p.accumulatore().vuoto(); }));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"19°"_s);
}

TEST(ScattoSospeso, IsResumedByATextSetAsTag)
{
    BancoRicezione p;
    gira(3);
    p.tmrElabInput().setTag(u"\u001f\u0012"_s);
    EXPECT_TRUE(aspetta([&] { return p.accumulatore().vuoto(); }));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"18°"_s);
}

TEST(ScattoSospeso, ReadsTheNewBytesIfTheAccumulatorWasEmptiedMeanwhile)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    p.tmrElabInput().setTag({});
    // The type has been read already: of the new bytes, the second one is the temperature.
    ASSERT_TRUE(p.digerisci(b({99, 12})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"12°"_s);
}

TEST(ScattoSospeso, SurvivesADisconnectionAndGoesOnWhenTheLineIsBack)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({32, 10})));
    p.banco.tmrElabInput.setEnabled(false);
    p.banco.COM.setPortOpen(false);
    gira(10);
    EXPECT_EQ(p.accumulatore().tutto(), b({32, 10}));
    p.banco.COM.setPortOpen(true);
    p.banco.tmrElabInput.setEnabled(true);
    ASSERT_TRUE(p.digerisci(b({20, 31, 5})));
    EXPECT_EQ(p.banco.imgBattLogica.toolTip(), u"10/255 (Scarichissima)"_s);
    EXPECT_EQ(p.banco.imgBattMotori.toolTip(), u"20/255 (Scarichissima)"_s);
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"5°"_s);
}

TEST(ScattoSospeso, GoesOnAfterReconnectionWithTheTimersOfTheNewSession)
{
    BancoRicezione p;
    gira(3);
    for (int giro = 0; giro < 3; ++giro) {
        p.banco.tmrElabInput.setEnabled(false);
        p.banco.COM.setPortOpen(false);
        gira(3);
        p.banco.COM.setPortOpen(true);
        p.banco.tmrElabInput.setEnabled(true);
        ASSERT_TRUE(p.digerisci(b({31, giro})));
        EXPECT_EQ(p.telemetria.testi.size(), giro + 1);
    }
}

TEST(ScattoSospeso, IsNotResumedWhileAnotherRoutineCountsTheBytes)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    {
        const MotoreRicezione::Fermo fermo(p.motore);
        p.porta.arriva(b({21}));
        gira(10);
        EXPECT_EQ(p.porta.inArrivo(), 1);
        EXPECT_EQ(p.banco.COM.InBufferCount(), 1);
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    }
    // The byte is in the control already, so the line does not report it again.
    EXPECT_TRUE(aspetta([&] { return p.accumulatore().vuoto(); }));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"21°"_s);
}

TEST(ScattoSospeso, ATickThatBeginsMeanwhileLeavesTheBytesInThePort)
{
    BancoRicezione p;
    p.porta.arriva(b({31, 21}));
    {
        const MotoreRicezione::Fermo fermo(p.motore);
        p.tmrElabInput().Timer();
        EXPECT_EQ(p.banco.COM.InBufferCount(), 2);
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    }
    EXPECT_TRUE(aspetta([&] { return p.banco.lblTemperatura.Caption() == u"21°"_s; }));
}

TEST(ScattoSospeso, IsNotResumedBeforeTheOutermostWaitEnds)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    {
        const MotoreRicezione::Fermo fuori(p.motore);
        {
            const MotoreRicezione::Fermo dentro(p.motore);
            p.porta.arriva(b({21}));
        }
        gira(10);
        EXPECT_EQ(p.banco.lblTemperatura.Caption(), QString());
    }
    EXPECT_TRUE(p.digeriti());
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"21°"_s);
}

TEST(ScattoSospeso, ALostLineLeavesItWaiting)
{
    BancoRicezione p;
    ASSERT_TRUE(p.arriva(b({31})));
    p.porta.persa = true;
    gira(50);
    EXPECT_EQ(p.accumulatore().tutto(), b({31}));
}

TEST(ScattoSospeso, IsDestroyedWithItsEngine)
{
    BancoRicezione p;
    {
        Banco altro(std::make_unique<PortaFinta>(), p.cartella.percorso());
        altro.COM.setPortOpen(true);
        const MotoreRicezione motore(altro.COM, altro.tmrElabInput, altro.telemetria());
        altro.tmrElabInput.setEnabled(true);
        gira(5);
    }
    ASSERT_TRUE(p.digerisci(b({31, 3})));
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"3°"_s);
}

TEST(ScattoSospeso, AMessageBoxOpenedByATelegramDoesNotStopTheTick)
{
    BancoRicezione p;
    // The window sends a command while the port is closed: a box is shown, then the tick goes on.
    p.file.durante = [&] { ComandiTessaro::LeggiElenco(p.banco.COM, 1); };
    const RispondiMessaggi messaggi;
    p.accumulatore().aggiungi(b({42, 1, 0, 31, 4}));
    p.banco.COM.setPortOpen(false);
    EXPECT_TRUE(aspetta([&] { return p.accumulatore().vuoto(); }));
    EXPECT_EQ(messaggi.testi(), QStringList{u"Non sono collegato al robot"_s});
    EXPECT_EQ(p.banco.lblTemperatura.Caption(), u"4°"_s);
}
