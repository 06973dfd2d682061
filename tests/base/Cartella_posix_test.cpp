// The program's folder and the ports of Linux.
#include "base/Cartella.h"

#include "tests/support/Controlli.h"
#include "serial/Porta.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

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
