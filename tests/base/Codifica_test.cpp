#include "base/Codifica.h"

#include "tests/support/Controlli.h"

static QByteArray tuttiIByte()
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    return tutti;
}

TEST(Codifica, All256BytesSurviveTheRoundTrip)
{
    const QString testo = Codifica::daByte(tuttiIByte());
    EXPECT_EQ(testo.size(), 256);
    EXPECT_EQ(Codifica::inByte(testo), tuttiIByte());
}

TEST(Codifica, NoTwoBytesBecomeTheSameCharacter)
{
    const QString testo = Codifica::daByte(tuttiIByte());
    EXPECT_EQ(QSet<QChar>(testo.begin(), testo.end()).size(), 256);
}

TEST(Codifica, BytesBecomeTheCharactersOfTheCodePage)
{
    const struct
    {
        int byte;
        char16_t carattere;
    } casi[] = {{65, u'A'},    {189, u'½'},   {188, u'¼'},   {176, u'°'},   {224, u'à'},
                {232, u'è'},   {249, u'ù'},   {128, u'€'},   {130, u'‚'},   {133, u'…'},
                {145, u'‘'},   {146, u'’'},   {150, u'–'},   {159, u'Ÿ'},   {255, u'ÿ'},
                {160, 0x00A0}, {129, 0x0081}, {141, 0x008D}, {143, 0x008F}, {144, 0x0090},
                {157, 0x009D}, {0, 0},        {127, 0x007F}};
    for (const auto &caso : casi) {
        const QByteArray byte(1, static_cast<char>(caso.byte));
        EXPECT_EQ(Codifica::daByte(byte), QString(QChar(caso.carattere))) << caso.byte;
        EXPECT_EQ(Codifica::inByte(QString(QChar(caso.carattere))), byte) << caso.byte;
    }
}

TEST(Codifica, ACharacterOutsideTheCodePageBecomesAQuestionMark)
{
    EXPECT_EQ(Codifica::inByte(u"aЖb"), "a?b");
    EXPECT_EQ(Codifica::inByte(u"中"), "?");
    EXPECT_EQ(Codifica::inByte(QString(QChar(0x0080))), "?");
    EXPECT_EQ(Codifica::inByte(QString(QChar(0xFFFD))), "?");
    EXPECT_EQ(Codifica::inByte(u"😀"), "??");
}

TEST(Codifica, NoBytesGiveAnEmptyTextAndBack)
{
    EXPECT_EQ(Codifica::daByte(QByteArray()), QString());
    EXPECT_EQ(Codifica::inByte(QString()), QByteArray());
}
