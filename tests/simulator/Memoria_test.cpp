// The storage: listing, fetching, and the borders of what a path may reach.
#include "simulator/robot/Memoria.h"
#include "tests/simulator/RobotInProva.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QByteArray apri(int modo, const QByteArray &percorso)
{
    return b({40, modo, static_cast<int>(percorso.size())}) + percorso;
}

struct Disco : RobotInProva
{
    QTemporaryDir cartella;

    Disco()
    {
        QDir(cartella.path()).mkpath(u"disk/foto/dentro"_s);
        QDir(cartella.path()).mkpath(u"disk/vuota"_s);
        QDir(cartella.path()).mkpath(u"mmc"_s);
        scrivi(u"disk/a.txt"_s, "ciao");
        scrivi(u"disk/foto/x.jpg"_s, "non una foto");
        scrivi(u"mmc/carta.txt"_s, "carta");
        scrivi(u"segreto.txt"_s, "segreto");
        robot.memoria().impostaRadice(cartella.path());
        apri();
    }
    void scrivi(const QString &nome, const QByteArray &contenuto)
    {
        QFile f(cartella.filePath(nome));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenuto);
    }
    QByteArray chiedi(const QByteArray &byte)
    {
        robot.ricevi(byte);
        return presi();
    }
    // Walks a whole folder as the console does: open, entry by entry, close.
    QStringList elenco(const QByteArray &percorso)
    {
        const QByteArray aperta = chiedi(::apri(16, percorso));
        if (aperta.size() != 3 || aperta.at(2) != 0)
            return {u"stato %1"_s.arg(static_cast<quint8>(aperta.at(2)))};
        const int k = aperta.at(1);
        QStringList nomi;
        for (;;) {
            const QByteArray voce = chiedi(b({46, k}));
            if (voce.at(0) == 42) {
                EXPECT_EQ(voce, b({42, k, 255}));
                break;
            }
            EXPECT_EQ(voce.size(), static_cast<quint8>(voce.at(3)) + 5);
            nomi << QString::fromLatin1(voce.mid(4, static_cast<quint8>(voce.at(3)))) +
                        (voce.at(2) == 2 ? u"/"_s : QString());
        }
        chiedi(b({41, k}));
        return nomi;
    }
};
} // namespace

TEST(MemoriaDelRobot, TheRootListsCardsThenFoldersThenFiles)
{
    Disco p;
    EXPECT_EQ(p.elenco(""),
              (QStringList{u"disk/"_s, u"mmc/"_s, u"foto/"_s, u"vuota/"_s, u"a.txt"_s}));
}

TEST(MemoriaDelRobot, AFolderListsTheWayBackAndItsEntries)
{
    Disco p;
    EXPECT_EQ(p.elenco("foto"), (QStringList{u"./"_s, u"dentro/"_s, u"x.jpg"_s}));
    EXPECT_EQ(p.elenco("../mmc"), (QStringList{u"./"_s, u"carta.txt"_s}));
    EXPECT_EQ(p.elenco("vuota"), QStringList{u"./"_s});
}

TEST(MemoriaDelRobot, APointIsTheRoot)
{
    Disco p;
    EXPECT_EQ(p.elenco("."), p.elenco(""));
}

TEST(MemoriaDelRobot, AnEntryTelegramHasKindLengthNameAndSpareByte)
{
    Disco p;
    const QByteArray aperta = p.chiedi(apri(16, "foto"));
    ASSERT_EQ(aperta, b({42, 1, 0}));
    EXPECT_EQ(p.chiedi(b({46, 1})), b({47, 1, 2, 1, '.', 0}));
    p.chiedi(b({46, 1}));
    EXPECT_EQ(p.chiedi(b({46, 1})), b({47, 1, 1, 5, 'x', '.', 'j', 'p', 'g', 0}));
    EXPECT_EQ(p.chiedi(b({46, 1})), b({42, 1, 255}));
}

