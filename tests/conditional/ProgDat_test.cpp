// The default condition in "Prog.dat".
#include "conditional/ProgDat.h"

#include "shell/Gest_File.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/ErroreDi.h"
#include "tests/support/Scritte.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

TEST(ProgDat, TheConditionStandsBehindTheFirstSemicolon)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"prog.dat"_s, "0;no,no,25,no,no");
    EXPECT_EQ(ProgDat::leggiCondizione(), u"no,no,25,no,no"_s);
    cartella.scrivi(u"prog.dat"_s, "1;no;no");
    EXPECT_EQ(ProgDat::leggiCondizione(), u"no;no"_s);
}

TEST(ProgDat, WithoutASemicolonAllIsTheCondition)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"prog.dat"_s, "1");
    EXPECT_EQ(ProgDat::leggiCondizione(), u"1"_s);
}

TEST(ProgDat, AnEmptyFieldIsTheFactoryDefault)
{
    const CartellaDiProva cartella;
    for (const char *testo : {"1;", "", ";"}) {
        cartella.scrivi(u"prog.dat"_s, testo);
        EXPECT_EQ(ProgDat::leggiCondizione(), u"00:00:00,no,no,no,no"_s);
    }
}

TEST(ProgDat, AMissingFileIsTheCallersError)
{
    const CartellaDiProva cartella;
    EXPECT_EQ(erroreDi([] { ProgDat::leggiCondizione(); }), Errore::FileNonTrovato);
    EXPECT_EQ(erroreDi([] { ProgDat::scriviCondizione(u"no"_s); }), Errore::FileNonTrovato);
    EXPECT_EQ(cartella.elenco(), QStringList());
}

TEST(ProgDat, WritingKeepsTheSetting)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"prog.dat"_s, "0;00:00:00,no,no,no,no");
    ProgDat::scriviCondizione(u"no,101,no,no,no"_s);
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;no,101,no,no,no");
    EXPECT_EQ(cartella.elenco(), QStringList{u"prog.dat"_s});
}

TEST(ProgDat, WritingFindsTheFileWhateverItsCase)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"PROG.DAT"_s, "0;");
    ProgDat::scriviCondizione(u"no,no,no,no,4"_s);
    EXPECT_EQ(cartella.leggi(u"PROG.DAT"_s), "0;no,no,no,no,4");
    EXPECT_EQ(ProgDat::leggiCondizione(), u"no,no,no,no,4"_s);
}

TEST(ProgDat, AnEmptySettingBecomes1)
{
    const CartellaDiProva cartella;
    for (const char *testo : {"", ";", ";no,no,25,no,no"}) {
        cartella.scrivi(u"prog.dat"_s, testo);
        ProgDat::scriviCondizione(u"no,no,no,1,no"_s);
        EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;no,no,no,1,no");
    }
}

TEST(ProgDat, ASettingWithoutASemicolonIsKept)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"prog.dat"_s, "0");
    ProgDat::scriviCondizione(u"no,no,no,1,no"_s);
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;no,no,no,1,no");
}

TEST(ProgDat, AllBytesSurvive)
{
    const CartellaDiProva cartella;
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti += static_cast<char>(i);
    cartella.scrivi(u"prog.dat"_s, "1;" + tutti);
    ProgDat::scriviCondizione(ProgDat::leggiCondizione());
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;" + tutti);
}

TEST(ProgDat, TheUsersOwnConditionWinsOverTheSampleBesideIt)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"Prog.dat"_s, "0;no,no,25,no,no");
    cartella.scrivi(u"prog.dat"_s, "1;");
    EXPECT_EQ(ProgDat::leggiCondizione(), u"no,no,25,no,no"_s);
    ProgDat::scriviCondizione(u"no,no,26,no,no"_s);
    EXPECT_EQ(cartella.leggi(u"Prog.dat"_s), "0;no,no,26,no,no");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;");
}
