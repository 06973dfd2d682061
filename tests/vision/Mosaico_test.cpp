#include "vision/Mosaico.h"

#include "vision/Colore.h"

#include <QPainter>
#include <gtest/gtest.h>
#include <random>

namespace {

Matrice aCaso(int colonne, int righe)
{
    std::mt19937 caso(1);
    Matrice colori(colonne, righe);
    for (int riga = 1; riga <= righe; ++riga)
        for (int colonna = 1; colonna <= colonne; ++colonna)
            colori(colonna, riga) = static_cast<qint32>(caso() & 0xFFFFFF);
    return colori;
}

} // namespace

class MosaicoProva : public testing::TestWithParam<int>
{
};

TEST_P(MosaicoProva, IsTheSameAsOneSquareForEachPixel)
{
    const int lato = GetParam();
    const Matrice colori = aCaso(80, 60);
    QImage attesa(80 * lato, 60 * lato, QImage::Format_RGB32);
    attesa.fill(Qt::black);
    QPainter pittore(&attesa);
    for (int riga = 1; riga <= 60; ++riga)
        for (int colonna = 1; colonna <= 80; ++colonna)
            pittore.fillRect((colonna - 1) * lato, (riga - 1) * lato, lato, lato,
                             QColor(rgb(colori(colonna, riga))));
    pittore.end();
    EXPECT_EQ(mosaico(colori, 80, 60, lato), attesa);
}

INSTANTIATE_TEST_SUITE_P(Lati, MosaicoProva, testing::Values(1, 2, 3, 7, 10));

TEST(Mosaico, DrawsTheUpperLeftPartOnly)
{
    const QImage immagine = mosaico(aCaso(80, 60), 20, 15, 2);
    EXPECT_EQ(immagine.size(), QSize(40, 30));
}

TEST(Mosaico, IsNullWithoutASize)
{
    const Matrice colori = aCaso(80, 60);
    EXPECT_TRUE(mosaico(colori, 80, 60, 0).isNull());
    EXPECT_TRUE(mosaico(colori, 0, 5, 2).isNull());
    EXPECT_TRUE(mosaico(colori, 5, -1, 2).isNull());
}
