// Rectangles on the video surface as pixels of the frame.
#include "vision/Area.h"

#include "tests/support/ErroreDi.h"

#include <gtest/gtest.h>

namespace {

void attesa(const QRectF &rettangolo, int zoom, int left, int top, int width, int height)
{
    const Area area = areaInFotogramma(rettangolo, zoom);
    EXPECT_EQ(area.left, left);
    EXPECT_EQ(area.top, top);
    EXPECT_EQ(area.width, width);
    EXPECT_EQ(area.height, height);
}

} // namespace

TEST(AreaInFotogramma, IsTheRectangleDividedByTheZoom)
{
    attesa({100, 200, 60, 90}, 10, 10, 20, 6, 9);
    attesa({109, 209, 69, 99}, 10, 10, 20, 6, 9);
    attesa({10, 20, 6, 9}, 1, 10, 20, 6, 9);
}

TEST(AreaInFotogramma, HasLeftAndTopOfAtLeastOne)
{
    attesa({2, 3, 50, 40}, 10, 1, 1, 5, 4);
}

TEST(AreaInFotogramma, IsCutToTheFrame)
{
    attesa({700, 500, 600, 700}, 10, 70, 50, 10, 10);
    attesa({0, 0, 2000, 2000}, 10, 1, 1, 79, 59);
}

TEST(AreaInFotogramma, IsOfSizeZeroForAPoint)
{
    attesa({105, 203, 1, 1}, 10, 10, 20, 0, 0);
}

TEST(AreaInFotogramma, FailsAtZoomZeroAndFarOutside)
{
    EXPECT_EQ(erroreDi([] { areaInFotogramma({1, 1, 1, 1}, 0); }), Errore::DivisionePerZero);
    EXPECT_EQ(erroreDi([] { areaInFotogramma({0, 0, 2560, 1}, 10); }), Errore::Overflow);
    EXPECT_EQ(erroreDi([] { areaInFotogramma({805, 0, 1, 1}, 10); }), 0);
    EXPECT_EQ(erroreDi([] { areaInFotogramma({815, 0, 1, 1}, 10); }), Errore::Overflow);
}
