#include "vision/Ricerca.h"

#include "tests/support/ErroreDi.h"
#include "tests/vision/RicercaLetterale.h"

#include <gtest/gtest.h>
#include <optional>
#include <random>

namespace {

constexpr qint32 lontano = 1000000;

// Colours that grow from pixel to pixel by 3000, which is less than the tolerance.
Matrice tuttiDiversi()
{
    Matrice pixel(80, 60);
    for (int riga = 1; riga <= 60; ++riga)
        for (int colonna = 1; colonna <= 80; ++colonna)
            pixel(colonna, riga) = 3000 * ((riga - 1) * 80 + colonna);
    return pixel;
}

Matrice ritaglio(const Matrice &pixel, int colonna, int riga, int W, int H)
{
    Matrice modello(80, 60);
    for (int r = 1; r <= H; ++r)
        for (int c = 1; c <= W; ++c)
            modello(c, r) = pixel(colonna + c - 1, riga + r - 1);
    return modello;
}

int numeroErrore(Ricerca &ricerca, const Matrice &modello, int W, int H)
{
    return erroreDi([&] { ricerca.cerca(modello, W, H); });
}

// A frame of one colour.
Matrice sfondo(qint32 colore)
{
    Matrice pixel(80, 60);
    for (int riga = 1; riga <= 60; ++riga)
        for (int colonna = 1; colonna <= 80; ++colonna)
            pixel(colonna, riga) = colore;
    return pixel;
}

} // namespace

TEST(Ricerca, FindsAPictureWhereItIs)
{
    const Matrice pixel = tuttiDiversi();
    Ricerca ricerca(pixel);
    Matrice modello = ritaglio(pixel, 30, 20, 20, 15);
    ASSERT_TRUE(ricerca.cerca(modello, 20, 15));
    EXPECT_EQ(ricerca.riga(), 20);
    // Three columns further left the colours are still within the tolerance.
    EXPECT_EQ(ricerca.colonna(), 27);
}

TEST(Ricerca, AColourMayDifferByTheToleranceInBothDirections)
{
    Matrice pixel = sfondo(lontano);
    pixel(40, 30) = Ricerca::Tolleranza;
    pixel(41, 30) = -Ricerca::Tolleranza;
    const Matrice modello(80, 60);
    Ricerca ricerca(pixel);
    ASSERT_TRUE(ricerca.cerca(modello, 2, 1));
    EXPECT_EQ(ricerca.colonna(), 40);
    EXPECT_EQ(ricerca.riga(), 30);
}

TEST(Ricerca, AColourMustNotDifferByMoreThanTheTolerance)
{
    Matrice pixel = sfondo(lontano);
    pixel(40, 30) = Ricerca::Tolleranza + 1;
    pixel(50, 30) = -Ricerca::Tolleranza - 1;
    const Matrice modello(80, 60);
    EXPECT_FALSE(Ricerca(pixel).cerca(modello, 1, 1));
}

TEST(Ricerca, RedHardlyCounts)
{
    // Full red and no red at all are within the tolerance, 40 steps of green are not.
    Matrice pixel = sfondo(lontano);
    pixel(40, 30) = 255;
    const Matrice modello(80, 60);
    EXPECT_TRUE(Ricerca(pixel).cerca(modello, 1, 1));
    pixel(40, 30) = 40 * 256;
    EXPECT_FALSE(Ricerca(pixel).cerca(modello, 1, 1));
}

TEST(Ricerca, AFailedAttemptGoesBackToItsStart)
{
    // The first pixel already matches one column earlier.
    Matrice pixel = sfondo(lontano);
    pixel(10, 10) = 0;
    pixel(11, 10) = 0;
    pixel(12, 10) = 50000;
    Matrice modello(80, 60);
    modello(2, 1) = 50000;
    Ricerca ricerca(pixel);
    ASSERT_TRUE(ricerca.cerca(modello, 2, 1));
    EXPECT_EQ(ricerca.colonna(), 11);
}

TEST(Ricerca, APictureAsWideOrHighAsTheFrameIsNeverFound)
{
    const Matrice pixel(80, 60);
    EXPECT_FALSE(Ricerca(pixel).cerca(pixel, 80, 1));
    EXPECT_FALSE(Ricerca(pixel).cerca(pixel, 1, 60));
}

TEST(Ricerca, APictureLargerThanTheFrameFails)
{
    const Matrice pixel(80, 60);
    Ricerca ricerca(pixel);
    EXPECT_EQ(numeroErrore(ricerca, pixel, 1, 61), Errore::Overflow);
    EXPECT_EQ(numeroErrore(ricerca, pixel, 81, 1), Errore::Overflow);
}

TEST(Ricerca, TheWidthIsIgnoredIfThereAreNoRows)
{
    const Matrice pixel(80, 60);
    Ricerca ricerca(pixel);
    EXPECT_EQ(numeroErrore(ricerca, pixel, 200, 60), 0);
}

TEST(Ricerca, TheLastColumnAndTheLastRowAreNotReached)
{
    Matrice pixel = sfondo(lontano);
    pixel(80, 30) = 0;
    pixel(40, 60) = 0;
    const Matrice modello(80, 60);
    EXPECT_FALSE(Ricerca(pixel).cerca(modello, 1, 1));
}

