// The small modules without a window: Abilita_Disabilita, Se_Casi, AggiungiALista, Gest_Variabili,
// Gest_File.
#include "base/Archivio.h"
#include "controls/Combo.h"
#include "controls/Elenco.h"
#include "controls/Grafica.h"
#include "controls/Pulsanti.h"
#include "controls/Temporizzatore.h"
#include "shell/Abilita_Disabilita.h"
#include "shell/AggiungiALista.h"
#include "shell/Gest_File.h"
#include "shell/Gest_Variabili.h"
#include "shell/Se_Casi.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/ErroreDi.h"
#include "tests/support/Scritte.h"

#include <QDir>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(ImpostaAbilitati, EnablesAndDisablesTimersButtonsAndImagesInOneCall)
{
    QWidget finestra;
    Temporizzatore timer(u"tmr"_s, &finestra);
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    Immagine immagine(u"img"_s, &finestra);
    ImpostaAbilitati(true, timer, pulsante, immagine);
    EXPECT_TRUE(timer.Enabled() && pulsante.Enabled() && immagine.Enabled());
    ImpostaAbilitati(false, timer, pulsante, immagine);
    EXPECT_FALSE(timer.Enabled() || pulsante.Enabled() || immagine.Enabled());
}

TEST(ImpostaAbilitati, LeavesOtherControlsAlone)
{
    QWidget finestra;
    Pulsante uno(u"uno"_s, &finestra, u"1"_s);
    Pulsante altro(u"altro"_s, &finestra, u"2"_s);
    ImpostaAbilitati(false, uno);
    EXPECT_TRUE(altro.Enabled());
}

TEST(ImpostaVisibili, ShowsAndHidesAllControlsGiven)
{
    QWidget finestra;
    Forma forma(u"shp"_s, &finestra);
    Etichetta etichetta(u"lbl"_s, &finestra);
    ImpostaVisibili(false, forma, etichetta);
    EXPECT_FALSE(forma.Visible() || etichetta.Visible());
    ImpostaVisibili(true, forma, etichetta);
    EXPECT_TRUE(forma.Visible() && etichetta.Visible());
}

TEST(ContieneValore, IsFalseForAnEmptyList)
{
    EXPECT_FALSE(ContieneValore(76));
}

TEST(ContieneValore, FindsTheValueAtAnyPosition)
{
    EXPECT_TRUE(ContieneValore(76, 76, 481));
    EXPECT_TRUE(ContieneValore(481, 76, 481));
    EXPECT_FALSE(ContieneValore(53, 76, 481));
}

TEST(AggiungiVoci, AddsTheEntriesInOrderAfterTheExistingOnes)
{
    Elenco lista(u"lst"_s, nullptr);
    lista.AddItem(u"prima"_s);
    AggiungiVoci(lista, QStringList{u"due"_s, u"tre"_s});
    ASSERT_EQ(lista.ListCount(), 3);
    EXPECT_EQ(lista.List(0), u"prima"_s);
    EXPECT_EQ(lista.List(1), u"due"_s);
    EXPECT_EQ(lista.List(2), u"tre"_s);
}

TEST(AggiungiVoci, FillsACombo)
{
    Combo combo(u"cb"_s, nullptr);
    AggiungiVoci(combo, QStringList{u"1"_s, u"2"_s});
    EXPECT_EQ(combo.ListCount(), 2);
}

TEST(Proporzione, Of255In255WithLength615Is615)
{
    EXPECT_EQ(Proporzione(255, 255, 615), 615);
}

TEST(Proporzione, Of1In255WithLength615Is2)
{
    EXPECT_EQ(Proporzione(1, 255, 615), 2);
}

TEST(Proporzione, Of0Is0)
{
    EXPECT_EQ(Proporzione(0, 255, 615), 0);
}

TEST(Proporzione, RoundsTowardZeroOnBothSides)
{
    EXPECT_EQ(Proporzione(7, 2, 1), 3);
    EXPECT_EQ(Proporzione(7, -2, 1), -3);
    EXPECT_EQ(Proporzione(7, 2, -1), -3);
}

TEST(Proporzione, WithAFullScaleOf0IsADivisionError)
{
    EXPECT_EQ(erroreDi([] { Proporzione(1, 0, 615); }), 11);
}

TEST(Proporzione, BeyondThirtyTwoBitsIsAnOverflow)
{
    EXPECT_EQ(erroreDi([] { Proporzione(255, 1, std::numeric_limits<qint32>::max()); }), 6);
}

