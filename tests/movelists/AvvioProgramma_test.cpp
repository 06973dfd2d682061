// Starting the programs that lists name.
#include "movelists/AvvioProgramma.h"

#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/ProgrammaDiProva.h"
#include "tests/support/Scritte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// A program's folder without programs.
const QString altrove = u"/cartella che non c'è"_s;

} // namespace

TEST(AvvioProgramma, AFileThatIsThereIsTheProgramWhole)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"il mio programma.exe"_s, "");
    EXPECT_EQ(programmaEArgomenti(cartella.percorso(u"il mio programma.exe"_s), altrove),
              QStringList{cartella.percorso(u"il mio programma.exe"_s)});
}

TEST(AvvioProgramma, OtherwiseTheFirstWordIsTheProgram)
{
    EXPECT_EQ(programmaEArgomenti(u"programma uno due"_s, altrove),
              (QStringList{u"programma"_s, u"uno"_s, u"due"_s}));
}

TEST(AvvioProgramma, QuotesHoldAProgramAndAnArgumentTogether)
{
    EXPECT_EQ(programmaEArgomenti(u"\"C:\\Programmi vari\\a.exe\" \"b c\" d"_s, altrove),
              (QStringList{u"C:\\Programmi vari\\a.exe"_s, u"b c"_s, u"d"_s}));
}

TEST(AvvioProgramma, AnEmptyTextIsNoProgram)
{
    EXPECT_EQ(programmaEArgomenti(QString(), altrove), QStringList());
    EXPECT_EQ(programmaEArgomenti(u"   "_s, altrove), QStringList());
    EXPECT_FALSE(avviaProgramma(QString(), altrove));
    EXPECT_FALSE(avviaProgramma(u"\"\""_s, altrove));
}

TEST(AvvioProgramma, AFolderIsNoProgram)
{
    const CartellaDiProva cartella;
    EXPECT_FALSE(avviaProgramma(cartella.percorso(), altrove));
}

TEST(AvvioProgramma, WhatIsNotThereCannotBeStarted)
{
    EXPECT_FALSE(avviaProgramma(u"/cartella che non c'è/programma.exe"_s, altrove));
}

TEST(AvvioProgramma, AFileThatIsNoProgramCannotBeStarted)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"testo.txt"_s, "non sono un programma");
    EXPECT_FALSE(avviaProgramma(cartella.percorso(u"testo.txt"_s), altrove));
}

TEST(AvvioProgramma, AProgramWithABlankInItsPathIsStarted)
{
    const CartellaDiProva cartella;
    ASSERT_TRUE(avviaProgramma(programmaDiProva(cartella, u"il mio programma.exe"_s), altrove));
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
    EXPECT_EQ(cartella.leggi(u"esito.txt"_s), "");
}

TEST(AvvioProgramma, ArgumentsReachTheProgramUntouchedByAShell)
{
    const CartellaDiProva cartella;
    const QString programma = programmaDiProva(cartella, u"prova.exe"_s);
    ASSERT_TRUE(avviaProgramma(programma + u" \"a b\" $HOME ; * `ls` | x"_s, altrove));
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
    EXPECT_EQ(cartella.leggi(u"esito.txt"_s), "a b\n$HOME\n;\n*\n`ls`\n|\nx\n");
}

TEST(AvvioProgramma, ABareNameIsLookedForInTheProgramsFolderFirst)
{
    const CartellaDiProva cartella;
    const QString gioco = programmaDiProva(cartella, u"gioco.exe"_s);
    const QString mio = programmaDiProva(cartella, u"il mio gioco.exe"_s);
    const QTemporaryDir corrente;
    QDir::setCurrent(corrente.path());
    const auto parole = [&](const QString &testo) {
        return programmaEArgomenti(testo, cartella.percorso());
    };
    EXPECT_EQ(parole(u"gioco.exe"_s), QStringList{gioco});
    EXPECT_EQ(parole(u"gioco.exe uno"_s), (QStringList{gioco, u"uno"_s}));
    EXPECT_EQ(parole(u"il mio gioco.exe"_s), QStringList{mio});
    EXPECT_EQ(parole(u"\"il mio gioco.exe\" \"b c\""_s), (QStringList{mio, u"b c"_s}));
    // With a folder, written with either sign, it is no bare name.
    EXPECT_EQ(parole(u"./gioco.exe"_s), QStringList{u"./gioco.exe"_s});
    EXPECT_EQ(programmaEArgomenti(u"\"x\\gioco.exe\""_s, cartella.percorso()),
              QStringList{u"x\\gioco.exe"_s});
    QDir::setCurrent(cartella.percorso());
}

TEST(AvvioProgramma, ABareNameThatTheProgramsFolderLacksIsTheSystems)
{
    const CartellaDiProva cartella;
    // Of the same name, but no program.
    cartella.scrivi(u"gioco.exe"_s, "testo");
    const QTemporaryDir sistema;
    ASSERT_TRUE(
        QFile::copy(programmaDiProva(cartella, u"altro.exe"_s), sistema.filePath(u"gioco.exe"_s)));
    const QByteArray prima = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(sistema.path()));
    EXPECT_TRUE(avviaProgramma(u"gioco.exe uno"_s, cartella.percorso()));
    qputenv("PATH", prima);
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
    EXPECT_EQ(cartella.leggi(u"esito.txt"_s), "uno\n");
}
