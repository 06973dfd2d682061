// The program as it is started from a shell.
#include "tests/simulator/Attendi.h"
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
struct TessaroSim : testing::Test
{
    QProcess processo;
    QTemporaryDir cartella;

    void TearDown() override
    {
        if (processo.state() != QProcess::NotRunning) {
            processo.kill();
            processo.waitForFinished();
        }
    }
    void parti(const QStringList &argomenti)
    {
        processo.start(QStringLiteral(TESSARO_SIM), argomenti);
        ASSERT_TRUE(processo.waitForStarted());
    }
    bool finisce()
    {
        return attendi([&] { return processo.state() == QProcess::NotRunning; });
    }
    QString primaRiga()
    {
        attendi([&] { return processo.canReadLine() || processo.state() == QProcess::NotRunning; });
        return QString::fromUtf8(processo.readLine()).trimmed();
    }
};
} // namespace

TEST_F(TessaroSim, ItsFirstLineIsTheDevice)
{
    parti({u"--headless"_s});
    const QString percorso = primaRiga();
    EXPECT_TRUE(QFileInfo(percorso).exists()) << percorso.toStdString();
}

TEST_F(TessaroSim, AProgramTalksToItThroughTheLinkAndTheLogTells)
{
    const QString log = cartella.filePath(u"diario.txt"_s);
    parti({u"--headless"_s, u"--cartella"_s, cartella.path(), u"--porta"_s, u"5"_s, u"--log"_s, log,
           u"--temperatura=19"_s, u"--batterie=7,8"_s});
    ASSERT_FALSE(primaRiga().isEmpty());
    const int fd = ::open(QFile::encodeName(cartella.filePath(u"COM5"_s)).constData(),
                          O_RDWR | O_NOCTTY | O_NONBLOCK);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(::write(fd, "\x03\x01\x01", 3), 3);
    QByteArray letti;
    EXPECT_TRUE(attendi([&] {
        char c[64];
        const ssize_t n = ::read(fd, c, sizeof c);
        if (n > 0)
            letti.append(c, n);
        return letti == QByteArray("\x20\x07\x08\x1f\x13");
    }));
    ::close(fd);
    EXPECT_TRUE(attendi([&] {
        QFile f(log);
        return f.open(QIODevice::ReadOnly) && f.readAll().contains("ApriSessione");
    }));
}

TEST_F(TessaroSim, ItEndsCleanlyWhenAskedToAndTakesItsLinkAway)
{
    for (const int segnale : {SIGTERM, SIGINT}) {
        parti({u"--headless"_s, u"--cartella"_s, cartella.path(), u"--porta"_s, u"2"_s});
        ASSERT_FALSE(primaRiga().isEmpty());
        ASSERT_TRUE(QFileInfo(cartella.filePath(u"COM2"_s)).isSymLink());
        ::kill(static_cast<pid_t>(processo.processId()), segnale);
        ASSERT_TRUE(finisce());
        EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(processo.exitCode(), 0);
        EXPECT_FALSE(QFileInfo(cartella.filePath(u"COM2"_s)).isSymLink());
    }
}

TEST_F(TessaroSim, TheHelpIsItalianAndEndsTheProgram)
{
    parti({u"--aiuto"_s});
    ASSERT_TRUE(finisce());
    EXPECT_EQ(processo.exitCode(), 0);
    EXPECT_TRUE(processo.readAllStandardOutput().startsWith("Uso: tessaro-sim [opzioni]"));
}

TEST_F(TessaroSim, AWrongOptionEndsItWithCodeTwo)
{
    parti({u"--porta"_s, u"0"_s});
    ASSERT_TRUE(finisce());
    EXPECT_EQ(processo.exitCode(), 2);
    EXPECT_TRUE(processo.readAllStandardError().contains("--porta"));
}

TEST_F(TessaroSim, AFolderThatIsMissingEndsItWithCodeOne)
{
    parti({u"--headless"_s, u"--memoria"_s, u"/non/esiste"_s});
    ASSERT_TRUE(finisce());
    EXPECT_EQ(processo.exitCode(), 1);
}
