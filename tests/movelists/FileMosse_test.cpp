// The list file: written byte by byte, read field by field.
#include "movelists/FileMosse.h"

#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Errore.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

struct Letto
{
    QStringList righe;
    int errore = 0;
};

class FileMosseTest : public testing::Test
{
protected:
    ~FileMosseTest() override { Archivio::abbandona(); }

    Letto leggi(const QByteArray &contenuto)
    {
        cartella.scrivi(u"lista.sqm"_s, contenuto);
        Letto letto;
        try {
            Archivio::apri(1, u"lista.sqm"_s, Archivio::Modo::Lettura);
            FileMosse::leggi(1, [&](const QString &riga) { letto.righe += riga; });
        } catch (const Errore &errore) {
            letto.errore = errore.numero();
        }
        Archivio::abbandona();
        return letto;
    }

    QStringList righe(const QByteArray &contenuto)
    {
        const Letto letto = leggi(contenuto);
        EXPECT_EQ(letto.errore, 0);
        return letto.righe;
    }

    CartellaDiProva cartella;
};

} // namespace

TEST_F(FileMosseTest, AListIsItsCountAndItsLines)
{
    EXPECT_EQ(FileMosse::scritto({u"Avanti piano"_s, u"Stop"_s}),
              " 1 \r\nAvanti piano\r\nStop\r\n");
    EXPECT_EQ(FileMosse::scritto({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s}).first(5), " 4 \r\n");
}

TEST_F(FileMosseTest, AListOfOneLineHasTheCountZero)
{
    EXPECT_EQ(FileMosse::scritto({u"Foto"_s}), " 0 \r\nFoto\r\n");
}

TEST_F(FileMosseTest, FractionSignsAreSingleBytes)
{
    EXPECT_EQ(FileMosse::scritto({u"Destra ½"_s, u"Destra ¼"_s}),
              " 1 \r\nDestra \xBD\r\nDestra \xBC\r\n");
    EXPECT_EQ(righe(" 1 \r\nDestra \xBD\r\nDestra \xBC\r\n"),
              (QStringList{u"Destra ½"_s, u"Destra ¼"_s}));
}

TEST_F(FileMosseTest, ACharacterOutsideTheCodePageBecomesAQuestionMark)
{
    EXPECT_EQ(FileMosse::scritto({u"Programma /home/日本"_s}), " 0 \r\nProgramma /home/??\r\n");
}

TEST_F(FileMosseTest, WhatIsWrittenIsReadBack)
{
    const QStringList lista{u"Ripeti 200 volte"_s, u"Ripeti all'infinito"_s,
                            u"Destra "_s,          u"Ciao"_s,
                            u"Frase 12 \"sì\""_s,  u""_s};
    EXPECT_EQ(righe(FileMosse::scritto(lista)),
              // The blank behind a line stays, a last line may be empty.
              lista);
}

TEST_F(FileMosseTest, ACommaPartsALineAndTheLastOnesFallOff)
{
    EXPECT_EQ(righe(FileMosse::scritto({u"Programma C:\\a,b.exe"_s})),
              QStringList{u"Programma C:\\a"_s});
    EXPECT_EQ(righe(FileMosse::scritto({u"Programma C:\\a,b.exe"_s, u"Stop"_s, u"Foto"_s})),
              (QStringList{u"Programma C:\\a"_s, u"b.exe"_s, u"Stop"_s}));
}

TEST_F(FileMosseTest, LeadingBlanksAreLost)
{
    EXPECT_EQ(righe(" 1 \r\n   Stop\r\n\tFoto\r\n"), (QStringList{u"Stop"_s, u"Foto"_s}));
}

TEST_F(FileMosseTest, AQuotedFieldRunsToTheNextQuote)
{
    EXPECT_EQ(righe(" 1 \r\n\"a,b\"\r\nStop\r\n"), (QStringList{u"a,b"_s, u"Stop"_s}));
    EXPECT_EQ(righe(" 1 \r\n\"due\r\nrighe\"\r\nStop\r\n"),
              (QStringList{u"due\r\nrighe"_s, u"Stop"_s}));
    EXPECT_EQ(righe(" 0 \r\n\"aperto\r\n"), QStringList{u"aperto\r\n"_s});
}

