// Every row of the byte tables, recognised from its bytes alone.
#include "tests/simulator/RobotInProva.h"
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct Riga
{
    std::initializer_list<int> byte;
    const char16_t *testo;
};

const std::initializer_list<Riga> tabella{
    {{10, 10, 128, 0}, u"AvviaVideo a=10 b=0"},
    {{11, 160, 0}, u"AvviaVideo partenza"},
    {{12}, u"FermaVideo"},
    {{19, 33, 1}, u"TestaSu n=1"},
    {{19, 34, 4}, u"TestaGiu n=4"},
    {{19, 35, 12}, u"TestaDestra n=12"},
    {{19, 36, 2}, u"TestaSinistra n=2"},
    {{19, 37, 8}, u"LedTesta nome=Vs acceso=1"},
    {{19, 37, 128}, u"LedTesta nome=Vd acceso=1"},
    {{19, 37, 4}, u"LedTesta nome=Rs acceso=1"},
    {{19, 37, 64}, u"LedTesta nome=Rd acceso=1"},
    {{19, 38, 2}, u"LedTesta nome=Gs acceso=0"},
    {{19, 38, 32}, u"LedTesta nome=Gd acceso=0"},
    {{19, 38, 1}, u"LedTesta nome=Bs acceso=0"},
    {{19, 38, 16}, u"LedTesta nome=Bd acceso=0"},
    {{19, 140, 255}, u"Tool n=1 acceso=1"},
    {{19, 140, 0}, u"Tool n=1 acceso=0"},
    {{19, 139, 255}, u"Tool n=2 acceso=1"},
    {{19, 139, 0}, u"Tool n=2 acceso=0"},
    {{19, 161, 1}, u"Pinza apri=1"},
    {{19, 161, 2}, u"Pinza apri=0"},
    {{19, 65, 1}, u"BaseAvanti v=1"},
    {{19, 65, 2}, u"BaseAvanti v=2"},
    {{19, 66, 1}, u"BaseIndietro v=1"},
    {{19, 66, 2}, u"BaseIndietro v=2"},
    {{19, 67, 18}, u"BaseDestra v=1"},
    {{19, 67, 17}, u"BaseDestra v=2"},
    {{19, 67, 16}, u"BaseDestra v=3"},
    {{19, 68, 18}, u"BaseSinistra v=1"},
    {{19, 68, 17}, u"BaseSinistra v=2"},
    {{19, 68, 16}, u"BaseSinistra v=3"},
    {{19, 65, 0}, u"BaseStop"},
    {{19, 129, 2}, u"Braccio a=0 v=2"},
    {{19, 129, 4}, u"Braccio a=0 v=4"},
    {{19, 130, 0}, u"Braccio a=1 v=0"},
    {{19, 73, 4}, u"Bacino v=1"},
    {{19, 73, 8}, u"Bacino v=2"},
    {{19, 131, 255}, u"LedPosizione v=-1"},
    {{19, 131, 0}, u"LedPosizione v=0"},
    {{19, 3, 1}, u"ScattaFoto"},
    {{19, 97, 67},
     u"Riproduci n=67 frase 1 \"Memorizzerò la tua voce per riconoscerti in futuro\""},
    {{19, 97, 206}, u"Riproduci n=206 frase 140 \"Vuoi giocare con me?\""},
    {{19, 97, 207}, u"Riproduci n=207 suono 1 \"Clacson\""},
    {{19, 97, 222}, u"Riproduci n=222 suono 16 \"Bip singolo\""},
    {{19, 99, 129}, u"MexPlay v=1"},
    {{19, 99, 74}, u"MexRegistra v=10"},
    {{19, 99, 35}, u"MexCancella v=3"},
    {{19, 99, 0}, u"MexStop"},
    {{19, 2, 0}, u"ProgInterno n=0"},
    {{19, 2, 1}, u"ProgInterno n=1"},
    {{19, 2, 5}, u"ProgInterno n=2"},
    {{19, 2, 37}, u"ProgInterno n=10"},
    {{27, 70}, u"RichiediSensori"},
    {{29, 132}, u"RichiediStatoA"},
    {{28, 103}, u"RichiediStatoB"},
    {{40, 16, 6, '.', '.', '/', 'm', 'm', 'c'}, u"ApriPercorso n=16 percorso=\"../mmc\""},
    {{40, 1, 5, 'a', '.', 't', 'x', 't'}, u"ApriPercorso n=1 percorso=\"a.txt\""},
    {{40, 16, 0}, u"ApriPercorso n=16 percorso=\"\""},
    {{44, 1, 255, 255}, u"LeggiBlocco c=1 a=255 b=255"},
    {{46, 1}, u"LeggiElenco c=1"},
    {{41, 1}, u"ChiudiCanale c=1"},
    {{3, 1, 1}, u"ApriSessione"},
    {{1}, u"Sollecito"},
    {{4}, u"ChiudiSessione"},
};