TEST(ModuloByte, IsTheRemainderOfUnsignedBytes)
{
    EXPECT_EQ(ModuloByte(200, 7), 4);
    EXPECT_EQ(ModuloByte(255, 128), 127);
    EXPECT_EQ(ModuloByte(6, 7), 6);
    EXPECT_EQ(ModuloByte(0, 7), 0);
}

TEST(ModuloByte, ByZeroIsADivisionError)
{
    EXPECT_EQ(erroreDi([] { ModuloByte(1, 0); }), 11);
}

TEST(BitAlti, OfThreeBitsOf200Is6)
{
    EXPECT_EQ(BitAlti(200, 3), 6);
}

TEST(BitAlti, ReturnsTheHighBitsForEveryCount)
{
    for (int bit = 0; bit <= 8; ++bit) {
        for (int byte = 0; byte <= 255; ++byte)
            ASSERT_EQ(BitAlti(static_cast<quint8>(byte), static_cast<quint8>(bit)),
                      byte / (1 << (8 - bit)))
                << byte << ' ' << bit;
    }
}

TEST(LeggiFile, WithModo2ReturnsAnEmptyTextAndOpensNothing)
{
    const CartellaDiProva cartella;
    EXPECT_EQ(LeggiFile(u"manca"_s, 2), QByteArray());
    EXPECT_EQ(LeggiFile(u"manca"_s, 255), QByteArray());
}

TEST(LeggiFile, ReturnsEveryByteInBothModes)
{
    const CartellaDiProva cartella;
    QByteArray tutti;
    for (int i = 0; i < 256; ++i)
        tutti.append(static_cast<char>(i));
    tutti += "\r\n\n\r";
    cartella.scrivi(u"byte.dat"_s, tutti);
    EXPECT_EQ(LeggiFile(u"byte.dat"_s, 0), tutti);
    EXPECT_EQ(LeggiFile(u"byte.dat"_s, 1), tutti);
}

TEST(LeggiFile, OfAnEmptyFileIsAnEmptyText)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"vuoto"_s, {});
    EXPECT_EQ(LeggiFile(u"vuoto"_s, 0), QByteArray());
}

TEST(LeggiFile, ThrowsTheErrorOfAMissingFile)
{
    const CartellaDiProva cartella;
    EXPECT_EQ(erroreDi([] { LeggiFile(u"manca"_s, 0); }), 53);
    EXPECT_EQ(erroreDi([] { LeggiFile(u"manca"_s, 1); }), 53);
    EXPECT_EQ(erroreDi([] { LeggiFile(u"manca/dentro"_s, 0); }), 76);
}

TEST(LeggiFile, LeavesNoFileOpen)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"uno"_s, "1");
    LeggiFile(u"uno"_s, 0);
    EXPECT_EQ(erroreDi([] { LeggiFile(u"manca"_s, 0); }), 53);
    EXPECT_EQ(LeggiFile(u"uno"_s, 0), "1");
}

TEST(ScriviFile, ReplacesTheContentsOfTheFileWithoutALineEnd)
{
    const CartellaDiProva cartella;
    cartella.scrivi(u"prog.dat"_s, "quello che c'era prima");
    ScriviFile(u"prog.dat"_s, "1;no");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;no");
}

TEST(ScriviFile, CreatesAFileThatIsMissing)
{
    const CartellaDiProva cartella;
    ScriviFile(u"nuovo"_s, QByteArray("a\0b", 3));
    EXPECT_EQ(cartella.leggi(u"nuovo"_s), QByteArray("a\0b", 3));
}

TEST(ScriviFile, ThrowsTheErrorOfAMissingFolderAndLeavesNoFileOpen)
{
    const CartellaDiProva cartella;
    EXPECT_EQ(erroreDi([] { ScriviFile(u"manca/dentro"_s, "x"); }), 76);
    ScriviFile(u"nuovo"_s, "y");
    EXPECT_EQ(cartella.leggi(u"nuovo"_s), "y");
}

TEST(ScriviFile, WhileTheNumberIsOpenGivesError55AndClosesNothing)
{
    const CartellaDiProva cartella;
    Archivio::apri(1, u"aperto"_s, Archivio::Modo::Scrittura);
    EXPECT_EQ(erroreDi([] { ScriviFile(u"altro"_s, "x"); }), 55);
    Archivio::stampa(1, "resta");
    Archivio::chiudi();
    EXPECT_EQ(cartella.leggi(u"aperto"_s), "resta");
    EXPECT_FALSE(cartella.contiene(u"altro"_s));
}
