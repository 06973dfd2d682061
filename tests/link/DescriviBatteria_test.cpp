#include "link/DescriviBatteria.h"

#include "tests/support/Scritte.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DescriviBatteria, ChangesItsLevelRightAfterEachLimit)
{
    EXPECT_EQ(LivelloBatteria(0), 0);
    EXPECT_EQ(LivelloBatteria(50), 0);
    EXPECT_EQ(LivelloBatteria(51), 1);
    EXPECT_EQ(LivelloBatteria(100), 1);
    EXPECT_EQ(LivelloBatteria(101), 2);
    EXPECT_EQ(LivelloBatteria(150), 2);
    EXPECT_EQ(LivelloBatteria(151), 3);
    EXPECT_EQ(LivelloBatteria(200), 3);
    EXPECT_EQ(LivelloBatteria(201), 4);
    EXPECT_EQ(LivelloBatteria(255), 4);
}

TEST(DescriviBatteria, HasAWordForEachLevel)
{
    EXPECT_EQ(DescriviBatteria(50), u"(Scarichissima)"_s);
    EXPECT_EQ(DescriviBatteria(100), u"(Scarica)"_s);
    EXPECT_EQ(DescriviBatteria(150), u"(Media)"_s);
    EXPECT_EQ(DescriviBatteria(200), u"(Carica)"_s);
    EXPECT_EQ(DescriviBatteria(255), u"(Carichissima)"_s);
}
