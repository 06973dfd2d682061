// Starting the programs that lists name.
#include "AvvioProgramma.h"

#include "Attesa.h"
#include "CartellaDiProva.h"
#include "ProgrammaDiProva.h"
#include "Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(AvvioProgramma, AFileThatIsThereIsTheProgramWhole)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"il mio programma.exe"_s, "");
    EXPECT_EQ(programmaEArgomenti(cartella.percorso(u"il mio programma.exe"_s)),
              QStringList{cartella.percorso(u"il mio programma.exe"_s)});
}

TEST(AvvioProgramma, OtherwiseTheFirstWordIsTheProgram)
{
    EXPECT_EQ(programmaEArgomenti(u"programma uno due"_s),
              (QStringList{u"programma"_s, u"uno"_s, u"due"_s}));
}

TEST(AvvioProgramma, QuotesHoldAProgramAndAnArgumentTogether)
{
    EXPECT_EQ(programmaEArgomenti(u"\"C:\\Programmi vari\\a.exe\" \"b c\" d"_s),
              (QStringList{u"C:\\Programmi vari\\a.exe"_s, u"b c"_s, u"d"_s}));
}

TEST(AvvioProgramma, AnEmptyTextIsNoProgram)
{
    EXPECT_EQ(programmaEArgomenti(QString()), QStringList());
    EXPECT_EQ(programmaEArgomenti(u"   "_s), QStringList());
    EXPECT_FALSE(avviaProgramma(QString()));
    EXPECT_FALSE(avviaProgramma(u"\"\""_s));
}

TEST(AvvioProgramma, AFolderIsNoProgram)
{
    const CartellaDiProva cartella;
    EXPECT_FALSE(avviaProgramma(cartella.percorso()));
}

TEST(AvvioProgramma, WhatIsNotThereCannotBeStarted)
{
    EXPECT_FALSE(avviaProgramma(u"/cartella che non c'è/programma.exe"_s));
}

TEST(AvvioProgramma, AFileThatIsNoProgramCannotBeStarted)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"testo.txt"_s, "non sono un programma");
    EXPECT_FALSE(avviaProgramma(cartella.percorso(u"testo.txt"_s)));
}

TEST(AvvioProgramma, AProgramWithABlankInItsPathIsStarted)
{
    const CartellaDiProva cartella;
    ASSERT_TRUE(avviaProgramma(programmaDiProva(cartella, u"il mio programma.exe"_s)));
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
    EXPECT_EQ(cartella.leggi(u"esito.txt"_s), "");
}

TEST(AvvioProgramma, ArgumentsReachTheProgramUntouchedByAShell)
{
    const CartellaDiProva cartella;
    const QString programma = programmaDiProva(cartella, u"prova.exe"_s);
    ASSERT_TRUE(avviaProgramma(programma + u" \"a b\" $HOME ; * `ls` | x"_s));
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
    EXPECT_EQ(cartella.leggi(u"esito.txt"_s), "a b\n$HOME\n;\n*\n`ls`\n|\nx\n");
}
