#include "vision/Colore.h"

#include "base/Errore.h"
#include "shell/Gest_Variabili.h"

#include <gtest/gtest.h>

namespace {

qint32 colore(int b1, int b2)
{
    const char byte[] = {static_cast<char>(b1), static_cast<char>(b2)};
    return ColorePixel(QByteArrayView(byte, 2));
}

} // namespace

TEST(Colore, AllBitsSetAreWhite)
{
    EXPECT_EQ(colore(0xFF, 0xFF), 255 + 255 * 256 + 255 * 65536);
}

TEST(Colore, NoBitsSetAreBlack)
{
    EXPECT_EQ(colore(0, 0), 0);
}

TEST(Colore, TheUpperFiveBitsArePureRed)
{
    EXPECT_EQ(colore(0xF8, 0x00), 255);
}

TEST(Colore, TheSixBitsInTheMiddleArePureGreen)
{
    EXPECT_EQ(colore(0x07, 0xE0), 255 * 256);
}

TEST(Colore, TheLowerFiveBitsArePureBlue)
{
    EXPECT_EQ(colore(0x00, 0x1F), 255 * 65536);
}

TEST(Colore, DivisionsTruncateForEveryPairOfBytes)
{
    for (int b1 = 0; b1 < 256; ++b1) {
        for (int b2 = 0; b2 < 256; ++b2) {
            const auto byte1 = static_cast<quint8>(b1);
            const auto byte2 = static_cast<quint8>(b2);
            const int rosso = Proporzione(static_cast<quint8>(BitAlti(byte1, 5)), 31, 255);
            const int campoVerde = ModuloByte(byte1, 8) * 8 + BitAlti(byte2, 3);
            const int verde = Proporzione(static_cast<quint8>(campoVerde), 63, 255);
            const int blu = Proporzione(ModuloByte(byte2, 32), 31, 255);
            ASSERT_EQ(colore(b1, b2), rosso + verde * 256 + blu * 65536) << b1 << ", " << b2;
        }
    }
}

TEST(Colore, BytesAfterThePixelAreIgnored)
{
    EXPECT_EQ(ColorePixel(QByteArrayLiteral("\xF8\x00\xFF\xFF")), 255);
}

TEST(Colore, OneByteFails)
{
    EXPECT_THROW(ColorePixel(QByteArrayView("\xF8", 1)), Errore);
}

TEST(Colore, QtGetsTheSameChannels)
{
    EXPECT_EQ(rgb(0x123456), qRgb(0x56, 0x34, 0x12));
}

TEST(Colore, BitsBeyondTheChannelsAreDropped)
{
    EXPECT_EQ(rgb(99999999), rgb(99999999 & 0xFFFFFF));
    EXPECT_EQ(rgb(-1), qRgb(255, 255, 255));
}
