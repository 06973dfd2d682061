#include "vision/RecordImmagine.h"

#include "tests/support/ErroreDi.h"
#include "vision/ArchivioImmagini.h"
#include "vision/NomeDoppio.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Record, TheNameIsBetweenTheQuotationMarks)
{
    EXPECT_EQ(nomeImmagine(u"\"Pallone\",2,1,5,6"_s), u"Pallone"_s);
}

TEST(Record, ACommaInTheNameCutsIt)
{
    EXPECT_EQ(nomeImmagine(u"\"Palla, rossa\",2,1,5,6"_s), u"Pall"_s);
}

TEST(Record, AnInvalidRecordHasNoName)
{
    EXPECT_EQ(nomeImmagine({}), QString());
    EXPECT_EQ(nomeImmagine(u"Pallone"_s), QString());
    EXPECT_EQ(nomeImmagine(u",,"_s), QString());
    EXPECT_EQ(nomeImmagine(u"\"\",1,1,0"_s), QString());
}

TEST(Record, TheSizeFollowsTheFirstTwoCommas)
{
    const Misure misure = misureImmagine(u"\"Pallone\",20,15,5,6"_s);
    EXPECT_EQ(misure.W, 20);
    EXPECT_EQ(misure.H, 15);
}

TEST(Record, ACommaInTheNameShiftsTheSize)
{
    const Misure misure = misureImmagine(u"\"Palla,rossa\",20,15,5,6"_s);
    EXPECT_EQ(misure.W, 0);
    EXPECT_EQ(misure.H, 20);
}

TEST(Record, AnEmptyRecordHasNoSize)
{
    const Misure misure = misureImmagine({});
    EXPECT_EQ(misure.W, 0);
    EXPECT_EQ(misure.H, 0);
}

TEST(Record, NegativeAndFractionalSizesAreNotChanged)
{
    const Misure misure = misureImmagine(u"\"a\",-3,1.5"_s);
    EXPECT_EQ(misure.W, -3);
    EXPECT_EQ(misure.H, 1.5);
}

TEST(Record, ColoursAreReadRowByRow)
{
    Matrice modello(80, 60);
    leggiModello("\"a\",3,2,1,2,3,4,5,6", 3, 2, modello);
    EXPECT_EQ(modello(1, 1), 1);
    EXPECT_EQ(modello(3, 1), 3);
    EXPECT_EQ(modello(1, 2), 4);
    EXPECT_EQ(modello(3, 2), 6);
}

TEST(Record, AColourHasEightCharactersAtMost)
{
    Matrice modello(80, 60);
    leggiModello("\"a\",3,1,1677721599,-16777216,12345678", 3, 1, modello);
    EXPECT_EQ(modello(1, 1), 16777215);
    EXPECT_EQ(modello(2, 1), -1677721);
    EXPECT_EQ(modello(3, 1), 12345678);
}

TEST(Record, TheFractionOfAColourIsCutOff)
{
    Matrice modello(80, 60);
    leggiModello("\"a\",2,1,2.9,-2.9", 2, 1, modello);
    EXPECT_EQ(modello(1, 1), 2);
    EXPECT_EQ(modello(2, 1), -2);
}

TEST(Record, WithTooFewCommasTheReadingContinuesAtTheStart)
{
    Matrice modello(80, 60);
    leggiModello("\"a\",4,1,7", 4, 1, modello);
    EXPECT_EQ(modello(1, 1), 7);
    EXPECT_EQ(modello(2, 1), 0);
    EXPECT_EQ(modello(3, 1), 4);
    EXPECT_EQ(modello(4, 1), 1);
}

TEST(Record, AnEmptyRecordIsReadAsZeros)
{
    Matrice modello(80, 60);
    leggiModello({}, 2, 2, modello);
    EXPECT_EQ(modello(2, 2), 0);
}

TEST(Record, APictureWithoutASizeHasNothingToRead)
{
    Matrice modello(80, 60);
    leggiModello("\"a\",0,0,5", 0, 0, modello);
    leggiModello("\"a\",-2,3,5", -2, 3, modello);
    leggiModello("\"a\",0,1677721599,5", 0, 1677721599, modello);
    EXPECT_EQ(modello(1, 1), 0);
}

TEST(Record, ALargerPictureThanTheFrameFails)
{
    Matrice modello(80, 60);
    EXPECT_EQ(erroreDi([&] { leggiModello("\"a\",81,1,5", 81, 1, modello); }),
              Matrice::FuoriIntervallo);
    EXPECT_EQ(erroreDi([&] { leggiModello("\"a\",1,61,5", 1, 61, modello); }),
              Matrice::FuoriIntervallo);
}

TEST(Record, TheFirstRecordHasNoLineEnd)
{
    EXPECT_EQ(aggiungiRecord({}, "Pallone", "1,1,5"), "\"Pallone\",1,1,5");
}

TEST(Record, TheSecondRecordFollowsASeparator)
{
    EXPECT_EQ(aggiungiRecord("\"Pallone\",1,1,5", "Tazza", "1,1,6"),
              "\"Pallone\",1,1,5\r\"Tazza\",1,1,6");
}