QByteArray tuttiIByte()
{
    QByteArray byte;
    for (const Riga &riga : tabella)
        byte += b(riga.byte);
    return byte;
}

QStringList tuttiITesti()
{
    QStringList testi;
    for (const Riga &riga : tabella)
        testi << QString::fromUtf16(riga.testo);
    return testi;
}

// "40, ..., 3" swallows what follows by its length: the rows above are all whole.
QString unTesto(const QByteArray &byte)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(byte);
    return p.diario.comandi(true).join(u'|');
}
} // namespace

TEST(Comandi, EveryRowIsRecognisedFromItsBytes)
{
    for (const Riga &riga : tabella)
        EXPECT_EQ(unTesto(b(riga.byte)), QString::fromUtf16(riga.testo));
}

TEST(Comandi, AllRowsAreRecognisedInOneReading)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(tuttiIByte());
    EXPECT_EQ(p.diario.comandi(true), tuttiITesti());
    EXPECT_TRUE(p.diario.nonCapiti().isEmpty());
}

TEST(Comandi, AllRowsAreRecognisedByteByByte)
{
    RobotInProva p;
    p.apri();
    for (const char c : tuttiIByte())
        p.robot.ricevi(QByteArray(1, c));
    EXPECT_EQ(p.diario.comandi(true), tuttiITesti());
    EXPECT_TRUE(p.diario.nonCapiti().isEmpty());
}

TEST(Comandi, EachEntryKeepsItsBytes)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 65, 1, 27, 70}));
    ASSERT_EQ(p.diario.voci().size(), 2);
    EXPECT_EQ(p.diario.voci().at(0).byte, b({19, 65, 1}));
    EXPECT_EQ(p.diario.voci().at(1).byte, b({27, 70}));
}

TEST(Comandi, AnIncompleteCommandWaits)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 65}));
    EXPECT_TRUE(p.diario.voci().isEmpty());
    p.robot.ricevi(b({2}));
    EXPECT_EQ(p.diario.comandi(), QStringList{u"BaseAvanti v=2"_s});
}

TEST(Comandi, AByteThatStartsNothingIsNotedAndReadingGoesOn)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({200, 19, 65, 0, 255}));
    EXPECT_EQ(p.diario.nonCapiti(), b({200, 255}));
    EXPECT_EQ(p.diario.comandi(), QStringList{u"BaseStop"_s});
}

TEST(Comandi, AnUnknownFunctionCostsOnlyTheFirstByte)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({19, 19, 65, 1}));
    EXPECT_EQ(p.diario.nonCapiti(), b({19}));
    EXPECT_EQ(p.diario.comandi(), QStringList{u"BaseAvanti v=1"_s});
}

TEST(Comandi, AWrongFixedByteIsNotUnderstood)
{
    RobotInProva p;
    p.apri();
    p.robot.ricevi(b({27, 71, 10, 10, 127, 0}));
    EXPECT_EQ(p.diario.nonCapiti(), b({27, 71, 10, 10, 127, 0}));
    EXPECT_TRUE(p.diario.comandi(true).isEmpty());
}

TEST(Comandi, AValueOutsideTheTablesIsUnderstoodAndRemarked)
{
    for (const QByteArray &byte :
         {b({19, 65, 7}), b({19, 37, 0}), b({19, 97, 66}), b({19, 97, 223}), b({19, 73, 5}),
          b({19, 161, 3}), b({19, 2, 2}), b({19, 99, 139}), b({19, 67, 19}), b({40, 2, 0})}) {
        RobotInProva p;
        p.apri();
        p.robot.ricevi(byte);
        ASSERT_EQ(p.diario.comandi().size(), 1);
        EXPECT_EQ(p.diario.voci().constFirst().nota, u"valore non previsto"_s);
    }
}

TEST(Comandi, AnUnknownLedNameIsMaskZero)
{
    EXPECT_EQ(unTesto(b({19, 37, 0})), u"LedTesta nome=? acceso=1"_s);
}
