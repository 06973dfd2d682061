#include "Cartella.h"

#include "Aiuti.h"
#include "Porta.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <sys/stat.h>

TEST(Cartella, the_programs_folder_is_the_executables_where_it_can_be_written_to)
{
    EXPECT_EQ(trovaCartellaProgramma(), QCoreApplication::applicationDirPath());
    const QDir cartella(trovaCartellaProgramma());
    EXPECT_TRUE(cartella.entryList({u"prova.*"_s}, QDir::Files).isEmpty()) << "the try left a file";
}

TEST(Cartella, the_programs_folder_is_the_users_where_the_executables_cannot_be_written_to)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become somebody who may not write there";
    QTemporaryDir casa;
    ASSERT_EQ(::chmod(QFile::encodeName(casa.path()).constData(), 0777), 0);
    qputenv("XDG_DATA_HOME", QFile::encodeName(casa.path()));
    EXPECT_EXIT(
        {
            if (::setuid(65534) != 0)
                std::_Exit(3);
            const QString cartella = trovaCartellaProgramma();
            std::_Exit(cartella.startsWith(casa.path()) && QFileInfo(cartella).isWritable() ? 0
                                                                                            : 1);
        },
        ::testing::ExitedWithCode(0), "");
    qunsetenv("XDG_DATA_HOME");
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

TEST(PercorsoPorta, without_an_entry_in_the_folder_it_is_the_systems_own_line)
{
    const QTemporaryDir cartella;
    EXPECT_EQ(percorsoPorta(1, cartella.path()), u"/dev/ttyS0"_s);
    EXPECT_EQ(percorsoPorta(99, cartella.path()), u"/dev/ttyS98"_s);
}

TEST(PercorsoPorta, with_an_entry_in_the_folder_it_is_that_entry)
{
    const QTemporaryDir cartella;
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, cartella.filePath(u"COM3"_s)));
    EXPECT_EQ(percorsoPorta(3, cartella.path()), cartella.filePath(u"COM3"_s));
    EXPECT_EQ(percorsoPorta(33, cartella.path()), u"/dev/ttyS32"_s);
    EXPECT_EQ(percorsoPorta(2, cartella.path()), u"/dev/ttyS1"_s);
}

TEST(PercorsoPorta, a_link_that_leads_nowhere_is_still_the_entry)
{
    const QTemporaryDir cartella;
    ASSERT_TRUE(QFile::link(u"/dev/not-there"_s, cartella.filePath(u"COM3"_s)));
    EXPECT_EQ(percorsoPorta(3, cartella.path()), cartella.filePath(u"COM3"_s));
}
