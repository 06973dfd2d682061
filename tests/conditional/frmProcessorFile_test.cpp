// The runner's projects: new, open, save.
#include "tests/conditional/BancoVigilio.h"
#include "tests/support/Sistema.h"

#include <QFile>
#include <gmock/gmock.h>

namespace {

const QString salvareImpostazioni = u"Vuoi salvare le impostazioni delle liste?"_s;

class frmProcessorFileTest : public testing::Test, protected BancoVigilio
{
protected:
    // Opens this project from a file.
    void apriProgetto(const QByteArray &byte)
    {
        cartella.scrivi(u"sera.vgp"_s, byte);
        const RispondiFile utente(cartella.percorso(u"sera.vgp"_s));
        processor.mnuFileApri.trigger();
        EXPECT_EQ(utente.visti, 1);
        EXPECT_EQ(utente.filtri, QStringList{u"Vigilio (*.vgp)"_s});
    }
};

} // namespace

TEST_F(frmProcessorFileTest, SavingWritesTheFileByteByByte)
{
    mostraVigilio({u"a.sqm"_s, u"già.sqm"_s});
    imposta(1, u"no,101,25,3,4"_s);
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.mnuFileSalva.trigger();
    EXPECT_EQ(cartella.leggi(u"sera.vgp"_s), " 2 \r\n\"a.sqm\",#FALSE#,\"00:00:00,no,no,no,no\"\r\n"
                                             "\"gi\xE0.sqm\",#TRUE#,\"no,101,25,3,4\"\r\n");
    EXPECT_EQ(processor.Caption(), u"Vigilio  sera.vgp"_s);
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
}

TEST_F(frmProcessorFileTest, SavingWithoutANameAsksForOneAndUsesItAsTyped)
{
    mostraVigilio({u"a.sqm"_s});
    const RispondiFile utente(cartella.percorso(u"senza estensione"_s));
    processor.pulSalva.click();
    EXPECT_EQ(utente.visti, 1);
    EXPECT_EQ(utente.filtri, QStringList{u"Vigilio (*.vgp)"_s});
    EXPECT_TRUE(cartella.contiene(u"senza estensione"_s));
    EXPECT_EQ(processor.Caption(), u"Vigilio  senza estensione"_s);
    processor.mnuFileSalva.trigger();
    EXPECT_EQ(utente.visti, 1);
}

TEST_F(frmProcessorFileTest, SavingUnderAnotherNameAsksAgain)
{
    mostraVigilio({u"a.sqm"_s});
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    const RispondiFile utente(cartella.percorso(u"notte.vgp"_s));
    processor.mnuFileSalvacome.trigger();
    EXPECT_EQ(utente.visti, 1);
    EXPECT_EQ(processor.Caption(), u"Vigilio  notte.vgp"_s);
    EXPECT_EQ(processor.Finestre.FileName(), cartella.percorso(u"notte.vgp"_s));
    EXPECT_TRUE(cartella.contiene(u"notte.vgp"_s));
    EXPECT_FALSE(cartella.contiene(u"sera.vgp"_s));
}

TEST_F(frmProcessorFileTest, CancellingTheSaveDialogSavesNothingAndSaysNothing)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const RispondiMessaggi messaggi;
    const RispondiFile utente{std::nullopt};
    processor.mnuFileSalva.trigger();
    processor.mnuFileSalvacome.trigger();
    EXPECT_EQ(utente.visti, 2);
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    EXPECT_EQ(cartella.elenco(), (QStringList{u"a.sqm"_s, u"prog.dat"_s}));
}

TEST_F(frmProcessorFileTest, ASaveThatCannotWriteSaysNothing)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const RispondiMessaggi messaggi;
    processor.Finestre.setFileName(cartella.percorso(u"manca/sera.vgp"_s));
    processor.mnuFileSalva.trigger();
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(processor.Caption(), u"Vigilio  sera.vgp"_s);
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
    // The file number is free again.
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.mnuFileSalva.trigger();
    EXPECT_TRUE(cartella.contiene(u"sera.vgp"_s));
}

TEST_F(frmProcessorFileTest, AnEmptyWindowWithoutProgDatNeverWipesAProject)
{
    const QByteArray progetto = " 1 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n";
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"prog.dat"_s)));
    mostraVigilio({u"a.sqm"_s});
    ASSERT_EQ(righeVigilio(), QStringList());
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    apriProgetto(progetto);
    const QList<std::function<void()>> salva = {
        [&] { processor.pulSalva.click(); }, [&] { processor.mnuFileSalva.trigger(); },
        [&] {
            const RispondiFile utente(cartella.percorso(u"sera.vgp"_s));
            processor.mnuFileSalvacome.trigger();
        },
        [&] {
            processor.lstFile.setTag(u"False"_s);
            processor.Scarica();
        }};
    for (const auto &modo : salva) {
        modo();
        EXPECT_EQ(cartella.leggi(u"sera.vgp"_s), progetto);
    }
    // With the file back, all is as it was.
    cartella.scrivi(u"prog.dat"_s, "0;");
    processor.Mostra();
    apriProgetto(progetto);
    EXPECT_EQ(condizioni(), QStringList{u"no,no,25,no,no"_s});
    processor.pulSalva.click();
    EXPECT_EQ(cartella.leggi(u"sera.vgp"_s), progetto);
}

