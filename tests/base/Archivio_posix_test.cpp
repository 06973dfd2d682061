// Folders with the sticky bit, as /tmp: all users create files, but replace only their own.
#include "base/Archivio.h"

#include "tests/support/Controlli.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(ArchivioPosix, AFileThatMayBeWrittenButNotReplacedIsOverwritten)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    const QTemporaryDir cartella;
    ASSERT_EQ(::chmod(QFile::encodeName(cartella.path()).constData(), 01777), 0);
    for (const QString &breve : {u"prova.dat"_s, QString(255, u'x')}) {
        const QString nome = cartella.filePath(breve);
        {
            QFile file(nome);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write("the old text");
        }
        ASSERT_EQ(::chmod(QFile::encodeName(nome).constData(), 0666), 0);
        ASSERT_EQ(::seteuid(65534), 0);
        const int errore = erroreDi([&] {
            Archivio::apri(1, nome, Archivio::Modo::Scrittura);
            Archivio::stampa(1, "new");
            Archivio::chiudi();
        });
        EXPECT_EQ(::seteuid(0), 0);
        EXPECT_EQ(errore, 0);
        QFile file(nome);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "new");
        EXPECT_EQ(QDir(cartella.path()).entryList(QDir::Files), QStringList{breve});
        ASSERT_TRUE(file.remove());
    }
}
