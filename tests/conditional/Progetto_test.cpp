// The project file, byte by byte.
#include "conditional/Progetto.h"

#include "base/Errore.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

using Liste = QList<Progetto::Lista>;

const Liste esempio = {{u"danza.sqm"_s, false, u"00:00:00,no,no,no,no"_s},
                       {u"già fatto.sqm"_s, true, u"no,101,25,3,4"_s},
                       {u"saluto.sqm"_s, true, u"no,no,25,no,no"_s}};

const QByteArray file = " 3 \r\n"
                        "\"danza.sqm\",#FALSE#,\"00:00:00,no,no,no,no\"\r\n"
                        "\"gi\xE0 fatto.sqm\",#TRUE#,\"no,101,25,3,4\"\r\n"
                        "\"saluto.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n";

struct Letto
{
    Liste liste;
    int errore = 0;
};

Letto leggi(const QByteArray &byte)
{
    Letto letto;
    try {
        Progetto::leggi(byte, [&](const Progetto::Lista &lista) { letto.liste += lista; });
    } catch (const Errore &errore) {
        letto.errore = errore.numero();
    }
    return letto;
}

} // namespace

namespace Progetto {
static void PrintTo(const Lista &lista, std::ostream *uscita)
{
    *uscita << lista.nome.toStdString() << '|' << lista.selezionata << '|'
            << lista.condizione.toStdString();
}
} // namespace Progetto

TEST(Progetto, IsWrittenToTheLetter)
{
    EXPECT_EQ(Progetto::scritto(esempio), file);
    EXPECT_EQ(Progetto::scritto({}), " 0 \r\n");
}

TEST(Progetto, IsReadAsItWasWritten)
{
    const Letto letto = leggi(file);
    EXPECT_EQ(letto.errore, 0);
    EXPECT_EQ(letto.liste, esempio);
    EXPECT_EQ(leggi(" 0 \r\n").liste, Liste());
    EXPECT_EQ(leggi(" 0 \r\n").errore, 0);
}

TEST(Progetto, CutAtEveryByteItKeepsTheRecordsThatAreWhole)
{
    // Where each record's last quote stands: from there on the record is whole.
    QList<qsizetype> interi;
    for (qsizetype fine = file.indexOf("\"\r\n"); fine >= 0;
         fine = file.indexOf("\"\r\n", fine + 1))
        interi += fine + 1;
    ASSERT_EQ(interi.size(), 3);
    for (qsizetype n = 0; n <= file.size(); ++n) {
        const Letto letto = leggi(file.first(n));
        qsizetype quanti = 0;
        while (quanti < 3 && n >= interi[quanti])
            ++quanti;
        EXPECT_EQ(letto.liste, esempio.first(quanti)) << n;
        EXPECT_EQ(letto.errore, quanti == 3 ? 0 : int{Errore::FineDelFile}) << n;
    }
}

TEST(Progetto, TheCountSaysHowManyRecordsAreRead)
{
    QByteArray altro = file;
    altro[1] = '2';
    EXPECT_EQ(leggi(altro).liste, esempio.first(2));
    EXPECT_EQ(leggi(altro).errore, 0);
    altro[1] = '4';
    EXPECT_EQ(leggi(altro).liste, esempio);
    EXPECT_EQ(leggi(altro).errore, Errore::FineDelFile);
}

TEST(Progetto, ACountThatIsNoneReadsNothing)
{
    const QByteArray dopo = file.sliced(5);
    for (const char *conteggio : {"-1\r\n", "tre\r\n", "0\r\n", ",\r\n", "\"3\"\r\n"}) {
        const Letto letto = leggi(conteggio + dopo);
        EXPECT_EQ(letto.liste, Liste()) << conteggio;
        EXPECT_EQ(letto.errore, 0) << conteggio;
    }
    EXPECT_EQ(leggi("99999999999\r\n" + dopo).errore, Errore::Overflow);
    EXPECT_EQ(leggi("").errore, Errore::FineDelFile);
    EXPECT_EQ(leggi(" \r\n ").errore, Errore::FineDelFile);
}

TEST(Progetto, AHugeCountEndsWithTheFile)
{
    const Letto letto = leggi("2147483647\r\n" + file.sliced(5));
    EXPECT_EQ(letto.liste, esempio);
    EXPECT_EQ(letto.errore, Errore::FineDelFile);
}

