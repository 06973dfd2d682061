#include "simulator/line/Guasti.h"
#include "tests/simulator/RobotInProva.h"
#include <gtest/gtest.h>

namespace {
const QByteArray mille(1000, 'a');
}

TEST(FiltroGuasti, WithoutFaultsNothingChanges)
{
    FiltroGuasti filtro;
    EXPECT_EQ(filtro.telegramma(mille, {}), mille);
}

TEST(FiltroGuasti, DroppedBytesAreMissing)
{
    FiltroGuasti filtro;
    Guasti guasti;
    guasti.persi = 0.5;
    const auto resto = filtro.linea(mille, guasti).size();
    EXPECT_GT(resto, 350);
    EXPECT_LT(resto, 650);
    guasti.persi = 1.0;
    EXPECT_TRUE(filtro.linea(mille, guasti).isEmpty());
}

TEST(FiltroGuasti, DoubledBytesComeTwice)
{
    FiltroGuasti filtro;
    Guasti guasti;
    guasti.doppi = 1.0;
    EXPECT_EQ(filtro.linea(b({1, 2}), guasti), b({1, 1, 2, 2}));
}

TEST(FiltroGuasti, AGarbledByteIsNeverItself)
{
    FiltroGuasti filtro;
    Guasti guasti;
    guasti.sporchi = 1.0;
    const QByteArray sporco = filtro.linea(mille, guasti);
    EXPECT_EQ(sporco.size(), mille.size());
    EXPECT_FALSE(sporco.contains('a'));
}

TEST(FiltroGuasti, ACutTelegramKeepsItsStartAndLosesItsEnd)
{
    FiltroGuasti filtro;
    Guasti guasti;
    guasti.troncati = 1.0;
    const QByteArray intero = b({33, 1, 2, 3});
    for (int i = 0; i < 50; ++i) {
        const QByteArray resto = filtro.telegramma(intero, guasti);
        EXPECT_GE(resto.size(), 1);
        EXPECT_LT(resto.size(), intero.size());
        EXPECT_TRUE(intero.startsWith(resto));
    }
}

TEST(FiltroGuasti, TheSameSeedGivesTheSameFaults)
{
    Guasti guasti;
    guasti.persi = guasti.doppi = guasti.sporchi = 0.2;
    FiltroGuasti uno(7);
    FiltroGuasti due(7);
    FiltroGuasti altro(8);
    const QByteArray esito = uno.linea(mille, guasti);
    EXPECT_EQ(esito, due.linea(mille, guasti));
    EXPECT_NE(esito, altro.linea(mille, guasti));
}