TEST_F(frmProcessorFileTest, AnEmptyWindowWithoutProgDatMakesANewProject)
{
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"prog.dat"_s)));
    mostraVigilio({u"a.sqm"_s});
    processor.Finestre.setFileName(cartella.percorso(u"nuovo.vgp"_s));
    processor.pulSalva.click();
    EXPECT_EQ(cartella.leggi(u"nuovo.vgp"_s), " 0 \r\n");
}

TEST_F(frmProcessorFileTest, AFolderWithoutListsSavesAnEmptyProject)
{
    mostraVigilio({});
    cartella.scrivi(u"sera.vgp"_s, " 1 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n");
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.pulSalva.click();
    EXPECT_EQ(cartella.leggi(u"sera.vgp"_s), " 0 \r\n");
}

TEST_F(frmProcessorFileTest, OpeningSetsSelectionConditionAndLine)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s, u"già.sqm"_s});
    apriProgetto(" 3 \r\n\"a.sqm\",#TRUE#,\"07:05:09,no,no,no,no\"\r\n"
                 "\"b.sqm\",#FALSE#,\"no,no,no,1,2\"\r\n"
                 "\"gi\xE0.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n");
    EXPECT_EQ(scelte(), (QList<bool>{true, false, true}));
    EXPECT_EQ(condizioni(),
              (QStringList{u"07:05:09,no,no,no,no"_s, u"no,no,no,1,2"_s, u"no,no,25,no,no"_s}));
    EXPECT_EQ(righeVigilio(), (QStringList{u"a.sqm                          07:05:09"_s,
                                           u"b.sqm                          Batterie"_s,
                                           u"già.sqm                        Temperatura"_s}));
    EXPECT_EQ(processor.Caption(), u"Vigilio  sera.vgp"_s);
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
    EXPECT_TRUE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorFileTest, AProjectWithoutASelectionLeavesTheButtonDisabled)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const RispondiMessaggi messaggi(QMessageBox::No);
    apriProgetto(" 1 \r\n\"a.sqm\",#FALSE#,\"no,no,25,no,no\"\r\n");
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
}

TEST_F(frmProcessorFileTest, AListThatIsGoneIsDroppedAndANewOneHasTheDefault)
{
    const RispondiMessaggi messaggi;
    cartella.scrivi(u"prog.dat"_s, "0;no,001,no,no,no");
    mostraVigilio({u"a.sqm"_s, u"nuova.sqm"_s});
    apriProgetto(" 3 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n"
                 "\"tolta.sqm\",#TRUE#,\"no,no,no,1,2\"\r\n"
                 "\"A.SQM\",#FALSE#,\"no,no,no,no,1\"\r\n");
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(scelte(), (QList<bool>{true, false}));
    EXPECT_EQ(condizioni(), (QStringList{u"no,no,25,no,no"_s, u"no,001,no,no,no"_s}));
}

TEST_F(frmProcessorFileTest, AListThatCameMeanwhileIsThereToo)
{
    mostraVigilio({u"a.sqm"_s});
    creaListe({u"b.sqm"_s});
    apriProgetto(" 1 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n");
    EXPECT_EQ(scelte(), (QList<bool>{true, false}));
}

