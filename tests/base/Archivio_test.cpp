#include "base/Archivio.h"

#include "tests/support/Controlli.h"
#include "tests/support/Sistema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using Archivio::Modo;

namespace {

struct ArchivioTest : ::testing::Test
{
    ArchivioTest() : prima(QDir::currentPath()) { QDir::setCurrent(cartella.path()); }
    ~ArchivioTest() override
    {
        Archivio::abbandona();
        QDir::setCurrent(prima);
    }

    void contenuto(const QString &nome, const QByteArray &byte)
    {
        QFile file(nome);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(byte), byte.size());
    }
    QByteArray contenuto(const QString &nome)
    {
        QFile file(nome);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(none)";
    }
    void perLettura(const QByteArray &byte)
    {
        Archivio::abbandona();
        contenuto(u"prova.dat"_s, byte);
        Archivio::apri(1, u"prova.dat"_s, Modo::Lettura);
    }

    static int scrivi(const QString &nome, const QByteArray &byte)
    {
        const int errore = erroreDi([&] {
            Archivio::apri(1, nome, Modo::Scrittura);
            Archivio::stampa(1, byte);
            Archivio::chiudi();
        });
        Archivio::abbandona();
        return errore;
    }
    // A file that all users may write.
    void diTutti(const QString &nome, const QByteArray &byte)
    {
        contenuto(nome, byte);
        QFile::setPermissions(nome, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                        QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
    }

    QString prima;
    QTemporaryDir cartella;
};

QList<QByteArray> campi()
{
    QList<QByteArray> letti;
    while (!Archivio::fine(1))
        letti += Archivio::leggiCampo(1);
    return letti;
}

QList<QByteArray> righe()
{
    QList<QByteArray> lette;
    while (!Archivio::fine(1))
        lette += Archivio::leggiRiga(1);
    return lette;
}

} // namespace

TEST_F(ArchivioTest, ANumberThatIsStillOpenGivesError55)
{
    perLettura("1");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"prova.dat"_s, Modo::Lettura); }), 55);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"altro.dat"_s, Modo::Scrittura); }), 55);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca.dat"_s, Modo::Lettura); }), 55);
}

TEST_F(ArchivioTest, TwoNumbersCanBeOpenAndOneCallClosesBoth)
{
    contenuto(u"a"_s, "1");
    Archivio::apri(1, u"a"_s, Modo::Lettura);
    Archivio::apri(2, u"b"_s, Modo::Scrittura);
    Archivio::stampa(2, "x");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"b"_s), "x");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"a"_s, Modo::Lettura); }), 0);
}

TEST_F(ArchivioTest, AMissingFileGivesError53AndLeavesTheNumberClosed)
{
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"Porta COM"_s, Modo::Lettura); }), 53);
    contenuto(u"Porta COM"_s, "3\r\n");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"Porta COM"_s, Modo::Lettura); }), 0);
}

TEST_F(ArchivioTest, AMissingFolderGivesError76)
{
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca/a.dat"_s, Modo::Lettura); }), 76);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca/a.dat"_s, Modo::Scrittura); }), 76);
}

TEST_F(ArchivioTest, AFolderInsteadOfAFileGivesError75)
{
    QDir().mkdir(u"dati"_s);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"dati"_s, Modo::Lettura); }), 75);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"dati"_s, Modo::Scrittura); }), 75);
}