TEST(MemoriaDelRobot, AFileComesInOneBlockWithASpareByte)
{
    Disco p;
    ASSERT_EQ(p.chiedi(apri(1, "a.txt")), b({42, 1, 0}));
    EXPECT_EQ(p.chiedi(b({44, 1, 255, 255})), b({45, 1, 4, 0}) + "ciao" + b({0}));
    EXPECT_EQ(p.chiedi(b({44, 1, 255, 255})), b({42, 1, 255}));
}

TEST(MemoriaDelRobot, AnEmptyFileGivesABlockOfLengthZero)
{
    Disco p;
    p.scrivi(u"disk/niente"_s, {});
    ASSERT_EQ(p.chiedi(apri(1, "niente")), b({42, 1, 0}));
    EXPECT_EQ(p.chiedi(b({44, 1, 255, 255})), b({45, 1, 0, 0, 0}));
}

TEST(MemoriaDelRobot, AFileBeyondOneBlockIsCutAt65535Bytes)
{
    Disco p;
    p.scrivi(u"disk/grande"_s, QByteArray(70000, 'z'));
    p.chiedi(apri(1, "grande"));
    const QByteArray blocco = p.chiedi(b({44, 1, 255, 255}));
    EXPECT_EQ(blocco.size(), 65535 + 5);
    EXPECT_EQ(blocco.left(4), b({45, 1, 255, 255}));
}

TEST(MemoriaDelRobot, AShortReadGivesThatManyBytes)
{
    Disco p;
    p.chiedi(apri(1, "a.txt"));
    EXPECT_EQ(p.chiedi(b({44, 1, 2, 0})), b({45, 1, 2, 0, 'c', 'i', 0}));
    EXPECT_EQ(p.chiedi(b({44, 1, 2, 0})), b({45, 1, 2, 0, 'a', 'o', 0}));
}

TEST(MemoriaDelRobot, AFileOnACardIsReachedByItsShortName)
{
    Disco p;
    ASSERT_EQ(p.chiedi(apri(1, "mmc/carta.txt")), b({42, 1, 0}));
    EXPECT_EQ(p.chiedi(b({44, 1, 255, 255})).mid(4, 5), "carta");
}

TEST(MemoriaDelRobot, NoPathLeavesTheStorage)
{
    Disco p;
    ASSERT_TRUE(QFile::link(p.cartella.path(), p.cartella.filePath(u"disk/fuori"_s)));
    for (const QByteArray &percorso :
         {QByteArray("../segreto.txt"), QByteArray("../../segreto.txt"),
          QByteArray("../mmc/../segreto.txt"), QByteArray("fuori/segreto.txt"),
          QByteArray("/etc/passwd"), QByteArray("../../../../../etc/passwd")})
        EXPECT_EQ(p.chiedi(apri(1, percorso)), b({42, 0, 2})) << percorso.toStdString();
    EXPECT_EQ(p.chiedi(apri(16, "..")), b({42, 0, 2}));
    EXPECT_EQ(p.chiedi(apri(16, "../..")), b({42, 0, 2}));
}

TEST(MemoriaDelRobot, AMissingNameAndAWrongModeAreRefused)
{
    Disco p;
    EXPECT_EQ(p.chiedi(apri(1, "manca")), b({42, 0, 2}));
    EXPECT_EQ(p.chiedi(apri(16, "a.txt")), b({42, 0, 2}));
    EXPECT_EQ(p.chiedi(apri(1, "foto")), b({42, 0, 2}));
    EXPECT_EQ(p.chiedi(apri(7, "a.txt")), b({42, 0, 2}));
}

TEST(MemoriaDelRobot, ChannelsAreNumberedFromOneAndFreedByClosing)
{
    Disco p;
    EXPECT_EQ(p.chiedi(apri(1, "a.txt")), b({42, 1, 0}));
    EXPECT_EQ(p.chiedi(apri(16, "foto")), b({42, 2, 0}));
    EXPECT_TRUE(p.chiedi(b({41, 1})).isEmpty());
    EXPECT_EQ(p.chiedi(apri(1, "a.txt")), b({42, 1, 0}));
}