TEST(Progetto, OtherLineEndsAndBlanksAreRead)
{
    QByteArray altro = file;
    EXPECT_EQ(leggi(altro.replace("\r\n", "\n")).liste, esempio);
    EXPECT_EQ(leggi(altro.replace("\n", "\r")).liste, esempio);
    EXPECT_EQ(leggi(altro.replace("\r", "\r\n\r\n")).liste, esempio);
    EXPECT_EQ(leggi(altro.replace("\",", "\" ,\t").replace("#,", "#  , ")).liste, esempio);
    EXPECT_EQ(leggi("1\n\"a.sqm\",#TRUE#,\"no\"   ").liste, (Liste{{u"a.sqm"_s, true, u"no"_s}}));
}

TEST(Progetto, FieldsWithoutQuotesAreRead)
{
    const Letto letto = leggi("2\r\ndanza.sqm,#FALSE#,00:00:00,no,no,no,no\r\n"
                              "saluto.sqm,#TRUE#,no,no,25,no,no\r\n");
    EXPECT_EQ(letto.errore, 0);
    EXPECT_EQ(letto.liste, (Liste{esempio[0], esempio[2]}));
}

TEST(Progetto, TheFlagIsAnyTruthValue)
{
    const std::pair<const char *, bool> segni[] = {
        {"#TRUE#", true}, {"#true#", true},   {"True", true},   {"\"True\"", true}, {"-1", true},
        {"1", true},      {"#FALSE#", false}, {"False", false}, {"0", false}};
    for (const auto &[segno, valore] : segni) {
        const Letto letto = leggi(QByteArray("1\r\n\"a.sqm\",") + segno + ",\"no\"\r\n");
        ASSERT_EQ(letto.liste.size(), 1) << segno;
        EXPECT_EQ(letto.liste[0].selezionata, valore) << segno;
    }
}

TEST(Progetto, ARecordThatIsNoneEndsTheReading)
{
    const QByteArray prima = " 2 \r\n\"a.sqm\",#TRUE#,\"no\"\r\n";
    const Liste una = {{u"a.sqm"_s, true, u"no"_s}};
    for (const char *record :
         {"\"b.sqm\",#FORSE#,\"no\"\r\n", "\"b.sqm\",,\"no\"\r\n", "\"b.sqm\",##,\"no\"\r\n",
          "b.sqm\r\n#TRUE#\r\nno\r\n", "b.sqm,#TRUE#\r\n", "12\r\n", "\x01\x02\r\n"}) {
        const Letto letto = leggi(prima + record);
        EXPECT_EQ(letto.liste, una) << record;
        EXPECT_EQ(letto.errore, Errore::TipoNonCorrispondente) << record;
    }
}

TEST(Progetto, QuotesInANameAreReadBack)
{
    const Liste liste = {
        {u"\"evviva\".sqm"_s, true, u"no"_s},      {u"\".sqm"_s, false, u"no"_s},
        {u"\"b\", c.sqm"_s, false, u"no"_s},       {u"d\",e\".sqm"_s, true, u"no"_s},
        {u"a \"b\" c.sqm"_s, true, u"\"x\",no"_s}, {u"ultima.sqm"_s, true, u"no,no,25,no,no"_s}};
    EXPECT_EQ(leggi(Progetto::scritto(liste)).liste, liste);
}

TEST(Progetto, AFlagWithoutItsSignsDoesNotReachForTheNextRecords)
{
    EXPECT_EQ(leggi("2\r\n\"a.sqm\",True,\"no\"\r\n\"b.sqm\",#FALSE#,\"no\"\r\n").liste,
              (Liste{{u"a.sqm"_s, true, u"no"_s}, {u"b.sqm"_s, false, u"no"_s}}));
}

TEST(Progetto, LongAndAccentedTextsAreReadBack)
{
    const Liste liste = {{QString(10'000, u'è') + u".sqm"_s, true, QString(10'000, u'9')},
                         {u"così, però.sqm"_s, true, QString()},
                         {QString(), false, u"più righe\r\nnon ce ne sono"_s}};
    EXPECT_EQ(leggi(Progetto::scritto(liste)).liste, liste);
}

TEST(Progetto, ACharacterThatTheCodePageLacksIsAQuestionMark)
{
    EXPECT_EQ(Progetto::scritto({{u"日.sqm"_s, true, u"no"_s}}),
              " 1 \r\n\"?.sqm\",#TRUE#,\"no\"\r\n");
}

TEST(Progetto, AnyByteInAnyPlaceIsSurvived)
{
    for (qsizetype n = 0; n < file.size(); ++n) {
        for (const char altro : {'\0', '"', ',', '#', '\r', '\n', ' ', '\xFF'}) {
            QByteArray guasto = file;
            guasto[n] = altro;
            const Letto letto = leggi(guasto);
            EXPECT_THAT(letto.errore,
                        testing::AnyOf(0, Errore::FineDelFile, Errore::TipoNonCorrispondente));
            EXPECT_LE(letto.liste.size(), 3);
        }
    }
}
