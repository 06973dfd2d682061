// The runner's window: its lines, its check marks, its options, its end.
#include "tests/conditional/BancoVigilio.h"
#include "tests/support/Sistema.h"

#include <QAccessible>
#include <QMenu>
#include <gmock/gmock.h>

namespace {

const QString salvareImpostazioni = u"Vuoi salvare le impostazioni delle liste?"_s;
const QString salvareModifiche = u"Vuoi salvare le ultime modifiche?"_s;

class frmProcessorTest : public testing::Test, protected BancoVigilio
{
protected:
    // Where the check mark of a row stands, and where its text.
    QPoint spunta(int riga) const { return dentro(riga, 9); }
    QPoint testo(int riga) const { return dentro(riga, 120); }

private:
    QPoint dentro(int riga, int x) const
    {
        const Elenco &liste = processor.lstFile;
        const QRect dove = liste.visualItemRect(liste.item(riga));
        return liste.viewport()->mapTo(&liste, QPoint(dove.left() + x, dove.center().y()));
    }
};

QStringList voci(const QMenu &menu)
{
    QStringList voci;
    for (const QAction *voce : menu.actions())
        voci += voce->objectName() + u": "_s + (voce->isSeparator() ? u"-"_s : voce->text());
    return voci;
}

} // namespace

TEST_F(frmProcessorTest, StandsAsItWasDesigned)
{
    mostraVigilio({});
    EXPECT_EQ(processor.objectName(), u"frmProcessor"_s);
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
    EXPECT_EQ(processor.Tag(), QString());
    EXPECT_EQ(processor.lstFile.Tag(), u"-1"_s);
    EXPECT_TRUE(processor.lstFile.Visible());
    EXPECT_FALSE(processor.lstCondizioni.Visible());
    EXPECT_FALSE(processor.File.Visible());
    EXPECT_EQ(processor.File.Pattern(), u"*.sqm"_s);
    EXPECT_EQ(processor.lstFile.font().family(), u"Courier New"_s);
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_EQ(processor.pulSalva.Caption(), u"Salva"_s);
    EXPECT_EQ(processor.pulAnnulla.Caption(), u"Annulla"_s);
    EXPECT_FALSE(processor.mnuOpzRiduci.Checked());
    EXPECT_FALSE(processor.mnuOpzDeselezionaAut.Checked());
    EXPECT_FALSE(processor.avviato());
}

TEST_F(frmProcessorTest, TheMenusHaveTheirEntriesInOrder)
{
    EXPECT_EQ(voci(*processor.mnuFile),
              (QStringList{u"mnuFileNuovo: Nuovo"_s, u"mnuFileApri: Apri"_s, u"t1: -"_s,
                           u"mnuFileSalva: Salva"_s, u"mnuFileSalvacome: Salva con nome"_s,
                           u"t2: -"_s, u"mnuFileEsci: Esci"_s}));
    EXPECT_EQ(voci(*processor.mnuOpz),
              (QStringList{u"mnuOpzRiduci: Riduci a icona nel Sequor all'avvio"_s,
                           u"mnuOpzDeselezionaAut: Deseleziona le liste una volta eseguite"_s,
                           u"t3: -"_s, u"mnuOpzCondizionePred: Imposta condizione predefinita"_s}));
}

TEST_F(frmProcessorTest, EveryControlHasANameForTheScreenReader)
{
    mostraVigilio({u"a.sqm"_s});
    for (QWidget *controllo :
         {static_cast<QWidget *>(&processor.lstFile), static_cast<QWidget *>(&processor.pulAvvia),
          static_cast<QWidget *>(&processor.pulSalva),
          static_cast<QWidget *>(&processor.pulAnnulla)}) {
        QAccessibleInterface *interfaccia = QAccessible::queryAccessibleInterface(controllo);
        ASSERT_TRUE(interfaccia);
        EXPECT_NE(interfaccia->text(QAccessible::Name), QString())
            << controllo->objectName().toStdString();
    }
}

TEST_F(frmProcessorTest, TheTabKeyGoesFromTheListsToTheButtons)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.lstFile.SetFocus();
    QStringList ordine;
    for (int i = 0; i < 5; ++i) {
        ordine += processor.focusWidget()->objectName();
        QTest::keyClick(processor.windowHandle(), Qt::Key_Tab);
    }
    EXPECT_EQ(ordine, (QStringList{u"lstFile"_s, u"pulAvvia"_s, u"pulSalva"_s, u"pulAnnulla"_s,
                                   u"lstFile"_s}));
}

