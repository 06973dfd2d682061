#include "base/Archivio.h"

#include "tests/support/Controlli.h"
#include "tests/support/Sistema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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
    // A file that everybody may write.
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

TEST_F(ArchivioTest, a_number_that_is_still_open_is_error_55)
{
    perLettura("1");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"prova.dat"_s, Modo::Lettura); }), 55);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"altro.dat"_s, Modo::Scrittura); }), 55);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca.dat"_s, Modo::Lettura); }), 55);
}

TEST_F(ArchivioTest, two_numbers_can_be_open_and_one_close_all_closes_both)
{
    contenuto(u"a"_s, "1");
    Archivio::apri(1, u"a"_s, Modo::Lettura);
    Archivio::apri(2, u"b"_s, Modo::Scrittura);
    Archivio::stampa(2, "x");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"b"_s), "x");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"a"_s, Modo::Lettura); }), 0);
}

TEST_F(ArchivioTest, a_missing_file_is_error_53_and_leaves_the_number_closed)
{
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"Porta COM"_s, Modo::Lettura); }), 53);
    contenuto(u"Porta COM"_s, "3\r\n");
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"Porta COM"_s, Modo::Lettura); }), 0);
}

TEST_F(ArchivioTest, a_missing_folder_is_error_76)
{
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca/a.dat"_s, Modo::Lettura); }), 76);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"manca/a.dat"_s, Modo::Scrittura); }), 76);
}

TEST_F(ArchivioTest, a_folder_in_the_place_of_a_file_is_error_75)
{
    QDir().mkdir(u"dati"_s);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"dati"_s, Modo::Lettura); }), 75);
    EXPECT_EQ(erroreDi([] { Archivio::apri(1, u"dati"_s, Modo::Scrittura); }), 75);
}

TEST_F(ArchivioTest, a_number_that_is_not_open_is_error_52)
{
    EXPECT_EQ(erroreDi([] { Archivio::leggiCampo(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggiNumero(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggiRiga(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::leggi(1, 0); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::stampa(1, "x"); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::fine(1); }), 52);
    EXPECT_EQ(erroreDi([] { Archivio::lunghezza(1); }), 52);
}

TEST_F(ArchivioTest, printing_to_a_file_that_is_open_for_reading_is_an_error)
{
    perLettura("1");
    EXPECT_EQ(erroreDi([] { Archivio::stampa(1, "x"); }), 52);
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "1");
}

TEST_F(ArchivioTest, reading_past_the_end_is_error_62)
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

TEST_F(ArchivioTest, closing_with_nothing_open_is_no_error)
{
    EXPECT_EQ(erroreDi([] { Archivio::chiudi(); }), 0);
    EXPECT_EQ(erroreDi([] { Archivio::abbandona(); }), 0);
}

TEST_F(ArchivioTest, a_field_ends_at_a_comma_or_at_the_lines_end)
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
        // Cut short.
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

TEST_F(ArchivioTest, a_list_file_without_its_last_lines_is_error_62)
{
    perLettura("2\r\nStop\r\nFoto\r\n");
    EXPECT_EQ(Archivio::leggiNumero(1), 2);
    Archivio::leggiCampo(1);
    Archivio::leggiCampo(1);
    EXPECT_EQ(erroreDi([] { Archivio::leggiCampo(1); }), 62);
}

TEST_F(ArchivioTest, a_number_field_ends_at_a_blank_too)
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
        // Not a number: 0, as the lenient scan has it.
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

TEST_F(ArchivioTest, a_line_is_read_as_it_stands_whatever_its_end)
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

TEST_F(ArchivioTest, the_whole_of_a_file_can_be_read_by_its_length)
{
    perLettura("0;00:00:00,no,no,no,no");
    EXPECT_EQ(Archivio::lunghezza(1), 22);
    EXPECT_EQ(Archivio::leggi(1, Archivio::lunghezza(1)), "0;00:00:00,no,no,no,no");
    EXPECT_TRUE(Archivio::fine(1));
}

TEST_F(ArchivioTest, all_256_bytes_are_written_and_read_as_they_are)
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

TEST_F(ArchivioTest, writing_replaces_the_whole_file)
{
    contenuto(u"prova.dat"_s, "the old and long contents");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "new");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "new");
}

TEST_F(ArchivioTest, the_old_file_is_there_until_the_new_one_is_closed)
{
    contenuto(u"prova.dat"_s, "old");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "new");
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
}

TEST_F(ArchivioTest, the_old_file_survives_a_program_that_drops_what_it_wrote)
{
    contenuto(u"prova.dat"_s, "old");
    Archivio::apri(1, u"prova.dat"_s, Modo::Scrittura);
    Archivio::stampa(1, "half");
    Archivio::abbandona();
    EXPECT_EQ(contenuto(u"prova.dat"_s), "old");
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"prova.dat"_s});
}

TEST_F(ArchivioTest, the_old_file_survives_a_failed_write)
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

TEST_F(ArchivioTest, a_failed_close_closes_all_the_same_and_keeps_the_old_file)
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

TEST_F(ArchivioTest, in_a_folder_that_takes_no_new_files_a_file_is_written_in_its_place)
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

TEST_F(ArchivioTest, a_file_written_in_its_place_is_left_alone_until_it_is_closed)
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

TEST_F(ArchivioTest, a_full_disk_in_its_place_brings_the_old_text_back)
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

TEST_F(ArchivioTest, a_file_that_can_neither_be_replaced_nor_written_is_error_75)
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

TEST_F(ArchivioTest, no_file_of_somebody_elses_is_touched_by_a_long_name)
{
    contenuto(u"salvataggio.tmp"_s, "somebody else's");
    EXPECT_EQ(scrivi(cartella.filePath(QString(250, u'x')), "new"), 0);
    EXPECT_EQ(contenuto(QString(250, u'x')), "new");
    EXPECT_EQ(contenuto(u"salvataggio.tmp"_s), "somebody else's");
    EXPECT_EQ(QDir().entryList(QDir::Files).size(), 2);
}

TEST_F(ArchivioTest, a_link_stays_a_link_whatever_the_length_of_the_names)
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

TEST_F(ArchivioTest, a_name_of_any_length_that_a_folder_takes_is_written_and_replaced)
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

TEST_F(ArchivioTest, a_name_that_no_folder_takes_is_an_error_and_leaves_nothing)
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

TEST_F(ArchivioTest, a_folder_of_a_long_name_is_error_75_and_stays)
{
    const QString nome(255, u'x');
    ASSERT_TRUE(QDir().mkdir(nome));
    EXPECT_EQ(erroreDi([&] { Archivio::apri(1, cartella.filePath(nome), Modo::Scrittura); }),
              Errore::AccessoNegato);
    EXPECT_TRUE(QFileInfo(nome).isDir());
}

TEST_F(ArchivioTest, a_bare_name_means_one_file_whatever_the_case_of_its_letters)
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

TEST_F(ArchivioTest, a_new_file_gets_the_name_as_it_is_written)
{
    Archivio::apri(1, u"Porta COM"_s, Modo::Scrittura);
    Archivio::chiudi();
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList{u"Porta COM"_s});
}

TEST_F(ArchivioTest, a_full_path_reaches_another_folder)
{
    QTemporaryDir altra;
    Archivio::apri(1, altra.filePath(u"lista.sqm"_s), Modo::Scrittura);
    Archivio::stampa(1, "0\r\n");
    Archivio::chiudi();
    EXPECT_EQ(contenuto(altra.filePath(u"lista.sqm"_s)), "0\r\n");
}