TEST_F(ArchivioTest, ANumberThatIsNotOpenGivesError52)
{
    EXPECT_EQ(erroreDi([] { Archivio::leggiCampo(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggiNumero(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggiRiga(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggi(1, 0); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::stampa(1, "x"); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::fine(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::lunghezza(1); }), 52);
}

TEST_F(ArchivioTest, PrintingToAFileThatIsOpenForReadingIsAnError)
{
    perLettura("1");
    EXPECT_EQ(erroreDi([] { Archivio::stampa(1, "x"); }), 52);
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "1");
}

TEST_F(ArchivioTest, ReadingPastTheEndGivesError62)
{
    for (const char *vuoto : {"", "  "}) {
        perLettura(vuoto);
        EXPECT_EQ(erroreDi([] { Archivio::leggiCampo(1); }), 62);
        EXPECT_EQ(erroreDi([] { Archivio::leggiNumero(1); }), 62);
    }
    perLettura("");
    EXPECT_EQ(erroreDi([] { Archivio::leggiRiga(1); }), 62);
    perLettura("abc");
    EXPECT_EQ(erroreDi([] { Archivio::leggi(1, 4); }), 62);
    EXPECT_EQ(Archivio::leggi(1, 3), "abc");
    EXPECT_EQ(erroreDi([] { Archivio::leggi(1, 1); }), 62);
}

TEST_F(ArchivioTest, ClosingWithNothingOpenIsNoError)
{
    EXPECT_EQ(erroreDi([] { Archivio::chiudi(); }), 0);
    EXPECT_EQ(erroreDi([] { Archivio::abbandona(); }), 0);
}

TEST_F(ArchivioTest, AFieldEndsAtACommaOrAtTheEndOfTheLine)
{
    const struct
    {
        QByteArray byte;
        QList<QByteArray> campi;
    } casi[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\n", {"a"}},
        {"a,b\r\nc", {"a", "b", "c"}},
        {"a\nb\nc\n", {"a", "b", "c"}},
        {"a\rb\rc\r", {"a", "b", "c"}},
        {"a\r\n\r\nb\r\n", {"a", "", "b"}},
        {"a,,b", {"a", "", "b"}},
        {"  a  ,  b", {"a  ", "b"}},
        {"\ta", {"a"}},
        {"Avanti piano\r\nStop\r\n", {"Avanti piano", "Stop"}},
        {"\"a,b\",c", {"a,b", "c"}},
        {"\"a\r\nb\"\r\nc", {"a\r\nb", "c"}},
        {"  \"a\"  ,  \"b\"  \r\nc", {"a", "b", "c"}},
        {"\"\",\"\"", {"", ""}},
        {"a\"b,c", {"a\"b", "c"}},
        {"\"una.sqm\",#TRUE#,\"00:00:00,no,no,no,no\"\r\n",
         {"una.sqm", "#TRUE#", "00:00:00,no,no,no,no"}},
        {"Programma C:\\a,b.exe", {"Programma C:\\a", "b.exe"}},
        {"\xbd,\x80", {"\xbd", "\x80"}},
        // The file ends inside the field.
        {"\"a,b", {"a,b"}},
        {"\"", {""}},
        {"a,", {"a"}},
        {QByteArray("a\0b", 3), {QByteArray("a\0b", 3)}},
    };
    for (const auto &caso : casi) {
        perLettura(caso.byte);
        EXPECT_EQ(campi(), caso.campi) << caso.byte.toPercentEncoding().toStdString();
    }
}

TEST_F(ArchivioTest, ReadingAListFileWithoutItsLastLinesGivesError62)
{
    perLettura("2\r\nStop\r\nFoto\r\n");
    EXPECT_EQ(Archivio::leggiNumero(1), 2);
    Archivio::leggiCampo(1);
    Archivio::leggiCampo(1);
    EXPECT_EQ(erroreDi([] { Archivio::leggiCampo(1); }), 62);
}

TEST_F(ArchivioTest, ANumberFieldEndsAtABlankToo)
{
    const struct
    {
        QByteArray byte;
        QList<double> numeri;
    } casi[] = {
        {"3\r\n", {3}},
        {" 12 ", {12}},
        {"1 2 3", {1, 2, 3}},
        {"1,2,3", {1, 2, 3}},
        {"1\r\n2\n3\r4", {1, 2, 3, 4}},
        {"\r\n\r\n7", {7}},
        {"-5", {-5}},
        {"2.5", {2.5}},
        {"1\t2", {1, 2}},
        // Without a number: 0, as from Numeri::Valore.
        {"abc", {0}},
        {"COM3", {0}},
        {"\"3\"", {0}},
        {"4x", {4}},
        {",5", {0, 5}},
    };
    for (const auto &caso : casi) {
        perLettura(caso.byte);
        QList<double> letti;
        while (!Archivio::fine(1))
            letti += Archivio::leggiNumero(1);
        EXPECT_EQ(letti, caso.numeri) << caso.byte.toPercentEncoding().toStdString();
    }
}

TEST_F(ArchivioTest, ALineIsReadUnchangedWhateverItsLineEnd)
{
    const struct
    {
        QByteArray byte;
        QList<QByteArray> righe;
    } casi[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\rb", {"a", "b"}},
        {"\r\n\r\n", {"", ""}},
        {"\n", {""}},
        {"  a, \"b\"  \r\n", {"  a, \"b\"  "}},
    };
    for (const auto &caso : casi) {
        perLettura(caso.byte);
        EXPECT_EQ(righe(), caso.righe) << caso.byte.toPercentEncoding().toStdString();
    }
}

TEST_F(ArchivioTest, AWholeFileCanBeReadByItsLength)
{
    perLettura("0;00:00:00,no,no,no,no");
    EXPECT_EQ(Archivio::lunghezza(1), 22);
    EXPECT_EQ(Archivio::leggi(1, Archivio::lunghezza(1)), "0;00:00:00,no,no,no,no");
    EXPECT_TRUE(Archivio::fine(1));
}

TEST_F(ArchivioTest, All256BytesAreWrittenAndReadAsTheyAre)
{
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    Archivio::apri(1, u"byte"_s, Modo::Scrittura);
    Archivio::stampa(1, tutti);
    Archivio::chiudi();
    Archivio::apri(1, u"byte"_s, Modo::Lettura);
    EXPECT_EQ(Archivio::leggi(1, 256), tutti);
}

TEST_F(ArchivioTest, WritingReplacesTheWholeFile)
{
    contenuto(u"prova.dat"_s, "the old and long contents");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "new");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "new");
}

TEST_F(ArchivioTest, TheOldFileIsThereUntilTheNewOneIsClosed)
{
    contenuto(u"prova.dat"_s, "old");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "new");
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
}

