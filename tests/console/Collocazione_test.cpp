#include "console/Collocazione.h"

#include <gtest/gtest.h>

TEST(Collocazione, AScreen12000WidePutsTheWindowAt1000AndInTheMiddleOfTheHeight)
{
    const Posizione posto = collocaConsole(12000, 9000, 10500, 7620);
    EXPECT_EQ(posto.Left, 1000);
    EXPECT_EQ(posto.Top, 4500 - 3810);
}

TEST(Collocazione, AnyOtherWidthPutsItFlushWithTheRightEdgeAnd800Lower)
{
    const Posizione posto = collocaConsole(28800, 16200, 10500, 7620);
    EXPECT_EQ(posto.Left, 28800 - 10500);
    EXPECT_EQ(posto.Top, 8100 - 3810 + 800);
}

TEST(Collocazione, AScreenNearly12000WideIsAnyOther)
{
    EXPECT_EQ(collocaConsole(12015, 9000, 10500, 7620).Left, 1515);
    EXPECT_EQ(collocaConsole(11985, 9000, 10500, 7620).Left, 1485);
}

TEST(Collocazione, HalvesAreWholeNumbers)
{
    EXPECT_EQ(collocaConsole(12000, 9001, 10500, 7621).Top, 4500 - 3810);
}

TEST(Collocazione, AWindowLargerThanTheScreenStandsBeyondItsEdges)
{
    const Posizione posto = collocaConsole(9600, 7200, 10500, 7620);
    EXPECT_EQ(posto.Left, -900);
    EXPECT_EQ(posto.Top, 3600 - 3810 + 800);
}
