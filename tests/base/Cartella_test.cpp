#include "base/Cartella.h"

#include "tests/support/Controlli.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

TEST(Cartella, the_programs_folder_is_the_executables_where_it_can_be_written_to)
{
    EXPECT_EQ(trovaCartellaProgramma(), QCoreApplication::applicationDirPath());
    const QDir cartella(trovaCartellaProgramma());
    EXPECT_TRUE(cartella.entryList({u"prova.*"_s}, QDir::Files).isEmpty()) << "the try left a file";
}

namespace {

// A tree with the folders of an installed program, and a user's data folder that is not made yet.
struct Albero
{
    QTemporaryDir radice;
    QString bin = radice.filePath(u"usr/bin"_s);
    QString liste = radice.filePath(u"usr/share/lumbra/liste"_s);
    QString utente = radice.filePath(u"casa/dati/Lumbra"_s);

    Albero() { QDir().mkpath(bin); }
    void esempio(const QString &nome, const QByteArray &contenuto) const
    {
        QDir().mkpath(liste);
        scrivi(liste + u'/' + nome, contenuto);
    }
    static void scrivi(const QString &percorso, const QByteArray &contenuto)
    {
        QFile file(percorso);
        if (!file.open(QIODevice::WriteOnly) || file.write(contenuto) != contenuto.size())
            qFatal("no file");
    }
    static QByteArray leggi(const QString &percorso)
    {
        QFile file(percorso);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
    }
    QStringList dati() const { return QDir(utente).entryList({u"*.sqm"_s}, QDir::Files); }
};

} // namespace

TEST(Cartella, an_installed_program_takes_the_users_folder_though_it_could_write_beside_itself)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.utente);
    EXPECT_TRUE(QFileInfo(albero.utente).isWritable());
    EXPECT_TRUE(QDir(albero.bin).isEmpty());
}

TEST(Cartella, without_what_an_installed_program_has_it_is_the_one_beside)
{
    const Albero albero;
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.bin);
    EXPECT_FALSE(QFileInfo::exists(albero.utente));
}

TEST(Cartella, the_first_start_brings_the_sample_lists)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    albero.esempio(u"ballo.sqm"_s, "Pausa 2\r\n");
    albero.esempio(u"leggimi.txt"_s, "no list");
    ASSERT_TRUE(QFile::setPermissions(albero.liste + u"/ballo.sqm"_s, QFile::ReadOwner));
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(albero.dati(), (QStringList{u"ballo.sqm"_s, u"saluto.sqm"_s}));
    EXPECT_EQ(Albero::leggi(albero.utente + u"/saluto.sqm"_s), "Pausa 1\r\n");
    EXPECT_TRUE(QFile::permissions(albero.utente + u"/ballo.sqm"_s) & QFile::WriteOwner);
    EXPECT_FALSE(QFileInfo::exists(albero.utente + u"/leggimi.txt"_s));
}

TEST(Cartella, a_program_that_runs_from_any_folder_brings_the_lists_that_came_with_it)
{
    const Albero albero;
    ASSERT_TRUE(QDir().mkpath(albero.bin + u"/liste"_s));
    Albero::scrivi(albero.bin + u"/liste/saluto.sqm"_s, "Pausa 1\r\n");
    Albero::scrivi(albero.bin + u"/liste/prog.dat"_s, "1;");
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.bin);
    EXPECT_EQ(Albero::leggi(albero.bin + u"/saluto.sqm"_s), "Pausa 1\r\n");
    EXPECT_EQ(Albero::leggi(albero.bin + u"/prog.dat"_s), "1;");
    // A newer program unpacked over it leaves the user's own alone.
    Albero::scrivi(albero.bin + u"/prog.dat"_s, "0;");
    ASSERT_TRUE(QFile::remove(albero.bin + u"/saluto.sqm"_s));
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(Albero::leggi(albero.bin + u"/prog.dat"_s), "0;");
    EXPECT_EQ(Albero::leggi(albero.bin + u"/saluto.sqm"_s), "none");
}

TEST(Cartella, a_sample_list_never_takes_the_place_of_the_users)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    albero.esempio(u"ballo.sqm"_s, "Pausa 2\r\n");
    ASSERT_TRUE(QDir().mkpath(albero.utente));
    Albero::scrivi(albero.utente + u"/saluto.sqm"_s, "mine");
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(Albero::leggi(albero.utente + u"/saluto.sqm"_s), "mine");
    EXPECT_EQ(Albero::leggi(albero.utente + u"/ballo.sqm"_s), "Pausa 2\r\n");
}

TEST(Cartella, a_sample_list_that_the_user_deleted_or_changed_stays_so)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    albero.esempio(u"ballo.sqm"_s, "Pausa 2\r\n");
    trovaCartellaProgramma(albero.bin, albero.utente);
    ASSERT_TRUE(QFile::remove(albero.utente + u"/saluto.sqm"_s));
    Albero::scrivi(albero.utente + u"/ballo.sqm"_s, "mine");
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(albero.dati(), QStringList{u"ballo.sqm"_s});
    EXPECT_EQ(Albero::leggi(albero.utente + u"/ballo.sqm"_s), "mine");
}

TEST(Cartella, sample_lists_that_could_not_be_copied_come_at_the_next_start)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    // A file in the folder's place: nothing can be written there, not even by root.
    ASSERT_TRUE(QDir().mkpath(QFileInfo(albero.utente).path()));
    Albero::scrivi(albero.utente, "");
    portaEsempi(albero.liste, albero.utente);
    ASSERT_TRUE(QFile::remove(albero.utente));
    ASSERT_TRUE(QDir().mkpath(albero.utente));
    portaEsempi(albero.liste, albero.utente);
    EXPECT_EQ(albero.dati(), QStringList{u"saluto.sqm"_s});
}

TEST(Cartella, a_name_is_cut_behind_the_last_backslash_or_slash)
{
    const struct
    {
        const char16_t *percorso;
        const char16_t *nome;
    } casi[] = {{u"C:\\liste\\una.sqm", u"una.sqm"},
                {u"/home/io/una.sqm", u"una.sqm"},
                {u"C:/liste\\una.sqm", u"una.sqm"},
                {u"a\\b/c", u"c"},
                {u"una.sqm", u"una.sqm"},
                {u"", u""},
                {u"liste/", u""},
                {u"/", u""}};
    for (const auto &caso : casi)
        EXPECT_EQ(nomeDelFile(QString::fromUtf16(caso.percorso)), QString::fromUtf16(caso.nome));
}

TEST(Cartella, the_separator_is_added_unless_it_is_there)
{
    EXPECT_EQ(conSeparatore(u"/home/io"_s), u"/home/io/"_s);
    EXPECT_EQ(conSeparatore(u"/home/io/"_s), u"/home/io/"_s);
    EXPECT_EQ(conSeparatore(u"/"_s), u"/"_s);
    EXPECT_EQ(conSeparatore(u"C:\\"_s), u"C:\\"_s);
}

TEST(Cartella, a_sample_never_comes_beside_the_users_file_of_the_same_name_in_another_case)
{
    const Albero albero;
    albero.esempio(u"prog.dat"_s, "1;");
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    ASSERT_TRUE(QDir().mkpath(albero.utente));
    Albero::scrivi(albero.utente + u"/Prog.dat"_s, "0;");
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(QDir(albero.utente).entryList(QDir::Files),
              (QStringList{u"Prog.dat"_s, u"saluto.sqm"_s}));
    EXPECT_EQ(Albero::leggi(albero.utente + u"/Prog.dat"_s), "0;");
}
