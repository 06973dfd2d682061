// From a line of the runner to the condition dialog and back.
#include "tests/conditional/BancoVigilio.h"

#include <gmock/gmock.h>

namespace {

class CondizioniTest : public testing::Test, protected BancoVigilio
{
protected:
    void doppioClic(int riga)
    {
        Elenco &liste = processor.lstFile;
        const QRect dove = liste.visualItemRect(liste.item(riga));
        const QPoint punto =
            liste.viewport()->mapTo(&processor, QPoint(dove.left() + 120, dove.center().y()));
        QTest::mouseClick(processor.windowHandle(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(processor.windowHandle(), Qt::LeftButton, {}, punto);
    }
    frmImpCondizioni &dialogo = processor.impCondizioni;
};

} // namespace

TEST_F(CondizioniTest, ADoubleClickAsksForTheConditionOfItsLine)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    QString spiegazione;
    bool modale = false;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        spiegazione = dialogo.lblSpiegazione.Caption();
        modale = dialogo.isModal();
        dialogo.cbTemperatura.setListIndex(30);
        dialogo.pulOK.click();
    });
    doppioClic(1);
    EXPECT_TRUE(modale);
    EXPECT_EQ(spiegazione,
              u"Imposta la condizione che si deve verificare per avviare la lista \"b.sqm\""_s);
    EXPECT_EQ(condizioni(), (QStringList{fabbrica, u"no,no,30,no,no"_s}));
    EXPECT_EQ(processor.lstFile.List(1), u"b.sqm                          Temperatura"_s);
    EXPECT_EQ(scelte(), (QList<bool>{false, true}));
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    EXPECT_TRUE(processor.pulAvvia.Enabled());
    EXPECT_FALSE(dialogo.Caricata());
}

TEST_F(CondizioniTest, ADoubleClickBelowTheLinesOrWithAnotherButtonAsksNothing)
{
    mostraVigilio({u"a.sqm"_s});
    imposta(0, fabbrica);
    scegli(0);
    processor.lstFile.setListIndex(0);
    int dialoghi = 0;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        ++dialoghi;
        dialogo.pulAnnulla.click();
    });
    const QWidget &dove = *processor.lstFile.viewport();
    const QPoint riga(120,
                      processor.lstFile.visualItemRect(processor.lstFile.item(0)).center().y());
    const QPoint sotto(120, dove.height() - 5);
    ASSERT_EQ(processor.lstFile.itemAt(sotto), nullptr);
    for (const auto &[pulsante, punto] :
         {std::pair(Qt::LeftButton, sotto), std::pair(Qt::RightButton, riga),
          std::pair(Qt::MiddleButton, riga), std::pair(Qt::RightButton, sotto)})
        QTest::mouseDClick(processor.windowHandle(), pulsante, {}, dove.mapTo(&processor, punto));
    EXPECT_EQ(dialoghi, 0);
    EXPECT_EQ(scelte(), QList<bool>{true});
}

TEST_F(CondizioniTest, CancellingTakesTheCheckMarkAwayAndKeepsTheCondition)
{
    mostraVigilio({u"a.sqm"_s});
    imposta(0, u"no,no,25,no,no"_s);
    processor.lstFile.setTag(u"True"_s);
    const ConModale utente(u"frmImpCondizioni"_s, [&] { dialogo.pulAnnulla.click(); });
    doppioClic(0);
    EXPECT_EQ(scelte(), QList<bool>{false});
    EXPECT_EQ(condizioni(), QStringList{u"no,no,25,no,no"_s});
    EXPECT_EQ(processor.lstFile.Tag(), u"False"_s);
    EXPECT_FALSE(processor.pulAvvia.Enabled());
    EXPECT_FALSE(dialogo.Caricata());
}

TEST_F(CondizioniTest, ClosingTheDialogIsCancelling)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const ConModale utente(u"frmImpCondizioni"_s, [&] { dialogo.close(); });
    doppioClic(0);
    EXPECT_EQ(scelte(), QList<bool>{false});
}

