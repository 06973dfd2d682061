#include "base/Numeri.h"

#include "tests/support/Controlli.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

TEST(Numeri, ATextGivesItsLongestLeadingNumber)
{
    const struct
    {
        const char16_t *testo;
        double valore;
    } casi[] = {
        {u"0", 0},
        {u"12", 12},
        {u"-12", -12},
        {u"+7", 7},
        {u"3.5", 3.5},
        {u".5", 0.5},
        {u"5.", 5},
        {u"-.25", -0.25},
        {u"007", 7},
        {u"12 volte", 12},
        {u"  12", 12},
        {u"1 2 3", 123},
        {u" - 1 2", -12},
        {u"1\t2\r\n3", 123},
        {u"1.5.7", 1.5},
        {u"1,5", 1},
        {u"3-2", 3},
        {u"12a34", 12},
        {u"65535", 65535},
        // Without a number: 0.
        {u"", 0},
        {u"   ", 0},
        {u"abc", 0},
        {u"-", 0},
        {u"+", 0},
        {u".", 0},
        {u"-.", 0},
        {u"--5", 0},
        {u"+-5", 0},
        {u"a12", 0},
        {u"no", 0},
        {u",5", 0},
        {u"True", 0},
        {u"inf", 0},
        {u"nan", 0},
        {u"½", 0},
        // Formats that only Qt would take for numbers.
        {u"1e3", 1},
        {u"0x1F", 0},
        {u"\u0661", 0},
    };
    for (const auto &caso : casi)
        EXPECT_EQ(Numeri::Valore(QStringView(caso.testo)), caso.valore)
            << QString::fromUtf16(caso.testo).toStdString();
}

TEST(Numeri, BytesAreReadLikeTheSameText)
{
    EXPECT_EQ(Numeri::Valore(QByteArrayView(" 1 2;ab")), 12);
    EXPECT_EQ(Numeri::Valore(QByteArrayView("\xbd")), 0);
    EXPECT_EQ(Numeri::Valore(QByteArrayView("")), 0);
}

TEST(Numeri, ANumberOfHundredsOfDigitsIsTooLargeForEveryInteger)
{
    const QString enorme(400, u'9');
    EXPECT_EQ(erroreDi([&] { Numeri::Byte(enorme); }), 6);
    EXPECT_EQ(erroreDi([&] { Numeri::Intero(enorme); }), 6);
    EXPECT_EQ(erroreDi([&] { Numeri::Lungo(enorme); }), 6);
}

TEST(Numeri, AHalfIsRoundedToTheEvenNumber)
{
    const struct
    {
        double valore;
        int intero;
    } casi[] = {{0.5, 0}, {1.5, 2}, {2.5, 2},   {3.5, 4},  {-0.5, 0}, {-1.5, -2},   {-2.5, -2},
                {2.4, 2}, {2.6, 3}, {-2.6, -3}, {0.49, 0}, {0.51, 1}, {127.5, 128}, {254.5, 254}};
    for (const auto &caso : casi) {
        EXPECT_EQ(Numeri::Intero(caso.valore), caso.intero) << caso.valore;
        EXPECT_EQ(Numeri::Lungo(caso.valore), caso.intero) << caso.valore;
        if (caso.intero >= 0) {
            EXPECT_EQ(Numeri::Byte(caso.valore), caso.intero) << caso.valore;
        }
    }
}

TEST(Numeri, AByteIsFrom0To255)
{
    EXPECT_EQ(Numeri::Byte(0), 0);
    EXPECT_EQ(Numeri::Byte(255), 255);
    EXPECT_EQ(Numeri::Byte(255.4), 255);
    EXPECT_EQ(Numeri::Byte(-0.5), 0);
    for (const double troppo : {-1.0, -0.51, 255.5, 256.0, 1e9, -1e300})
        EXPECT_EQ(erroreDi([&] { Numeri::Byte(troppo); }), 6) << troppo;
}

TEST(Numeri, AShortIntegerIsFromMinus32768To32767)
{
    EXPECT_EQ(Numeri::Intero(32767), 32767);
    EXPECT_EQ(Numeri::Intero(-32768), -32768);
    for (const double troppo : {32768.0, 32767.5, -32769.0, -32768.51, 60000.0})
        EXPECT_EQ(erroreDi([&] { Numeri::Intero(troppo); }), 6) << troppo;
}

TEST(Numeri, ALongIntegerHas32Bits)
{
    EXPECT_EQ(Numeri::Lungo(2147483647.0), 2147483647);
    EXPECT_EQ(Numeri::Lungo(-2147483648.0), std::numeric_limits<qint32>::min());
    for (const double troppo : {2147483648.0, 2147483647.5, -2147483649.0, 1e300})
        EXPECT_EQ(erroreDi([&] { Numeri::Lungo(troppo); }), 6) << troppo;
}

TEST(Numeri, NanAndInfinityFitIntoNoInteger)
{
    EXPECT_EQ(erroreDi([] { Numeri::Byte(std::nan("")); }), 6);
    EXPECT_EQ(erroreDi([] { Numeri::Lungo(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(Numeri, ATruthValueIsANumberOrOneOfTwoWords)
{
    for (const auto *vero :
         {u"True", u"true", u"TRUE", u"1", u"-1", u"201", u"0.5", u" True ", u" 1"})
        EXPECT_TRUE(Numeri::Logico(QStringView(vero))) << QString::fromUtf16(vero).toStdString();
    for (const auto *falso : {u"False", u"false", u"FALSE", u"0", u"-0", u"0.0", u" 0 "})
        EXPECT_FALSE(Numeri::Logico(QStringView(falso))) << QString::fromUtf16(falso).toStdString();
}

TEST(Numeri, AnyOtherTextAsATruthValueGivesError13)
{
    for (const auto *altro : {u"", u" ", u"Vero", u"Falso", u"#TRUE#", u"Camera", u"1 volta",
                              u"nan", u"inf", u"-", u"0x1", u"True."})
        EXPECT_EQ(erroreDi([&] { Numeri::Logico(QStringView(altro)); }), 13)
            << QString::fromUtf16(altro).toStdString();
}

TEST(Numeri, TheTextOfATruthValueIsReadBackAsTheSameValue)
{
    EXPECT_EQ(Numeri::TestoLogico(true), u"True"_s);
    EXPECT_EQ(Numeri::TestoLogico(false), u"False"_s);
    EXPECT_TRUE(Numeri::Logico(Numeri::TestoLogico(true)));
    EXPECT_FALSE(Numeri::Logico(Numeri::TestoLogico(false)));
}