TEST(NomeDoppio, TheBeginningOfAStoredNameIsADuplicate)
{
    EXPECT_TRUE(nomeDoppio("\"Pallone\",1,1,5", "Pal"));
    EXPECT_TRUE(nomeDoppio("\"Pallone\",1,1,5", "Pallone"));
}

TEST(NomeDoppio, ALongerNameIsNoDuplicate)
{
    EXPECT_FALSE(nomeDoppio("\"Pallone\",1,1,5", "Pallone1"));
}

TEST(NomeDoppio, CapitalsAndSmallLettersDiffer)
{
    EXPECT_FALSE(nomeDoppio("\"Pallone\",1,1,5", "pallone"));
}

TEST(NomeDoppio, FindsALaterNameOfTheSameLength)
{
    EXPECT_TRUE(nomeDoppio("\"Tazza\",1,1,5\r\"Palla\",1,1,5", "Palla"));
}

TEST(NomeDoppio, ClosingQuotationMarksAreExaminedToo)
{
    // The new name is shorter than the stored one, so the jump ends before the closing mark.
    EXPECT_TRUE(nomeDoppio("\"Tazzona\",1,1,5", ",1"));
}

TEST(NomeDoppio, TheClosingMarkOfANameOfTheSameLengthIsSkipped)
{
    EXPECT_FALSE(nomeDoppio("\"Tazza\",1,1,5", ",1,1,"));
}

TEST(NomeDoppio, ALongNameCanSkipAStoredOne)
{
    // The new name has eleven characters: the jump from "Re" skips the next opening mark and ends
    // before its closing one.
    EXPECT_FALSE(nomeDoppio("\"Re\",1,1,5\r\"Pallonetto1\",1,1,5", "Pallonetto1"));
}

TEST(NomeDoppio, ATextWithoutQuotationMarksIsComparedFromItsStart)
{
    EXPECT_TRUE(nomeDoppio("Pallone", "Pal"));
    EXPECT_FALSE(nomeDoppio("Pallone", "Tazza"));
    EXPECT_FALSE(nomeDoppio("P", "Pallone"));
}

TEST(AggiungiRecord, ALineBreakInANameBecomesABlank)
{
    EXPECT_EQ(aggiungiRecord({}, "Pal\rla\nros\r\nsa", "1,1,5"), "\"Pal la ros  sa\",1,1,5");
}

class FileImmagini : public testing::Test
{
protected:
    FileImmagini() { QDir::setCurrent(cartella.path()); }
    ~FileImmagini() override { QDir::setCurrent(prima); }
    static void scrivi(const QByteArray &testo)
    {
        QFile file(fileImmagini());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(testo);
    }

    QString prima = QDir::currentPath();
    QTemporaryDir cartella;
};

TEST_F(FileImmagini, GivesTheRecordAtAnIndex)
{
    scrivi("\"a\",1,1,5\r\"b\",1,1,6");
    EXPECT_EQ(leggiRecord(0), "\"a\",1,1,5");
    EXPECT_EQ(leggiRecord(1), "\"b\",1,1,6");
}

TEST_F(FileImmagini, AFileThatIsTooShortFailsAndIsClosed)
{
    scrivi("\"a\",1,1,5");
    EXPECT_EQ(erroreDi([] { leggiRecord(1); }), Errore::FineDelFile);
    EXPECT_EQ(leggiRecord(0), "\"a\",1,1,5");
}

TEST_F(FileImmagini, AnEmptyFileHasNoRecord)
{
    scrivi({});
    EXPECT_EQ(erroreDi([] { leggiRecord(0); }), Errore::FineDelFile);
}

TEST_F(FileImmagini, AMissingFileHasItsOwnError)
{
    EXPECT_EQ(erroreDi([] { leggiRecord(0); }), Errore::FileNonTrovato);
}

TEST_F(FileImmagini, EveryLineEndEndsARecord)
{
    scrivi("\"a\",1,1,5\r\"b\",1,1,6\r\n\"c\",1,1,7\n\"d\",1,1,8\r\n");
    EXPECT_EQ(leggiRecord(1), "\"b\",1,1,6");
    EXPECT_EQ(leggiRecord(2), "\"c\",1,1,7");
    EXPECT_EQ(leggiRecord(3), "\"d\",1,1,8");
    EXPECT_EQ(erroreDi([] { leggiRecord(4); }), Errore::FineDelFile);
}

TEST_F(FileImmagini, ARecordThatALineBreakHasSplitIsReadAsTwo)
{
    scrivi("\"a\",1,1,5\r\"Pal\rla\",1,1,6\r\"c\",1,1,7");
    EXPECT_EQ(leggiRecord(0), "\"a\",1,1,5");
    const QString meta = QString::fromLatin1(leggiRecord(1));
    EXPECT_EQ(nomeImmagine(meta), QString());
    EXPECT_EQ(misureImmagine(meta).W, 0);
    EXPECT_EQ(leggiRecord(2), "la\",1,1,6");
    EXPECT_EQ(leggiRecord(3), "\"c\",1,1,7");
}
