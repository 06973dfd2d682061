// The console's vocabulary beside the one that the simulated robot has of its own.
#include "link/FrasiSuoni.h"
#include "simulator/robot/Vocabolario.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(FrasiSuoni, EveryPhraseIsTheOneThatTheRobotSays)
{
    ASSERT_EQ(FrasiSuoni::ultimaFrase, 140);
    for (int n = 1; n <= 140; ++n)
        EXPECT_EQ(FrasiSuoni::frase(n), Vocabolario::frase(n)) << n;
}

TEST(FrasiSuoni, PhrasesStandAtTheirNumbers)
{
    EXPECT_EQ(FrasiSuoni::frase(1), u"Memorizzerò la tua voce per riconoscerti in futuro"_s);
    EXPECT_EQ(FrasiSuoni::frase(15), u"Sono Tessaro"_s);
    EXPECT_EQ(FrasiSuoni::frase(60), u"È divertente!"_s);
    EXPECT_EQ(FrasiSuoni::frase(62), u"E perchè?"_s);
    EXPECT_EQ(FrasiSuoni::frase(77), u"Tessaro"_s);
    EXPECT_EQ(FrasiSuoni::frase(111), u"Perché?"_s);
    EXPECT_EQ(FrasiSuoni::frase(131), u"Ti piaccio quando sono arrabbiato!?!??"_s);
    EXPECT_EQ(FrasiSuoni::frase(140), u"Vuoi giocare con me?"_s);
}

TEST(FrasiSuoni, NumbersBeyondTheTablesHaveNoText)
{
    for (const int n : {-1, 0, 141, 1000}) {
        EXPECT_EQ(FrasiSuoni::frase(n), QString()) << n;
        EXPECT_EQ(FrasiSuoni::suonoConsole(n), QString()) << n;
        EXPECT_EQ(FrasiSuoni::suonoDialogo(n), QString()) << n;
    }
    EXPECT_EQ(FrasiSuoni::suonoDialogo(17), QString());
}

TEST(FrasiSuoni, TheConsoleNamesFourteenSounds)
{
    const QStringList nomi = {u"Clacson"_s,
                              u"Sirena 1"_s,
                              u"Boing"_s,
                              u"Rutto"_s,
                              u"Fischio 1"_s,
                              u"5 bip"_s,
                              u"Esplosione"_s,
                              u"Campana"_s,
                              u"Trombetta"_s,
                              u"Sirena 2"_s,
                              u"Scatto di una macchina fotografica"_s,
                              u"Risata 1"_s,
                              u"Risata 2"_s,
                              u"WOW!"_s,
                              QString(),
                              QString()};
    for (int n = 1; n <= 16; ++n)
        EXPECT_EQ(FrasiSuoni::suonoConsole(n), nomi.at(n - 1)) << n;
}

TEST(FrasiSuoni, TheDialogNamesSixteenSounds)
{
    EXPECT_EQ(FrasiSuoni::suonoDialogo(11), u"Scatto fotocamera"_s);
    EXPECT_EQ(FrasiSuoni::suonoDialogo(15), u"Fischio 2"_s);
    EXPECT_EQ(FrasiSuoni::suonoDialogo(16), u"Bip singolo"_s);
    for (int n = 1; n <= 14; ++n) {
        if (n != 11) {
            EXPECT_EQ(FrasiSuoni::suonoDialogo(n), FrasiSuoni::suonoConsole(n)) << n;
        }
    }
}

TEST(FrasiSuoni, TheListsHoldEveryTextInItsOrder)
{
    ASSERT_EQ(FrasiSuoni::frasi().size(), 140);
    ASSERT_EQ(FrasiSuoni::suoniDialogo().size(), 16);
    for (int n = 1; n <= 140; ++n)
        EXPECT_EQ(FrasiSuoni::frasi().at(n - 1), FrasiSuoni::frase(n));
    for (int n = 1; n <= 16; ++n)
        EXPECT_EQ(FrasiSuoni::suoniDialogo().at(n - 1), FrasiSuoni::suonoDialogo(n));
}