TEST_F(frmProcessorFileTest, CancellingTheOpenDialogLeavesTheDefaults)
{
    mostraVigilio({u"a.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    processor.lstFile.setTag(u"True"_s);
    const RispondiMessaggi messaggi;
    const RispondiFile utente{std::nullopt};
    processor.mnuFileApri.trigger();
    EXPECT_EQ(utente.visti, 1);
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(condizioni(), QStringList{fabbrica});
    EXPECT_EQ(scelte(), QList<bool>{false});
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
}

TEST_F(frmProcessorFileTest, CancellingTheQuestionOpensNothing)
{
    mostraVigilio({u"a.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    const RispondiMessaggi messaggi(QMessageBox::Cancel);
    const RispondiFile utente{std::nullopt};
    processor.mnuFileApri.trigger();
    processor.mnuFileNuovo.trigger();
    EXPECT_EQ(utente.visti, 0);
    EXPECT_EQ(messaggi.testi(), QStringList(2, salvareImpostazioni));
    EXPECT_EQ(condizioni(), QStringList{u"no,no,25,no,no"_s});
    EXPECT_EQ(scelte(), QList<bool>{true});
}

TEST_F(frmProcessorFileTest, TheQuestionIsAskedOnce)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const RispondiMessaggi messaggi(QMessageBox::No);
    apriProgetto(" 0 \r\n");
    EXPECT_EQ(messaggi.testi(), QStringList{salvareImpostazioni});
}

TEST_F(frmProcessorFileTest, AShortFileIsToldAndWhatWasReadStays)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    const RispondiMessaggi messaggi;
    apriProgetto(" 2 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n\"b.sqm\",#TR");
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti()[0].testo, u"Il file finisce prima del previsto"_s);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Vigilio - Errore"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Critical);
    EXPECT_EQ(scelte(), (QList<bool>{true, false}));
    EXPECT_EQ(condizioni(), (QStringList{u"no,no,25,no,no"_s, fabbrica}));
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
    // The file number is free again.
    apriProgetto(" 1 \r\n\"b.sqm\",#TRUE#,\"no,no,24,no,no\"\r\n");
    EXPECT_EQ(processor.Caption(), u"Vigilio  sera.vgp"_s);
}

TEST_F(frmProcessorFileTest, AFileThatIsNoProjectIsToldOrEmpty)
{
    mostraVigilio({u"a.sqm"_s});
    const RispondiMessaggi messaggi;
    apriProgetto("");
    apriProgetto(" 1 \r\nche bello\r\n");
    EXPECT_EQ(messaggi.testi(),
              (QStringList{u"Il file finisce prima del previsto"_s, u"Tipo non corrispondente"_s}));
    apriProgetto("\x7F"
                 "ELF\x01\x02");
    EXPECT_EQ(messaggi.visti().size(), 2);
    EXPECT_EQ(condizioni(), QStringList{fabbrica});
    EXPECT_EQ(scelte(), QList<bool>{false});
}

TEST_F(frmProcessorFileTest, StrangeConditionsOfAProjectAreShownAndKept)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s, u"c.sqm"_s});
    const QByteArray lunga(10'000, 'x');
    apriProgetto(" 3 \r\n\"a.sqm\",#TRUE#,\"" + lunga +
                 "\"\r\n\"b.sqm\",#TRUE#,\"\"\r\n"
                 "\"c.sqm\",#TRUE#,\"abc,def\"\r\n");
    EXPECT_EQ(condizioni(), (QStringList{QString(10'000, u'x'), QString(), u"abc,def"_s}));
    EXPECT_EQ(righeVigilio(), (QStringList{u"a.sqm                          Varie"_s,
                                           u"b.sqm                          Varie"_s,
                                           u"c.sqm                          Varie"_s}));
}

TEST_F(frmProcessorFileTest, NewBringsTheDefaultsAndKeepsTheFilesName)
{
    mostraVigilio({u"a.sqm"_s});
    apriProgetto(" 1 \r\n\"a.sqm\",#TRUE#,\"no,no,25,no,no\"\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;no,no,7,no,no");
    processor.mnuFileNuovo.trigger();
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
    EXPECT_EQ(condizioni(), QStringList{u"no,no,7,no,no"_s});
    EXPECT_EQ(scelte(), QList<bool>{false});
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    const RispondiFile utente{std::nullopt};
    processor.mnuFileSalva.trigger();
    EXPECT_EQ(utente.visti, 0);
    EXPECT_EQ(cartella.leggi(u"sera.vgp"_s), " 1 \r\n\"a.sqm\",#FALSE#,\"no,no,7,no,no\"\r\n");
}

TEST_F(frmProcessorFileTest, NewWhileStartedStops)
{
    const RispondiMessaggi messaggi(QMessageBox::No);
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.mnuFileNuovo.trigger();
    EXPECT_EQ(processor.Tag(), QString());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
}

TEST_F(frmProcessorFileTest, WhatWasSavedOpensAsItWas)
{
    const QString difficile = virgoletteNeiNomi() ? u"\"b\", c.sqm"_s : u"b, c.sqm"_s;
    mostraVigilio({u"a.sqm"_s, difficile, u"d.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    imposta(1, u"07:05:09,no,no,no,no"_s);
    const QStringList righe = righeVigilio();
    const QStringList prima = condizioni();
    const QList<bool> sceltePrima = scelte();
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.pulSalva.click();
    processor.pulAnnulla.click();
    processor.Mostra();
    apriProgetto(cartella.leggi(u"sera.vgp"_s));
    EXPECT_EQ(condizioni(), prima);
    EXPECT_EQ(scelte(), sceltePrima);
}

TEST_F(frmProcessorFileTest, TheKeyboardsShortcutsWork)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    QTest::keyClick(&processor, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(cartella.contiene(u"sera.vgp"_s));
    QTest::keyClick(&processor, Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(scelte(), QList<bool>{false});
}