TEST_F(FileMosseTest, AnEmptyLineIsALine)
{
    EXPECT_EQ(righe(" 2 \r\n\r\n\r\nStop\r\n"), (QStringList{u""_s, u""_s, u"Stop"_s}));
    EXPECT_EQ(righe(" 2 \r\n,,Stop\r\n"), (QStringList{u""_s, u""_s, u"Stop"_s}));
}

TEST_F(FileMosseTest, OtherLineEndsAreReadAsWell)
{
    EXPECT_EQ(righe("1\nAvanti piano\nStop"), (QStringList{u"Avanti piano"_s, u"Stop"_s}));
    EXPECT_EQ(righe("1\rAvanti piano\rStop\r"), (QStringList{u"Avanti piano"_s, u"Stop"_s}));
}

TEST_F(FileMosseTest, ACountTooLargeFailsAtTheEndAndKeepsWhatWasRead)
{
    const Letto letto = leggi(" 4 \r\nFoto\r\nStop\r\n");
    EXPECT_EQ(letto.errore, Errore::FineDelFile);
    EXPECT_EQ(letto.righe, (QStringList{u"Foto"_s, u"Stop"_s}));
}

TEST_F(FileMosseTest, ACountTooSmallLeavesTheRestUnread)
{
    EXPECT_EQ(righe(" 0 \r\nFoto\r\nStop\r\n"), QStringList{u"Foto"_s});
}

TEST_F(FileMosseTest, ANegativeCountIsNoLine)
{
    EXPECT_EQ(righe(" -1 \r\nFoto\r\n"), QStringList());
    EXPECT_EQ(righe(" -32768 \r\nFoto\r\n"), QStringList());
}

TEST_F(FileMosseTest, ACountThatIsNoNumberIsZero)
{
    EXPECT_EQ(righe("abc\r\nFoto\r\nStop\r\n"), QStringList{u"Foto"_s});
}

TEST_F(FileMosseTest, ACountBeyond16BitsFails)
{
    for (const char *conteggio : {" 32768 ", "-32769", "99999999999999999999", "70000"}) {
        const Letto letto = leggi(QByteArray(conteggio) + "\r\nFoto\r\n");
        EXPECT_EQ(letto.errore, Errore::Overflow) << conteggio;
        EXPECT_TRUE(letto.righe.isEmpty());
    }
}

TEST_F(FileMosseTest, AFractionInTheCountIsRoundedHalfToEven)
{
    EXPECT_EQ(righe("0.5\r\nA\r\nB\r\nC\r\n").size(), 1);
    EXPECT_EQ(righe("1.5\r\nA\r\nB\r\nC\r\n").size(), 3);
}

TEST_F(FileMosseTest, AnEmptyFileFails)
{
    EXPECT_EQ(leggi("").errore, Errore::FineDelFile);
    EXPECT_EQ(leggi("  ").errore, Errore::FineDelFile);
}

TEST_F(FileMosseTest, ACountInQuotesIsThatCount)
{
    EXPECT_EQ(righe("\" 1 \"\r\nFoto\r\nStop\r\nCiao\r\n"), (QStringList{u"Foto"_s, u"Stop"_s}));
    EXPECT_EQ(righe("\"0\",Foto,Stop"), QStringList{u"Foto"_s});
}

TEST_F(FileMosseTest, AnEmptyFirstLineIsTheCountZero)
{
    EXPECT_EQ(righe("\r\nFoto\r\nStop\r\n"), QStringList{u"Foto"_s});
    EXPECT_EQ(righe(",Foto"), QStringList{u"Foto"_s});
    EXPECT_EQ(righe("  \r\n \r\n"), QStringList{u""_s});
    EXPECT_EQ(leggi("\r\n").errore, Errore::FineDelFile);
}

