#include "link/Accumulatore.h"

#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Accumulatore, CountsItsBytesFrom1)
{
    Accumulatore accumulatore;
    accumulatore.aggiungi(b({31, 200}));
    EXPECT_EQ(accumulatore.byte(1), 31);
    EXPECT_EQ(accumulatore.byte(2), 200);
    EXPECT_EQ(accumulatore.lunghezza(), 2);
}

TEST(Accumulatore, GrowsAtItsEndAndShrinksFromItsBeginning)
{
    Accumulatore accumulatore;
    accumulatore.aggiungi(b({1, 2, 3}));
    accumulatore.taglia(1);
    accumulatore.aggiungi(b({4}));
    EXPECT_EQ(accumulatore.tutto(), b({2, 3, 4}));
    accumulatore.taglia(2);
    EXPECT_EQ(accumulatore.tutto(), b({4}));
}

TEST(Accumulatore, CuttingMoreThanThereIsLeavesItEmpty)
{
    Accumulatore accumulatore;
    accumulatore.aggiungi(b({1, 2, 3}));
    accumulatore.taglia(1);
    accumulatore.taglia(260);
    EXPECT_TRUE(accumulatore.vuoto());
    accumulatore.aggiungi(b({5}));
    EXPECT_EQ(accumulatore.tutto(), b({5}));
}

TEST(Accumulatore, APartEndsWhereTheBytesEnd)
{
    Accumulatore accumulatore;
    accumulatore.aggiungi(b({1, 2, 3, 4}));
    accumulatore.taglia(1);
    EXPECT_EQ(accumulatore.parte(2, 161), b({3, 4}));
    EXPECT_EQ(accumulatore.parte(2, 1), b({3}));
    EXPECT_EQ(accumulatore.parte(4, 1), QByteArray());
}

TEST(Accumulatore, KeepsTheSameBytesThroughManyCuts)
{
    Accumulatore accumulatore;
    QByteArray specchio;
    quint8 prossimo = 0;
    for (int giro = 0; giro < 2000; ++giro) {
        QByteArray nuovi;
        for (int i = 0; i < giro % 7; ++i)
            nuovi.append(static_cast<char>(prossimo++));
        accumulatore.aggiungi(nuovi);
        specchio += nuovi;
        accumulatore.taglia(giro % 4);
        specchio.remove(0, giro % 4);
        ASSERT_EQ(accumulatore.tutto(), specchio) << giro;
    }
}

TEST(Accumulatore, ReportsAddedBytesAndNothingElse)
{
    Accumulatore accumulatore;
    int volte = 0;
    accumulatore.cresciuto = [&] { ++volte; };
    accumulatore.aggiungi({});
    accumulatore.taglia(1);
    accumulatore.svuota();
    EXPECT_EQ(volte, 0);
    accumulatore.aggiungi(b({1}));
    EXPECT_EQ(volte, 1);
}

TEST(TemporizzatoreIngresso, ItsTagShowsTheAccumulatorWithOneCharacterForEachByte)
{
    TemporizzatoreIngresso timer(u"tmrElabInput"_s, nullptr);
    EXPECT_EQ(timer.Tag(), QString());
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti.append(static_cast<char>(i));
    timer.accumulatore.aggiungi(tutti);
    const QString tag = timer.Tag();
    EXPECT_EQ(tag.size(), 256);
    timer.setTag({});
    EXPECT_TRUE(timer.accumulatore.vuoto());
    timer.setTag(tag);
    EXPECT_EQ(timer.accumulatore.tutto(), tutti);
}
