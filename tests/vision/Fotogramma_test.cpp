#include "vision/Fotogramma.h"

#include "tests/support/ErroreDi.h"
#include "vision/Colore.h"

#include <gtest/gtest.h>

namespace {

constexpr int scala = 10;

// A row of 80 pixels. The first byte is the number of the row.
QByteArray riga(int numero)
{
    QByteArray byte(160, '\0');
    byte[0] = static_cast<char>(numero);
    byte[159] = '\x1F';
    return byte;
}

} // namespace

TEST(Fotogramma, TheSixtiethRowCompletesIt)
{
    Fotogramma fotogramma;
    for (int i = 1; i < 60; ++i)
        EXPECT_FALSE(fotogramma.aggiungi(riga(i), scala));
    EXPECT_TRUE(fotogramma.aggiungi(riga(60), scala));
    EXPECT_EQ(fotogramma.Riga, 60);
}

TEST(Fotogramma, PixelsGoFromLeftToRightAndRowsFromTopToBottom)
{
    Fotogramma fotogramma;
    for (int i = 1; i <= 60; ++i)
        fotogramma.aggiungi(riga(i), scala);
    for (int i = 1; i <= 60; ++i) {
        EXPECT_EQ(fotogramma.Pixel(1, i), ColorePixel(riga(i)));
        EXPECT_EQ(fotogramma.Pixel(40, i), 0);
        EXPECT_EQ(fotogramma.Pixel(80, i), 255 * 65536);
    }
}

TEST(Fotogramma, TheFirstByteOfTheNextTelegramIsIgnored)
{
    Fotogramma con;
    Fotogramma senza;
    con.aggiungi(riga(7) + '\x0D', scala);
    senza.aggiungi(riga(7), scala);
    for (int colonna = 1; colonna <= 80; ++colonna)
        EXPECT_EQ(con.Pixel(colonna, 1), senza.Pixel(colonna, 1));
}

TEST(Fotogramma, ARowThatIsTooShortFailsButCounts)
{
    Fotogramma fotogramma;
    EXPECT_EQ(erroreDi([&] { fotogramma.aggiungi(riga(9).left(101), scala); }),
              Errore::ChiamataNonValida);
    EXPECT_EQ(fotogramma.Riga, 1);
    EXPECT_EQ(fotogramma.Pixel(1, 1), ColorePixel(riga(9)));
}

TEST(Fotogramma, AnEmptyRowFails)
{
    Fotogramma fotogramma;
    EXPECT_EQ(erroreDi([&] { fotogramma.aggiungi({}, scala); }), Errore::ChiamataNonValida);
}

TEST(Fotogramma, ARowAfterTheLastFailsButCounts)
{
    Fotogramma fotogramma;
    fotogramma.Riga = 60;
    EXPECT_EQ(erroreDi([&] { fotogramma.aggiungi(riga(1), scala); }), Matrice::FuoriIntervallo);
    EXPECT_EQ(fotogramma.Riga, 61);
}

TEST(Fotogramma, TheRowCountStopsAtTheLimitOfAByte)
{
    Fotogramma fotogramma;
    fotogramma.Riga = 255;
    EXPECT_EQ(erroreDi([&] { fotogramma.aggiungi(riga(1), scala); }), Errore::Overflow);
    EXPECT_EQ(fotogramma.Riga, 255);
}

TEST(Fotogramma, TheScaleSetsColumnsAndRows)
{
    Fotogramma fotogramma;
    for (int i = 1; i < 30; ++i)
        EXPECT_FALSE(fotogramma.aggiungi(riga(i).left(80), 5));
    EXPECT_TRUE(fotogramma.aggiungi(riga(30).left(80), 5));
}