TEST_F(frmProcessorTest, AllListsOfTheFolderStandThereUnselectedWithTheDefaultCondition)
{
    cartella.scrivi(u"prog.dat"_s, "1;no,101,no,no,no");
    cartella.scrivi(u"lista.txt"_s, "");
    mostraVigilio({u"Beta.sqm"_s, u"alfa.sqm"_s, u"perché no.SQM"_s});
    EXPECT_EQ(righeVigilio(), (QStringList{u"alfa.sqm                       Ultrasuoni"_s,
                                           u"Beta.sqm                       Ultrasuoni"_s,
                                           u"perché no.SQM                  Ultrasuoni"_s}));
    EXPECT_EQ(condizioni(), QStringList(3, u"no,101,no,no,no"_s));
    EXPECT_EQ(scelte(), QList<bool>(3, false));
    EXPECT_EQ(processor.lstFile.Tag(), u"-1"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorTest, ALongNameIsCutAndKeepsTheColumn)
{
    mostraVigilio({u"abcdefghijklmnopqrstuvwxyz.sqm"_s, u"abcdefghijklmnopqrstuvwxyza.sqm"_s,
                   u"zuz ciò che è lungo assai.sqm"_s});
    EXPECT_EQ(righeVigilio(), (QStringList{u"abcdefghijklmnopqrstuvwxyz.sqm 00:00:00"_s,
                                           u"abcdefghijklmnopqrstuvwxyza... 00:00:00"_s,
                                           u"zuz ciò che è lungo assai.sqm  00:00:00"_s}));
}

TEST_F(frmProcessorTest, QuotesInANameAreShown)
{
    if (!virgoletteNeiNomi())
        GTEST_SKIP();
    mostraVigilio({u"z\"z\" ciò che è lungo assai.sqm"_s});
    EXPECT_EQ(righeVigilio(), QStringList{u"z\"z\" ciò che è lungo assai.sqm 00:00:00"_s});
}

TEST_F(frmProcessorTest, WithoutADefaultConditionTheFactorysIsTaken)
{
    cartella.scrivi(u"prog.dat"_s, "");
    mostraVigilio({u"a.sqm"_s});
    EXPECT_EQ(condizioni(), QStringList{fabbrica});
}

TEST_F(frmProcessorTest, AProgDatWithoutASemicolonIsAllCondition)
{
    cartella.scrivi(u"prog.dat"_s, "1");
    mostraVigilio({u"a.sqm"_s});
    EXPECT_EQ(condizioni(), QStringList{u"1"_s});
}

TEST_F(frmProcessorTest, WithoutProgDatTheListsStayEmptyWithoutAWord)
{
    const RispondiMessaggi messaggi;
    ASSERT_TRUE(QFile::remove(cartella.percorso(u"prog.dat"_s)));
    mostraVigilio({u"a.sqm"_s});
    EXPECT_EQ(righeVigilio(), QStringList());
    EXPECT_EQ(condizioni(), QStringList());
    EXPECT_EQ(processor.liste.quante(), 0);
    // Nothing there to act on, and nothing fails.
    processor.mnuFileNuovo.trigger();
    processor.lstFile_DblClick();
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_TRUE(processor.Visible());
}

TEST_F(frmProcessorTest, AFolderWithoutListsIsEmptyToo)
{
    mostraVigilio({});
    EXPECT_EQ(righeVigilio(), QStringList());
    processor.lstFile_DblClick();
    EXPECT_FALSE(processor.impCondizioni.Visible());
}

TEST_F(frmProcessorTest, AClickOnACheckMarkSelectsTheListAndEnablesTheButton)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    cliccaVigilio(processor.lstFile, spunta(1));
    EXPECT_EQ(scelte(), (QList<bool>{false, true}));
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    EXPECT_TRUE(processor.pulAvvia.Enabled());
    cliccaVigilio(processor.lstFile, spunta(1));
    EXPECT_EQ(scelte(), (QList<bool>{false, false}));
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_TRUE(processor.pulAvvia.font().italic());
}

TEST_F(frmProcessorTest, AClickThatChangesNothingCountsAsAChange)
{
    mostraVigilio({u"a.sqm"_s});
    cliccaVigilio(processor.lstFile, testo(0));
    EXPECT_EQ(scelte(), QList<bool>{false});
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorTest, TheSpaceBarChangesTheCheckMark)
{
    mostraVigilio({u"a.sqm"_s});
    processor.lstFile.SetFocus();
    processor.lstFile.setListIndex(0);
    QTest::keyClick(&processor.lstFile, Qt::Key_Space);
    EXPECT_EQ(scelte(), QList<bool>{true});
    EXPECT_TRUE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorTest, ACheckMarkChangedByCodeIsAClickAsWell)
{
    mostraVigilio({u"a.sqm"_s});
    processor.liste.scegli(0, true);
    EXPECT_TRUE(processor.pulAvvia.Enabled());
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    processor.liste.scegli(0, false);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorTest, TheTwoOptionsAreTurnedOnAndOff)
{
    mostraVigilio({});
    for (VoceMenu *opzione : {&processor.mnuOpzRiduci, &processor.mnuOpzDeselezionaAut}) {
        opzione->trigger();
        EXPECT_TRUE(opzione->Checked());
        opzione->trigger();
        EXPECT_FALSE(opzione->Checked());
    }
    processor.mnuOpzDeselezionaAut.trigger();
    EXPECT_TRUE(processor.mnuOpzDeselezionaAut.Checked());
}