TEST(Ricerca, AnAttemptAtTheEndOfARowContinuesInTheNextRow)
{
    // For a picture two pixels wide the columns end at 78, where the attempt begins. Its second
    // pixel is compared with the start of the next row, and the picture counts as found.
    Matrice pixel = sfondo(lontano);
    pixel(78, 10) = 0;
    pixel(1, 11) = 50000;
    Matrice modello(80, 60);
    modello(2, 1) = 50000;
    Ricerca ricerca(pixel);
    ASSERT_TRUE(ricerca.cerca(modello, 2, 1));
    EXPECT_EQ(ricerca.colonna(), 78);
    EXPECT_EQ(ricerca.riga(), 10);
}

TEST(Ricerca, AnAttemptContinuesInTheScanForTheNextPicture)
{
    // The first scan ends during an attempt that began at its last place.
    Matrice pixel = sfondo(lontano);
    pixel(78, 59) = 0;
    pixel(1, 1) = 50000;
    Matrice primo(80, 60);
    primo(2, 1) = 70000000;
    Matrice secondo(80, 60);
    secondo(1, 1) = 50000;
    Ricerca ricerca(pixel);
    ASSERT_FALSE(ricerca.cerca(primo, 2, 1));
    // The match is at (1, 1), but the reported start is that of the other picture.
    ASSERT_TRUE(ricerca.cerca(secondo, 1, 1));
    EXPECT_EQ(ricerca.colonna(), 78);
    EXPECT_EQ(ricerca.riga(), 59);
}

TEST(Ricerca, AContinuedAttemptThatFailsSkipsThePlacesBeforeItsStart)
{
    Matrice pixel = sfondo(lontano);
    pixel(78, 59) = 0;
    pixel(40, 30) = 50000;
    Matrice primo(80, 60);
    primo(2, 1) = 70000000;
    Matrice secondo(80, 60);
    secondo(1, 1) = 50000;
    EXPECT_TRUE(Ricerca(pixel).cerca(secondo, 1, 1));
    Ricerca ricerca(pixel);
    ASSERT_FALSE(ricerca.cerca(primo, 2, 1));
    EXPECT_FALSE(ricerca.cerca(secondo, 1, 1));
}

TEST(Ricerca, AContinuedAttemptTooFarDownForTheNextPictureLeavesTheFrame)
{
    Matrice pixel = sfondo(lontano);
    pixel(78, 59) = 0;
    for (int riga = 59; riga <= 60; ++riga)
        pixel(79, riga) = 50000;
    Matrice primo(80, 60);
    primo(2, 1) = 70000000;
    Matrice secondo(80, 60);
    for (int riga = 1; riga <= 10; ++riga)
        secondo(1, riga) = 50000;
    Ricerca ricerca(pixel);
    ASSERT_FALSE(ricerca.cerca(primo, 2, 1));
    EXPECT_EQ(numeroErrore(ricerca, secondo, 1, 10), Matrice::FuoriIntervallo);
}

TEST(Ricerca, APictureWithoutASizeFailsInARowOfMatchingPixels)
{
    const Matrice pixel(80, 60);
    Ricerca ricerca(pixel);
    EXPECT_EQ(numeroErrore(ricerca, pixel, 0, 0), Matrice::FuoriIntervallo);
}

TEST(Ricerca, GivesTheSameAsTheSearchStepByStep)
{
    std::mt19937 caso(20);
    const auto fra = [&](int da, int a) { return std::uniform_int_distribution<int>(da, a)(caso); };
    int trovati = 0;
    int falliti = 0;
    for (int prova = 0; prova < 6000; ++prova) {
        // Few colours give many attempts; steps near the tolerance give close decisions.
        const int colori = fra(1, 4);
        const int passo = fra(0, 1) ? 10001 : 4000;
        Matrice pixel(80, 60);
        for (int riga = 1; riga <= 60; ++riga)
            for (int colonna = 1; colonna <= 80; ++colonna)
                pixel(colonna, riga) = fra(0, 30) == 0 ? fra(0, 0xFFFFFF) : passo * fra(0, colori);
        Ricerca ricerca(pixel);
        RicercaLetterale letterale(pixel);
        const int quante = fra(1, 4);
        for (int i = 0; i < quante; ++i) {
            const bool piccola = fra(0, 2) > 0;
            int W = piccola ? fra(1, 4) : fra(1, 79);
            int H = piccola ? fra(1, 4) : fra(1, 59);
            Matrice modello = ritaglio(pixel, fra(1, 81 - W), fra(1, 61 - H), W, H);
            if (fra(0, 3) == 0)
                modello(fra(1, W), fra(1, H)) = fra(-99999999, 99999999);
            // Wrong sizes, as in a damaged file.
            if (fra(0, 9) == 0)
                W = fra(-20, 90);
            if (fra(0, 9) == 0)
                H = fra(-20, 70);
            const EsitoRicerca atteso = letterale.cerca(modello, W, H);
            EsitoRicerca esito;
            try {
                if (ricerca.cerca(modello, W, H))
                    esito = {EsitoRicerca::Trovata, ricerca.colonna(), ricerca.riga()};
            } catch (const Errore &) {
                esito.come = EsitoRicerca::Fallita;
            }
            ASSERT_EQ(esito.come, atteso.come) << "run " << prova << ", " << W << " by " << H;
            ASSERT_EQ(esito.colonna, atteso.colonna) << "run " << prova;
            ASSERT_EQ(esito.riga, atteso.riga) << "run " << prova;
            trovati += esito.come == EsitoRicerca::Trovata;
            falliti += esito.come == EsitoRicerca::Fallita;
            // The search of a frame ends with the first picture that is found and with a failure.
            if (esito.come != EsitoRicerca::NonTrovata)
                break;
        }
    }
    // The comparison is useful only if all three results occur.
    EXPECT_GT(trovati, 1000);
    EXPECT_GT(falliti, 100);
}