TEST_F(CondizioniTest, CancellingTheLastLineWhileStartedStops)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}});
    const ConModale utente(u"frmImpCondizioni"_s, [&] { dialogo.pulAnnulla.click(); });
    processor.lstFile.setListIndex(0);
    processor.lstFile_DblClick();
    EXPECT_FALSE(processor.avviato());
    EXPECT_EQ(processor.pulAvvia.Caption(), u"AVVIA"_s);
}

TEST_F(CondizioniTest, EnterIsTheKeyboardsDoubleClick)
{
    mostraVigilio({u"a.sqm"_s});
    processor.lstFile.SetFocus();
    processor.lstFile.setListIndex(0);
    int aperti = 0;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        ++aperti;
        dialogo.cbBattMotori.setListIndex(1);
        dialogo.pulOK.click();
    });
    QTest::keyClick(processor.windowHandle(), Qt::Key_Return);
    EXPECT_EQ(aperti, 1);
    EXPECT_EQ(condizioni(), QStringList{u"no,no,no,no,1"_s});
}

TEST_F(CondizioniTest, AHeldEnterOpensTheDialogOnceAndChangesNothing)
{
    const auto invio = [](QWidget *dove, bool ancora) {
        QKeyEvent evento(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), ancora);
        QApplication::sendEvent(dove, &evento);
    };
    for (const QString &prima : {fabbrica, u"no,no,no,no,no"_s, u"no,no,25,no,no"_s}) {
        mostraVigilio({u"a.sqm"_s});
        imposta(0, prima);
        processor.lstFile.SetFocus();
        processor.lstFile.setListIndex(0);
        processor.lstFile.setTag(u"True"_s);
        int ripetuti = 0;
        const ConModale utente(u"frmImpCondizioni"_s, [&] {
            // The dialog is there before its focus is.
            if (!dialogo.focusWidget())
                return;
            if (++ripetuti < 5) {
                invio(dialogo.focusWidget(), true);
                return;
            }
            EXPECT_TRUE(dialogo.Visible());
            EXPECT_NE(dialogo.focusWidget(), &dialogo.pulAnnulla);
            dialogo.frame(3).Click();
            if (dialogo.frame(3).Tag() == u"0")
                dialogo.frame(3).Click();
            dialogo.pulOK.click();
        });
        invio(&processor.lstFile, false);
        invio(&processor.lstFile, true);
        EXPECT_EQ(ripetuti, 5) << "opened once";
        EXPECT_EQ(condizioni(), QStringList{u"no,no,25,no,no"_s});
        EXPECT_EQ(scelte(), QList<bool>{true});
        processor.lstFile.setTag(u"True"_s);
        processor.Scarica();
    }
}

TEST_F(CondizioniTest, WithoutACurrentRowTheDefaultConditionShowsAllPanelsOn)
{
    mostraVigilio({u"a.sqm"_s});
    int attivi = 0;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        for (int i = 1; i <= 5; ++i)
            attivi += dialogo.frame(i).Tag() == u"-1";
        dialogo.pulAnnulla.click();
    });
    processor.mnuOpzCondizionePred.trigger();
    EXPECT_EQ(attivi, 5);
}

TEST_F(CondizioniTest, AListThatStartsMeanwhileDoesNotTakeTheCondition)
{
    avvia({{u"a.sqm"_s, u"no,no,25,no,no"_s}, {u"b.sqm"_s, u"no,no,26,no,no"_s}});
    processor.lstFile.setListIndex(0);
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        processor.VerificaCondizioni(u"Temperatura:26"_s);
        dialogo.cbTemperatura.setListIndex(7);
        dialogo.pulOK.click();
    });
    processor.lstFile_DblClick();
    EXPECT_EQ(inCorso(), u"b.sqm"_s);
    EXPECT_EQ(processor.lstFile.ListIndex(), 1);
    EXPECT_EQ(condizioni(), (QStringList{u"no,no,7,no,no"_s, u"no,no,26,no,no"_s}));
    EXPECT_EQ(processor.lstFile.List(0), u"a.sqm                          Temperatura"_s);
    EXPECT_EQ(scelte(), (QList<bool>{true, true}));
}