TEST_F(FileMosseTest, ALineBeyondTheListsLimitFails)
{
    QByteArray file = " 32767 \r\n";
    for (int i = 0; i < 32768; ++i)
        file += "Stop\r\n";
    const Letto letto = leggi(file);
    EXPECT_EQ(letto.errore, Errore::Overflow);
    EXPECT_EQ(letto.righe.size(), 32767);
}

TEST_F(FileMosseTest, TheLongestListSurvives)
{
    QStringList lista;
    for (int i = 0; i < 32767; ++i)
        lista += u"Pausa %1"_s.arg(i);
    EXPECT_EQ(righe(FileMosse::scritto(lista)), lista);
}

TEST_F(FileMosseTest, AFileCutAnywhereGivesTheLinesBeforeTheCut)
{
    const QStringList lista{u"Avanti piano"_s, u"Pausa 1000"_s, u"Stop"_s, u"Destra ½"_s};
    const QByteArray intero = FileMosse::scritto(lista);
    for (qsizetype taglio = 0; taglio <= intero.size(); ++taglio) {
        SCOPED_TRACE(taglio);
        const Letto letto = leggi(intero.first(taglio));
        ASSERT_LE(letto.righe.size(), lista.size());
        for (qsizetype i = 0; i < letto.righe.size(); ++i)
            EXPECT_TRUE(i + 1 < letto.righe.size() ? letto.righe[i] == lista[i]
                                                   : lista[i].startsWith(letto.righe[i]));
        EXPECT_TRUE(letto.errore == 0 || letto.errore == Errore::FineDelFile);
    }
}

TEST_F(FileMosseTest, AnyListWithoutCommasQuotesAndLeadingBlanksSurvives)
{
    std::mt19937 caso(20240611);
    std::uniform_int_distribution byteQualunque(0, 255);
    std::uniform_int_distribution lunghezza(0, 60);
    std::uniform_int_distribution quante(1, 40);
    const QByteArray vietati = ",\"\r\n";
    for (int giro = 0; giro < 300; ++giro) {
        QByteArray atteso;
        QList<QByteArray> lista;
        for (int i = quante(caso); i > 0; --i) {
            QByteArray riga;
            for (int j = lunghezza(caso); j > 0; --j) {
                const char c = static_cast<char>(byteQualunque(caso));
                if (!vietati.contains(c) && !(riga.isEmpty() && (c == ' ' || c == '\t')))
                    riga += c;
            }
            lista += riga;
        }
        QStringList testi;
        for (const QByteArray &riga : lista)
            testi += Codifica::daByte(riga);
        EXPECT_EQ(righe(FileMosse::scritto(testi)), testi) << "giro " << giro;
        // All 256 bytes come back as they were.
        QByteArray file = ' ' + QByteArray::number(lista.size() - 1) + " \r\n";
        for (const QByteArray &riga : lista)
            file += riga + "\r\n";
        EXPECT_EQ(FileMosse::scritto(testi), file) << "giro " << giro;
    }
}

TEST_F(FileMosseTest, RubbishNeverDoesMoreThanFail)
{
    std::mt19937 caso(7);
    std::uniform_int_distribution byteQualunque(0, 255);
    std::uniform_int_distribution lunghezza(0, 400);
    for (int giro = 0; giro < 500; ++giro) {
        QByteArray file;
        for (int j = lunghezza(caso); j > 0; --j)
            file += static_cast<char>(byteQualunque(caso));
        const Letto letto = leggi(file);
        EXPECT_LE(letto.righe.size(), file.size() + 1);
        EXPECT_THAT(letto.errore,
                    testing::AnyOf(0, int{Errore::FineDelFile}, int{Errore::Overflow}));
    }
}

TEST_F(FileMosseTest, AFieldOfAHundredMegabytesIsRead)
{
    const QByteArray grande(100'000'000, 'x');
    const QStringList lette = righe(" 0 \r\n" + grande);
    ASSERT_EQ(lette.size(), 1);
    EXPECT_EQ(lette[0].size(), grande.size());
}
