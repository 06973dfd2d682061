#include "vision/Acquisizione.h"

#include <gmock/gmock.h>
#include <vector>

using testing::ElementsAre;
using testing::SizeIs;

namespace {

struct Punto
{
    int colonna;
    int riga;
    qint32 colore;
    bool operator==(const Punto &) const = default;
};

class Copia : public testing::Test
{
protected:
    Copia()
    {
        // The value of each pixel is 1000 * column + row.
        for (int riga = 1; riga <= 60; ++riga)
            for (int colonna = 1; colonna <= 80; ++colonna)
                pixel(colonna, riga) = 1000 * colonna + riga;
    }
    bool prosegui()
    {
        punti.clear();
        return acquisizione.prosegui([this](int c, int r, qint32 colore) {
            punti.push_back({c, r, colore});
        });
    }
    int inTutto()
    {
        size_t tutti = 0;
        bool finita = false;
        while (!finita) {
            finita = prosegui();
            tutti += punti.size();
        }
        return static_cast<int>(tutti);
    }

    Matrice pixel{80, 60};
    Acquisizione acquisizione;
    std::vector<Punto> punti;
};

} // namespace

TEST_F(Copia, TakesTheAreaOnePixelToTheRightAndBelow)
{
    acquisizione.inizia(pixel, 10, 20, 2, 2);
    EXPECT_TRUE(prosegui());
    EXPECT_THAT(punti, ElementsAre(Punto{1, 1, 11021}, Punto{2, 1, 12021}, Punto{1, 2, 11022},
                                   Punto{2, 2, 12022}));
}

TEST_F(Copia, CopiesTwoRowsAtEachCall)
{
    acquisizione.inizia(pixel, 1, 1, 3, 5);
    EXPECT_FALSE(prosegui());
    EXPECT_THAT(punti, SizeIs(6));
    EXPECT_FALSE(prosegui());
    EXPECT_THAT(punti, SizeIs(6));
    EXPECT_EQ(punti.front(), (Punto{1, 3, 2004}));
    EXPECT_TRUE(prosegui());
    EXPECT_THAT(punti, SizeIs(3));
}

TEST_F(Copia, KeepsTheFrameAsItWasAtTheStart)
{
    acquisizione.inizia(pixel, 1, 1, 1, 3);
    prosegui();
    pixel(2, 4) = 0;
    prosegui();
    EXPECT_THAT(punti, ElementsAre(Punto{1, 3, 2004}));
}

TEST_F(Copia, CopiesOnePixelOfAnAreaWithoutASize)
{
    acquisizione.inizia(pixel, 4, 5, 0, 0);
    EXPECT_TRUE(prosegui());
    EXPECT_THAT(punti, ElementsAre(Punto{1, 1, 5006}));
}

TEST_F(Copia, ACompleteCopyCopiesNothingMore)
{
    acquisizione.inizia(pixel, 4, 5, 0, 0);
    prosegui();
    EXPECT_TRUE(prosegui());
    EXPECT_TRUE(punti.empty());
    EXPECT_TRUE(acquisizione.finita());
}

TEST_F(Copia, ReachesTheLastPixelOfTheFrame)
{
    acquisizione.inizia(pixel, 1, 1, 79, 59);
    EXPECT_EQ(inTutto(), 79 * 59);
    EXPECT_EQ(punti.back().colore, 80060);
}

TEST_F(Copia, FailsOutsideTheFrame)
{
    acquisizione.inizia(pixel, 80, 1, 0, 0);
    EXPECT_THROW(prosegui(), Errore);
    acquisizione.inizia(pixel, 1, 60, 0, 0);
    EXPECT_THROW(prosegui(), Errore);
}