TEST_F(CondizioniTest, TheDefaultConditionActsOnTheNextLoad)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    processor.lstFile.setListIndex(0);
    processor.lstFile.setTag(u"True"_s);
    QString spiegazione;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        spiegazione = dialogo.lblSpiegazione.Caption();
        dialogo.cbBattLogica.setListIndex(2);
        dialogo.pulOK.click();
    });
    processor.mnuOpzCondizionePred.trigger();
    EXPECT_EQ(spiegazione,
              u"Imposta la condizione predefinita per l'avvio automatico delle liste"_s);
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;no,no,no,2,no");
    // Nothing changes in the window.
    EXPECT_EQ(condizioni(), QStringList{fabbrica});
    EXPECT_EQ(scelte(), QList<bool>{true});
    EXPECT_EQ(processor.lstFile.Tag(), u"True"_s);
    EXPECT_FALSE(dialogo.Caricata());
    processor.mnuFileNuovo.trigger();
    EXPECT_EQ(condizioni(), QStringList{u"no,no,no,2,no"_s});
}

TEST_F(CondizioniTest, CancellingTheDefaultConditionLeavesTheFile)
{
    mostraVigilio({u"a.sqm"_s});
    scegli(0);
    const ConModale utente(u"frmImpCondizioni"_s, [&] { dialogo.pulAnnulla.click(); });
    processor.mnuOpzCondizionePred.trigger();
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;");
    EXPECT_EQ(scelte(), QList<bool>{true});
}

TEST_F(CondizioniTest, AfterTheDefaultConditionALineIsALineAgain)
{
    mostraVigilio({u"a.sqm"_s});
    processor.lstFile.setListIndex(0);
    int volta = 0;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        dialogo.cbTemperatura.setListIndex(++volta);
        dialogo.pulOK.click();
    });
    processor.mnuOpzCondizionePred.trigger();
    processor.lstFile_DblClick();
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;no,no,1,no,no");
    EXPECT_EQ(condizioni(), QStringList{u"no,no,2,no,no"_s});
}

TEST_F(CondizioniTest, TheEditorsEntryOpensTheDialogForTheOpenList)
{
    mostraVigilio({u"a.sqm"_s, u"b.sqm"_s});
    mostra();
    editor.Finestre.setFileName(cartella.percorso(u"B.sqm"_s));
    QString spiegazione;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        spiegazione = dialogo.lblSpiegazione.Caption();
        dialogo.cbTemperatura.setListIndex(30);
        dialogo.pulOK.click();
    });
    editor.mnuInsCondizione.trigger();
    EXPECT_THAT(spiegazione.toStdString(), testing::EndsWith("\"b.sqm\""));
    EXPECT_EQ(condizioni(), (QStringList{fabbrica, u"no,no,30,no,no"_s}));
    EXPECT_EQ(scelte(), (QList<bool>{false, true}));
}

TEST_F(CondizioniTest, TheEditorsEntryOpensNoDialogForAListElsewhere)
{
    creaListe({u"a.sqm"_s});
    mostra();
    editor.Finestre.setFileName(u"/altrove/a.sqm"_s);
    int aperti = 0;
    const ConModale utente(u"frmImpCondizioni"_s, [&] {
        ++aperti;
        dialogo.pulAnnulla.click();
    });
    editor.mnuInsCondizione.trigger();
    EXPECT_EQ(aperti, 0);
    EXPECT_TRUE(processor.Visible());
    EXPECT_EQ(scelte(), QList<bool>{false});
}
