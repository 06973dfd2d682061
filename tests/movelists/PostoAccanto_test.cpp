// Where the editor opens: one screen, two, a small one, the console anywhere.
#include "movelists/PostoAccanto.h"

#include <gmock/gmock.h>

namespace {

constexpr Accanto accanto{13, 87};
constexpr QSize misura(340, 600);
const QRect schermo(0, 0, 1920, 1040);

QRect posto(const QRect &console, const QList<QRect> &schermi, QSize grande = misura)
{
    return postoAccanto({console.topLeft(), QSize(console.width(), 1)}, grande, accanto, schermi);
}

} // namespace

TEST(PostoAccanto, IsToTheRightAndALittleHigher)
{
    EXPECT_EQ(posto({100, 200, 900, 700}, {schermo}), QRect(1013, 113, 340, 600));
}

TEST(PostoAccanto, IsNeverHigherOrLowerThanTheScreen)
{
    EXPECT_EQ(posto({100, 0, 900, 700}, {schermo}), QRect(1013, 0, 340, 600));
    EXPECT_EQ(posto({100, -2000, 900, 700}, {schermo}), QRect(1013, 0, 340, 600));
    EXPECT_EQ(posto({100, 900, 900, 700}, {schermo}), QRect(1013, 440, 340, 600));
}

TEST(PostoAccanto, IsToTheLeftIfTheRightHasNoRoom)
{
    EXPECT_EQ(posto({1000, 200, 900, 700}, {schermo}), QRect(647, 113, 340, 600));
    // The console itself is half off the screen.
    EXPECT_EQ(posto({1500, 200, 900, 700}, {schermo}), QRect(1147, 113, 340, 600));
    // A sliver would be seen on the right.
    EXPECT_EQ(posto({970, 200, 600, 700}, {schermo}).left(), 617);
    EXPECT_EQ(posto({967, 200, 600, 700}, {schermo}).left(), 1580);
}

TEST(PostoAccanto, IsAtTheScreensRightEdgeIfNeitherSideHasRoom)
{
    EXPECT_EQ(posto({0, 0, 1920, 1040}, {schermo}), QRect(1567, 0, 340, 600));
    EXPECT_EQ(posto({-5000, 0, 900, 700}, {schermo}), QRect(1567, 0, 340, 600));
    EXPECT_EQ(posto({200, 0, 300, 300}, {{0, 0, 700, 1000}}), QRect(347, 0, 340, 600));
}

TEST(PostoAccanto, IsNoLargerThanTheScreen)
{
    const QRect piccolo(0, 0, 683, 360);
    EXPECT_EQ(posto({100, 50, 300, 300}, {piccolo}), QRect(330, 0, 340, 360));
    EXPECT_EQ(posto({0, 0, 683, 360}, {piccolo}, {900, 500}), piccolo);
}

TEST(PostoAccanto, GoesOnToTheNextScreenWhole)
{
    const QList<QRect> due{schermo, {1920, 0, 1280, 984}};
    EXPECT_EQ(posto({1000, 200, 910, 700}, due), QRect(1923, 113, 340, 600));
    // Not half here, half there.
    EXPECT_EQ(posto({1000, 200, 700, 700}, due), QRect(647, 113, 340, 600));
    // From the second screen's right edge, on the second screen.
    EXPECT_EQ(posto({2400, 200, 790, 700}, due), QRect(2047, 113, 340, 600));
    // To the left, on the first one.
    EXPECT_EQ(posto({1930, 200, 1270, 700}, due), QRect(1577, 113, 340, 600));
}

TEST(PostoAccanto, StaysOnTheConsolesScreenIfTheOtherOneLiesElsewhere)
{
    const QList<QRect> sopra{schermo, {2000, -2000, 1280, 1024}};
    EXPECT_EQ(posto({1000, 200, 910, 700}, sopra), QRect(647, 113, 340, 600));
    const QList<QRect> bassa{{0, 0, 1280, 1024}, {1280, 700, 1280, 1024}};
    EXPECT_TRUE(bassa[1].contains(posto({400, 500, 880, 400}, bassa)));
}

TEST(PostoAccanto, IsSomewhereWithoutAScreen)
{
    EXPECT_EQ(posto({100, 200, 900, 700}, {}).size(), misura);
}

TEST(Riportata, LeavesAWindowOfWhichEveryBitIsOnAScreen)
{
    EXPECT_EQ(riportata({10, 10, 300, 400}, {schermo}), QRect(10, 10, 300, 400));
    EXPECT_EQ(riportata({1800, 10, 300, 400}, {schermo, {1920, 0, 1280, 1024}}),
              QRect(1800, 10, 300, 400));
    EXPECT_EQ(riportata({1800, 10, 300, 400}, {}), QRect(1800, 10, 300, 400));
}

TEST(Riportata, BringsAnyOtherOntoTheNearestScreen)
{
    EXPECT_EQ(riportata({1800, 10, 300, 400}, {schermo}), QRect(1620, 10, 300, 400));
    EXPECT_EQ(riportata({-20, -30, 300, 400}, {schermo}), QRect(0, 0, 300, 400));
    EXPECT_EQ(riportata({2500, 600, 300, 400}, {schermo}), QRect(1620, 600, 300, 400));
    EXPECT_EQ(riportata({2500, 600, 300, 1400}, {schermo}), QRect(1620, 0, 300, 1040));
}
