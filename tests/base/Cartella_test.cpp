#include "base/Cartella.h"

#include "tests/support/Controlli.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TEST(Cartella, TheProgramsFolderIsTheExecutablesIfItIsWritable)
{
    EXPECT_EQ(trovaCartellaProgramma(), QCoreApplication::applicationDirPath());
    const QDir cartella(trovaCartellaProgramma());
    EXPECT_TRUE(cartella.entryList({u"prova.*"_s}, QDir::Files).isEmpty())
        << "the temporary file is still there";
}

namespace {

// The folders of an installed program, and a user's data folder that does not exist yet.
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

TEST(Cartella, AnInstalledProgramUsesTheUsersFolderEvenIfItsOwnIsWritable)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.utente);
    EXPECT_TRUE(QFileInfo(albero.utente).isWritable());
    EXPECT_TRUE(QDir(albero.bin).isEmpty());
}

TEST(Cartella, AProgramThatIsNotInstalledUsesTheFolderOfTheExecutable)
{
    const Albero albero;
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.bin);
    EXPECT_FALSE(QFileInfo::exists(albero.utente));
}

TEST(Cartella, TheFirstStartCopiesTheSampleLists)
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

TEST(Cartella, AProgramThatIsNotInstalledCopiesTheSamplesNextToIt)
{
    const Albero albero;
    ASSERT_TRUE(QDir().mkpath(albero.bin + u"/liste"_s));
    Albero::scrivi(albero.bin + u"/liste/saluto.sqm"_s, "Pausa 1\r\n");
    Albero::scrivi(albero.bin + u"/liste/prog.dat"_s, "1;");
    EXPECT_EQ(trovaCartellaProgramma(albero.bin, albero.utente), albero.bin);
    EXPECT_EQ(Albero::leggi(albero.bin + u"/saluto.sqm"_s), "Pausa 1\r\n");
    EXPECT_EQ(Albero::leggi(albero.bin + u"/prog.dat"_s), "1;");
    // A newer version unpacked into the same folder keeps the user's files.
    Albero::scrivi(albero.bin + u"/prog.dat"_s, "0;");
    ASSERT_TRUE(QFile::remove(albero.bin + u"/saluto.sqm"_s));
    trovaCartellaProgramma(albero.bin, albero.utente);
    EXPECT_EQ(Albero::leggi(albero.bin + u"/prog.dat"_s), "0;");
    EXPECT_EQ(Albero::leggi(albero.bin + u"/saluto.sqm"_s), "none");
}

TEST(Cartella, ASampleListNeverReplacesAListOfTheUser)
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

TEST(Cartella, ASampleListThatTheUserDeletedOrChangedIsNotCopiedAgain)
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

TEST(Cartella, SampleListsThatCouldNotBeCopiedAreCopiedAtTheNextStart)
{
    const Albero albero;
    albero.esempio(u"saluto.sqm"_s, "Pausa 1\r\n");
    // A file with the name of the folder: nothing can be written into it, not even by root.
    ASSERT_TRUE(QDir().mkpath(QFileInfo(albero.utente).path()));
    Albero::scrivi(albero.utente, "");
    portaEsempi(albero.liste, albero.utente);
    ASSERT_TRUE(QFile::remove(albero.utente));
    ASSERT_TRUE(QDir().mkpath(albero.utente));
    portaEsempi(albero.liste, albero.utente);
    EXPECT_EQ(albero.dati(), QStringList{u"saluto.sqm"_s});
}

TEST(Cartella, TheFileNameIsWhatFollowsTheLastBackslashOrSlash)
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

TEST(Cartella, TheSeparatorIsAddedUnlessItIsThereAlready)
{
    EXPECT_EQ(conSeparatore(u"/home/io"_s), u"/home/io/"_s);
    EXPECT_EQ(conSeparatore(u"/home/io/"_s), u"/home/io/"_s);
    EXPECT_EQ(conSeparatore(u"/"_s), u"/"_s);
    EXPECT_EQ(conSeparatore(u"C:\\"_s), u"C:\\"_s);
}

TEST(Cartella, ASampleIsNotCopiedIfTheUserHasThatNameInAnotherCase)
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