TEST(MemoriaDelRobot, TheTenthChannelIsRefused)
{
    Disco p;
    for (int k = 1; k <= 9; ++k)
        ASSERT_EQ(p.chiedi(apri(1, "a.txt")), b({42, k, 0}));
    EXPECT_EQ(p.chiedi(apri(1, "a.txt")), b({42, 0, Memoria::TroppiCanali}));
}

TEST(MemoriaDelRobot, AWrongChannelIsAnError)
{
    Disco p;
    EXPECT_EQ(p.chiedi(b({46, 5})), b({42, 5, Memoria::CanaleErrato}));
    EXPECT_EQ(p.chiedi(b({44, 5, 255, 255})), b({42, 5, Memoria::CanaleErrato}));
}

TEST(MemoriaDelRobot, StatusesCanBeOrdered)
{
    Disco p;
    p.robot.guasti().statoApertura = 28;
    EXPECT_EQ(p.chiedi(apri(16, "")), b({42, 0, 28}));
    p.robot.guasti().statoApertura = -1;
    p.robot.guasti().statoElenco = 4;
    p.robot.guasti().statoLettura = 5;
    p.chiedi(apri(16, ""));
    EXPECT_EQ(p.chiedi(b({46, 1})), b({42, 1, 4}));
    p.chiedi(apri(1, "a.txt"));
    EXPECT_EQ(p.chiedi(b({44, 2, 255, 255})), b({42, 2, 5}));
}

TEST(MemoriaDelRobot, WrongLengthsCanBeOrdered)
{
    Disco p;
    p.robot.guasti().deltaLunghezza = 3;
    p.chiedi(apri(1, "a.txt"));
    EXPECT_EQ(p.chiedi(b({44, 1, 255, 255})), b({45, 1, 7, 0}) + "ciao" + b({0}));
}

TEST(MemoriaDelRobot, AFolderWithoutDiskIsTheDisk)
{
    QTemporaryDir cartella;
    QFile f(cartella.filePath(u"solo.txt"_s));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    Disco p;
    p.robot.memoria().impostaRadice(cartella.path());
    EXPECT_EQ(p.elenco(""), (QStringList{u"disk/"_s, u"solo.txt"_s}));
    EXPECT_EQ(p.elenco("../mmc"), QStringList{u"stato 2"_s});
}

TEST(MemoriaDelRobot, ADiskFolderFindsItsCardsBesideIt)
{
    Disco p;
    p.robot.memoria().impostaRadice(p.cartella.filePath(u"disk"_s));
    EXPECT_EQ(p.elenco("../mmc"), (QStringList{u"./"_s, u"carta.txt"_s}));
    EXPECT_EQ(p.elenco("../usb"), QStringList{u"stato 2"_s});
}

TEST(MemoriaDelRobot, WithoutAFolderThereIsSampleContent)
{
    RobotInProva p;
    const QString radice = p.robot.memoria().radice();
    EXPECT_FALSE(QImage(radice + u"/disk/foto/palla.jpg"_s).isNull());
    QFile wav(radice + u"/disk/suoni/campanella.wav"_s);
    ASSERT_TRUE(wav.open(QIODevice::ReadOnly));
    const QByteArray byte = wav.readAll();
    EXPECT_EQ(byte.left(4), "RIFF");
    EXPECT_EQ(byte.mid(8, 8), "WAVEfmt ");
    EXPECT_LT(byte.size(), 65536);
}

TEST(MemoriaDelRobot, ClosingTheSessionClosesTheChannels)
{
    Disco p;
    p.chiedi(apri(1, "a.txt"));
    EXPECT_EQ(p.robot.memoria().aperti(), 1);
    p.robot.ricevi(b({4}));
    EXPECT_EQ(p.robot.memoria().aperti(), 0);
}
