#include "simulator/Opzioni.h"
#include "simulator/Simulatore.h"
#include "tests/simulator/RobotInProva.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QString lette(Opzioni &opzioni, const QStringList &argomenti)
{
    return opzioni.leggi(QStringList{u"tessaro-sim"_s} + argomenti);
}
} // namespace

TEST(OpzioniDelSimulatore, WithoutArgumentsThereAreNoFaultsAnd9600Baud)
{
    Opzioni o;
    EXPECT_EQ(lette(o, {}), QString());
    EXPECT_EQ(o.baud, 9600);
    EXPECT_FALSE(o.senzaFinestra);
    EXPECT_FALSE(o.log);
    EXPECT_FALSE(o.guasti.silenzio);
    EXPECT_EQ(o.guasti.statoApertura, -1);
}

TEST(OpzioniDelSimulatore, ValuesAreTaken)
{
    Opzioni o;
    EXPECT_EQ(lette(o, {u"--headless"_s, u"--cartella"_s, u"/x"_s, u"--porta"_s, u"12"_s,
                        u"--baud=0"_s, u"--persi"_s, u"0.25"_s, u"--ritardo"_s, u"300"_s,
                        u"--batterie"_s, u"1,2"_s, u"--ultrasuoni=3,4,5"_s, u"--stato-lettura"_s,
                        u"5"_s, u"--perdi-linea"_s, u"100,200"_s, u"--delta-lunghezza=-2"_s}),
              QString());
    EXPECT_TRUE(o.senzaFinestra);
    EXPECT_EQ(o.cartella, u"/x"_s);
    EXPECT_EQ(o.porta, 12);
    EXPECT_EQ(o.baud, 0);
    EXPECT_DOUBLE_EQ(o.guasti.persi, 0.25);
    EXPECT_EQ(o.guasti.ritardo, 300);
    EXPECT_EQ(o.batterie, (std::array<int, 2>{1, 2}));
    EXPECT_EQ(o.ultrasuoni, (std::array<int, 3>{3, 4, 5}));
    EXPECT_EQ(o.guasti.statoLettura, 5);
    EXPECT_EQ(o.perdiDopo, 100);
    EXPECT_EQ(o.perdiPer, 200);
    EXPECT_EQ(o.guasti.deltaLunghezza, -2);
}

TEST(OpzioniDelSimulatore, TheLogNeedsNoFile)
{
    for (const QStringList &argomenti :
         {QStringList{u"--log"_s}, {u"--log"_s, u"--headless"_s}, {u"--log"_s, u"-"_s}}) {
        Opzioni o;
        EXPECT_EQ(lette(o, argomenti), QString());
        EXPECT_TRUE(o.log);
        EXPECT_EQ(o.fileLog, QString());
    }
    Opzioni o;
    EXPECT_EQ(lette(o, {u"--log"_s, u"diario.txt"_s}), QString());
    EXPECT_EQ(o.fileLog, u"diario.txt"_s);
}

TEST(OpzioniDelSimulatore, WhatIsWrongIsNamed)
{
    const auto lamento = [](const QStringList &argomenti) {
        Opzioni o;
        return lette(o, argomenti);
    };
    EXPECT_EQ(lamento({u"--boh"_s}), u"Opzione sconosciuta: boh"_s);
    EXPECT_EQ(lamento({u"--porta"_s, u"100"_s}), u"Valore non valido per --porta: 100"_s);
    EXPECT_EQ(lamento({u"--persi=2"_s}), u"Valore non valido per --persi: 2"_s);
    EXPECT_EQ(lamento({u"--batterie=1"_s}), u"Valore non valido per --batterie: 1"_s);
    EXPECT_EQ(lamento({u"--temperatura=x"_s}), u"Valore non valido per --temperatura: x"_s);
    EXPECT_EQ(lamento({u"ciao"_s}), u"Argomento non previsto: ciao"_s);
    EXPECT_FALSE(lamento({u"--porta"_s}).isEmpty());
}

TEST(OpzioniDelSimulatore, TheHelpNamesEveryOptionThatIsTaken)
{
    const QString aiuto = Opzioni::testoAiuto();
    for (const QString &nome : {u"--aiuto"_s, u"--headless"_s, u"--cartella DIR"_s, u"--porta N"_s,
                                u"--log [FILE]"_s, u"--registra FILE"_s, u"--riproduci FILE"_s,
                                u"--memoria DIR"_s, u"--immagini DIR"_s, u"--silenzio"_s})
        EXPECT_TRUE(aiuto.contains(nome)) << nome.toStdString();
}

TEST(OpzioniDelSimulatore, TheyAreAppliedToTheSimulator)
{
    QTemporaryDir cartella;
    Opzioni o;
    ASSERT_EQ(lette(o, {u"--cartella"_s, cartella.path(), u"--porta=3"_s, u"--temperatura=33"_s,
                        u"--silenzio"_s, u"--baud=115200"_s}),
              QString());
    Simulatore sim;
    ASSERT_EQ(o.applica(sim), QString());
    EXPECT_EQ(QFileInfo(cartella.filePath(u"COM3"_s)).symLinkTarget(), sim.percorso());
    EXPECT_EQ(sim.robot().stato().temperatura, 33);
    EXPECT_TRUE(sim.guasti().silenzio);
    EXPECT_EQ(sim.baud(), 115200);
}

TEST(OpzioniDelSimulatore, AMissingFolderIsToldByName)
{
    for (const QString &opzione : {u"--memoria"_s, u"--immagini"_s, u"--riproduci"_s}) {
        Opzioni o;
        ASSERT_EQ(lette(o, {opzione, u"/non/esiste"_s}), QString());
        Simulatore sim;
        EXPECT_TRUE(o.applica(sim).contains(u"/non/esiste"_s)) << opzione.toStdString();
    }
}