TEST_F(ArchivioTest, TheOldFileSurvivesIfTheWrittenBytesAreDropped)
{
    contenuto(u"prova.dat"_s, "old");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "half");
    Archivio::abbandona();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"prova.dat"_s});
}

TEST_F(ArchivioTest, TheOldFileSurvivesAFailedWrite)
{
    if (!DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here";
    contenuto(u"prova.dat"_s, "old");
    int errore = 0;
    {
        const DiscoPieno pieno(1000);
        errore = erroreDi([] {
            Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
            Archivio::stampa(1, QByteArray(500000, 'x'));
            Archivio::chiudi();
        });
        Archivio::abbandona();
    }
    EXPECT_EQ(errore, Errore::DiscoPieno);
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
}

TEST_F(ArchivioTest, AFailedCloseClosesTheNumberAndKeepsTheOldFile)
{
    if (!DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here";
    contenuto(u"prova.dat"_s, "old");
    int errore = 0;
    {
        const DiscoPieno pieno(10);
        Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
        Archivio::stampa(1, QByteArray(100, 'x'));
        errore = erroreDi([] { Archivio::chiudi(); });
    }
    EXPECT_EQ(errore, Errore::DiscoPieno);
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura); }), 0);
}

TEST_F(ArchivioTest, InAReadOnlyFolderAWritableFileIsOverwritten)
{
    if (!SenzaDiritti::possibile())
        GTEST_SKIP() << "folders have no rights here";
    for (const QString &nome : {u"prova.dat"_s, QString(255, u'x')}) {
        for (const QByteArray &byte : {QByteArray("a new and longer text"), QByteArray("short")}) {
            diTutti(nome, "the old text");
            int errore = 0;
            {
                const SenzaDiritti chiusa(cartella.path());
                errore = scrivi(cartella.filePath(nome), byte);
            }
            EXPECT_EQ(errore, 0);
            EXPECT_EQ(contenuto(nome), byte);
            EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{nome});
        }
        QFile::remove(nome);
    }
}

TEST_F(ArchivioTest, AFileThatIsOverwrittenStaysUnchangedUntilItIsClosed)
{
    if (!SenzaDiritti::possibile())
        GTEST_SKIP() << "folders have no rights here";
    diTutti(u"prova.dat"_s, "old");
    const SenzaDiritti chiusa(cartella.path());
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "half");
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
    Archivio::abbandona();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
}

TEST_F(ArchivioTest, IfOverwritingFailsOnAFullDiskTheOldTextIsRestored)
{
    if (!SenzaDiritti::possibile() || !DiscoPieno::possibile())
        GTEST_SKIP() << "no full disk here, or folders without rights";
    diTutti(u"prova.dat"_s, "the old text");
    int errore = 0;
    {
        const SenzaDiritti chiusa(cartella.path());
        const DiscoPieno pieno(1000);
        errore = scrivi(u"prova.dat"_s, QByteArray(100000, 'x'));
    }
    EXPECT_EQ(errore, Errore::DiscoPieno);
    EXPECT_EQ(contenuto(u"prova.dat"_s), "the old text");
}

TEST_F(ArchivioTest, AFileThatCanBeNeitherReplacedNorOverwrittenGivesError75)
{
    if (!SenzaDiritti::possibile())
        GTEST_SKIP() << "folders have no rights here";
    contenuto(u"prova.dat"_s, "old");
    QFile::setPermissions(u"prova.dat"_s, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    {
        const SenzaDiritti chiusa(cartella.path());
        EXPECT_EQ(scrivi(u"prova.dat"_s, "new"), Errore::AccessoNegato);
        EXPECT_EQ(scrivi(u"altro.dat"_s, "new"), Errore::AccessoNegato);
    }
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"prova.dat"_s});
}

