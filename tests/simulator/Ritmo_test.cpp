#include "simulator/line/Ritmo.h"
#include <gtest/gtest.h>

TEST(Ritmo, At9600BaudASecondCarries960Bytes)
{
    Ritmo ritmo;
    EXPECT_EQ(ritmo.permessi(0, 5000), 0);
    EXPECT_EQ(ritmo.permessi(1000, 5000), 960);
}

TEST(Ritmo, BytesThatWentOutAreNotAllowedAgain)
{
    Ritmo ritmo;
    ritmo.permessi(0, 5000);
    ritmo.usciti(ritmo.permessi(100, 5000));
    EXPECT_EQ(ritmo.permessi(100, 5000), 0);
    EXPECT_EQ(ritmo.permessi(200, 5000), 96);
}

TEST(Ritmo, NeverMoreThanWaits)
{
    Ritmo ritmo;
    ritmo.permessi(0, 3);
    EXPECT_EQ(ritmo.permessi(1000, 3), 3);
}

TEST(Ritmo, APauseSavesNothingUp)
{
    Ritmo ritmo;
    ritmo.permessi(0, 10);
    ritmo.usciti(10);
    ritmo.riposa();
    EXPECT_EQ(ritmo.permessi(60000, 100), 0);
    EXPECT_EQ(ritmo.permessi(60010, 100), 9);
}

TEST(Ritmo, WithoutASpeedAllMayGo)
{
    Ritmo ritmo;
    ritmo.impostaBaud(0);
    EXPECT_EQ(ritmo.permessi(0, 70000), 70000);
}