TEST_F(frmProcessorTest, ClosingWithNothingToSaveAsksNothing)
{
    const RispondiMessaggi messaggi;
    mostraVigilio({u"a.sqm"_s});
    editor.imgVigilio.setPicture(2);
    editor.tmrAttivaAut.setEnabled(true);
    processor.pulAnnulla.click();
    EXPECT_FALSE(processor.Visible());
    EXPECT_FALSE(processor.Caricata());
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(processor.Tag(), u"Annulla"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
}

TEST_F(frmProcessorTest, ClosingWithUnsavedChangesAndCancelLeavesTheWindow)
{
    const RispondiMessaggi messaggi(QMessageBox::Cancel);
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.close();
    EXPECT_TRUE(processor.Visible());
    EXPECT_EQ(processor.Tag(), u"AVVIATO"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 2);
    EXPECT_TRUE(editor.tmrAttivaAut.Enabled());
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti()[0].testo, salvareImpostazioni);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Vigilio"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Question);
    EXPECT_EQ(messaggi.visti()[0].pulsanti,
              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

TEST_F(frmProcessorTest, ClosingWithoutSavingEndsTheActiveState)
{
    const RispondiMessaggi messaggi(QMessageBox::No);
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.mnuFileEsci.trigger();
    EXPECT_FALSE(processor.Visible());
    EXPECT_EQ(messaggi.testi(), QStringList{salvareImpostazioni});
    EXPECT_EQ(processor.Tag(), u"Annulla"_s);
    EXPECT_FALSE(processor.avviato());
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
}

TEST_F(frmProcessorTest, ClosingWithYesSavesTheOpenProject)
{
    const RispondiMessaggi messaggi(QMessageBox::Yes);
    mostraVigilio({u"a.sqm"_s});
    processor.Finestre.setFileName(cartella.percorso(u"sera.vgp"_s));
    processor.pulSalva.click();
    scegli(0);
    processor.pulAnnulla.click();
    EXPECT_FALSE(processor.Visible());
    EXPECT_EQ(messaggi.testi(), QStringList{salvareModifiche});
    EXPECT_EQ(cartella.leggi(u"sera.vgp"_s),
              " 1 \r\n\"a.sqm\",#TRUE#,\"00:00:00,no,no,no,no\"\r\n");
}

TEST_F(frmProcessorTest, TheNextShowingBringsTheDesignValues)
{
    const RispondiMessaggi messaggi(QMessageBox::No);
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    processor.mnuOpzRiduci.trigger();
    processor.mnuOpzDeselezionaAut.trigger();
    processor.Finestre.setFileName(u"x.vgp"_s);
    processor.pulAnnulla.click();
    cartella.scrivi(u"b.sqm"_s, "");
    processor.Mostra();
    EXPECT_EQ(condizioni(), QStringList(2, fabbrica));
    EXPECT_EQ(scelte(), QList<bool>(2, false));
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_FALSE(processor.pulAvvia.font().italic());
    EXPECT_FALSE(processor.mnuOpzRiduci.Checked());
    EXPECT_FALSE(processor.mnuOpzDeselezionaAut.Checked());
    EXPECT_EQ(processor.Finestre.FileName(), QString());
    EXPECT_EQ(processor.lstFile.Tag(), u"-1"_s);
    EXPECT_EQ(processor.Caption(), u"Vigilio"_s);
}

TEST_F(frmProcessorTest, AHiddenWindowKeepsItsState)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.Nascondi();
    processor.Mostra();
    EXPECT_EQ(scelte(), QList<bool>{true});
    EXPECT_TRUE(processor.pulAvvia.Enabled());
}

TEST_F(frmProcessorTest, TheEditorShowsItInItsNormalState)
{
    creaListe({u"a.sqm"_s});
    editor.imgVigilio.Click();
    EXPECT_TRUE(processor.Visible());
    processor.setWindowState(1);
    editor.imgVigilio.Click();
    EXPECT_EQ(processor.WindowState(), 0);
}

TEST_F(frmProcessorTest, ARowThatIsNotThereIsAnError)
{
    mostraVigilio({u"a.sqm"_s});
    EXPECT_EQ(processor.liste.nome(0), u"a.sqm"_s);
    EXPECT_EQ(processor.liste.condizione(0), fabbrica);
    EXPECT_FALSE(processor.liste.scelta(0));
    for (const int riga : {-1, 1}) {
        EXPECT_THROW(processor.liste.nome(riga), Errore);
        EXPECT_THROW(processor.liste.condizione(riga), Errore);
        EXPECT_THROW(processor.liste.scelta(riga), Errore);
        EXPECT_THROW(processor.liste.scegli(riga, true), Errore);
    }
}