TEST_F(ArchivioTest, WritingAFileWithALongNameTouchesNoOtherFile)
{
    contenuto(u"salvataggio.tmp"_s, "another file");
    EXPECT_EQ(scrivi(cartella.filePath(QString(250, u'x')), "new"), 0);
    EXPECT_EQ(contenuto(QString(250, u'x')), "new");
    EXPECT_EQ(contenuto(u"salvataggio.tmp"_s), "another file");
    EXPECT_EQ(QDir().entryList(QDir::Files).size(), 2);
}

TEST_F(ArchivioTest, ALinkStaysALinkWhateverTheLengthOfTheNames)
{
    const QString lungo(255, u'x');
    contenuto(lungo, "old");
    if (!collega(lungo, u"corto"_s))
        GTEST_SKIP() << "no links here";
    EXPECT_EQ(scrivi(u"corto"_s, "new"), 0);
    EXPECT_EQ(contenuto(lungo), "new");
    EXPECT_TRUE(QFileInfo(u"corto"_s).isSymbolicLink());
    const QString altro(255, u'y');
    ASSERT_TRUE(collega(u"breve"_s, altro));
    EXPECT_EQ(scrivi(cartella.filePath(altro), "newer"), 0);
    EXPECT_EQ(contenuto(u"breve"_s), "newer");
    EXPECT_TRUE(QFileInfo(altro).isSymbolicLink());
}

TEST_F(ArchivioTest, ANameOfAnyValidLengthIsWrittenAndReplaced)
{
    for (const int lunghezza : {247, 248, 249, 255}) {
        const QString nome(lunghezza, u'x');
        for (const QByteArray &byte : {QByteArray("old"), QByteArray("new")}) {
            Archivio::apri(1, cartella.filePath(nome), Modo::Scrittura);
            Archivio::stampa(1, byte);
            EXPECT_EQ(erroreDi([] { Archivio::chiudi(); }), 0) << lunghezza;
            EXPECT_EQ(contenuto(nome), byte) << lunghezza;
        }
        EXPECT_EQ(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{nome});
        QFile::remove(nome);
    }
}

TEST_F(ArchivioTest, ATooLongNameGivesAnErrorAndLeavesNoFile)
{
    for (const QString &nome : {QString(256, u'x'), QString(128, u'è')}) {
        const int errore = erroreDi([&] {
            Archivio::apri(1, cartella.filePath(nome), Modo::Scrittura);
            Archivio::stampa(1, "new");
            Archivio::chiudi();
        });
        EXPECT_EQ(errore, Errore::AccessoNegato);
        EXPECT_TRUE(QDir(cartella.path()).isEmpty());
    }
}

TEST_F(ArchivioTest, AFolderWithALongNameGivesError75AndStays)
{
    const QString nome(255, u'x');
    ASSERT_TRUE(QDir().mkdir(nome));
    EXPECT_EQ(erroreDi([&] { Archivio::apri(1, cartella.filePath(nome), Modo::Scrittura); }),
              Errore::AccessoNegato);
    EXPECT_TRUE(QFileInfo(nome).isDir());
}

TEST_F(ArchivioTest, ANameWithoutAFolderMeansOneFileWhateverItsCase)
{
    contenuto(u"prog.dat"_s, "1");
    Archivio::apri(1, u"Prog.dat"_s, Modo::Lettura);
    EXPECT_EQ(Archivio::leggi(1, 1), "1");
    Archivio::chiudi();
    Archivio::apri(1, u"PROG.DAT"_s, Modo::Scrittura);
    Archivio::stampa(1, "0");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"prog.dat"_s), "0");
    EXPECT_EQ(QDir().entryList(QDir::Files).size(), 1);
}

TEST_F(ArchivioTest, ANewFileGetsTheNameAsItIsGiven)
{
    Archivio::apri(1, u"Porta COM"_s, Modo::Scrittura);
    Archivio::chiudi();
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"Porta COM"_s});
}

TEST_F(ArchivioTest, AFullPathReachesAnotherFolder)
{
    QTemporaryDir altra;
    Archivio::apri(1, altra.filePath(u"lista.sqm"_s), Modo::Scrittura);
    Archivio::stampa(1, "0\r\n");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(altra.filePath(u"lista.sqm"_s)), "0\r\n");
}
