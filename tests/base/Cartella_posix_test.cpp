// The program's folder, and the paths of the ports on Linux.
#include "base/Cartella.h"

#include "serial/Porta.h"
#include "tests/support/Controlli.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(Cartella, TheProgramsFolderIsTheUsersIfTheExecutablesIsNotWritable)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become a user who may not write there";
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

TEST(PercorsoPorta, WithoutAnEntryInTheFolderItIsTheLineOfTheSystem)
{
    const QTemporaryDir cartella;
    EXPECT_EQ(percorsoPorta(1, cartella.path()), u"/dev/ttyS0"_s);
    EXPECT_EQ(percorsoPorta(99, cartella.path()), u"/dev/ttyS98"_s);
}

TEST(PercorsoPorta, WithAnEntryInTheFolderItIsThatEntry)
{
    const QTemporaryDir cartella;
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, cartella.filePath(u"COM3"_s)));
    EXPECT_EQ(percorsoPorta(3, cartella.path()), cartella.filePath(u"COM3"_s));
    EXPECT_EQ(percorsoPorta(33, cartella.path()), u"/dev/ttyS32"_s);
    EXPECT_EQ(percorsoPorta(2, cartella.path()), u"/dev/ttyS1"_s);
}

TEST(PercorsoPorta, ABrokenLinkCountsAsTheEntry)
{
    const QTemporaryDir cartella;
    ASSERT_TRUE(QFile::link(u"/dev/not-there"_s, cartella.filePath(u"COM3"_s)));
    EXPECT_EQ(percorsoPorta(3, cartella.path()), cartella.filePath(u"COM3"_s));
}
