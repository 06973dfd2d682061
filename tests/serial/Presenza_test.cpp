#include "serial/Presenza.h"

#include "tests/support/Controlli.h"

namespace {

using Scrittura = Presenza::Scrittura;

// A line on which each write ends in the same way; counts the writes that were tried.
struct LineaFinta
{
    int scrivi(Presenza &presenza)
    {
        return erroreDi([&] {
            presenza.scrivi([this] {
                ++tentate;
                return esito;
            });
        });
    }

    Scrittura esito = Scrittura::Presa;
    int tentate = 0;
};

} // namespace

TEST(Presenza, AWriteThatTheLineTakesSucceeds)
{
    Presenza presenza;
    LineaFinta linea;
    EXPECT_EQ(linea.scrivi(presenza), 0);
    EXPECT_FALSE(presenza.persa());
}

TEST(Presenza, AFarEndThatDoesNotReadIsWaitedForOnlyOnce)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(linea.scrivi(presenza), Errore::LineaPersa);
    EXPECT_EQ(linea.tentate, 1);
    EXPECT_TRUE(presenza.persa());
}

TEST(Presenza, ALineWithoutRoomFailsAndIsTriedAgain)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::SenzaPosto;
    EXPECT_EQ(linea.scrivi(presenza), Errore::LineaPersa);
    EXPECT_FALSE(presenza.persa());
    linea.esito = Scrittura::Presa;
    EXPECT_EQ(linea.scrivi(presenza), 0);
}

TEST(Presenza, ALossIsReportedOnce)
{
    Presenza presenza;
    int volte = 0;
    presenza.perduta = [&] { ++volte; };
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    linea.scrivi(presenza);
    linea.scrivi(presenza);
    EXPECT_EQ(volte, 1);
}

TEST(Presenza, ALineThatIsOpenedAgainIsNoLongerLost)
{
    Presenza presenza;
    LineaFinta linea;
    linea.esito = Scrittura::Mancata;
    linea.scrivi(presenza);
    presenza.ricomincia();
    linea.esito = Scrittura::Presa;
    EXPECT_EQ(linea.scrivi(presenza), 0);
}
