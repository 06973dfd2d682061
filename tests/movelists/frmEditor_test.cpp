// The editor's window: inserting, moving, deleting, the picture buttons, the runner's entries.
#include "tests/movelists/BancoEditor.h"
#include "tests/support/Contrasto.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <gmock/gmock.h>

namespace {

class FrmEditorTest : public testing::Test, protected Banco
{
protected:
    // Does what a user does in the value dialog.
    void conValore(const std::function<void()> &apri,
                   const std::function<void(frmValore &)> &agisci)
    {
        bool fatto = false;
        const ConModale utente(u"frmValore"_s, [&] {
            if (std::exchange(fatto, true))
                return;
            agisci(editor.valore);
            if (editor.valore.Visible())
                editor.valore.pulOK.click();
        });
        apri();
        EXPECT_TRUE(fatto);
    }
    static void scrivi(frmValore &valore, const QString &testo) { valore.txtValore.setText(testo); }
};

} // namespace

TEST_F(FrmEditorTest, StartsWithItsDesignValues)
{
    mostra();
    EXPECT_EQ(editor.Caption(), u"Sequor"_s);
    EXPECT_EQ(editor.opzInsComandi.Value(), 1);
    EXPECT_EQ(editor.opzInsComandi.Caption(), u"Inserisci comandi nella lista (Attivato)"_s);
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
    EXPECT_EQ(editor.pulEsegui.Tag(), u"0"_s);
    EXPECT_EQ(timer.Interval(), 2000);
    EXPECT_EQ(timer.Tag(), u"0"_s);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.tmrAttivaAut.Interval(), 1000);
    EXPECT_FALSE(editor.tmrAttivaAut.Enabled());
    EXPECT_EQ(editor.mnuInsRipeti.Tag(), u"-1"_s);
    EXPECT_EQ(editor.imgVigilio.Picture(), 1);
    EXPECT_EQ(editor.lblFile.Caption(), QString());
    EXPECT_EQ(editor.Finestre.FileName(), QString());
    EXPECT_EQ(lista.Tag(), u"True"_s);
    EXPECT_EQ(lista.ListIndex(), -1);
}

TEST_F(FrmEditorTest, StandsBesideTheConsole)
{
    console.metti(100, 200, 300);
    mostra();
    EXPECT_EQ(editor.Left(), Unita::unita(Unita::pixel(1500 + 4500 + 200)));
    EXPECT_EQ(editor.Top(), Unita::unita(Unita::pixel(3000 - 1300)));
}

TEST_F(FrmEditorTest, ComesBackOntoTheScreenWhereTheConsoleLeavesNoPlace)
{
    const QRect schermo = editor.screen()->geometry();
    console.metti(0, 200, schermo.width());
    mostra();
    EXPECT_TRUE(schermo.contains(editor.frameGeometry()));
}

TEST_F(FrmEditorTest, StandsOnTheOtherSideWhereTheConsoleIsFlushWithTheScreensEdge)
{
    const QRect schermo = editor.screen()->geometry();
    const int sinistra = schermo.width() - 150;
    console.metti(sinistra, 200, 150);
    mostra();
    EXPECT_TRUE(schermo.contains(editor.frameGeometry()));
    EXPECT_LT(editor.frameGeometry().right(), sinistra);
}

TEST_F(FrmEditorTest, IsWhollyOnTheScreenWhereverTheConsoleStands)
{
    const QRect schermo = editor.screen()->availableGeometry();
    const int larga = 300;
    for (const int x : {-larga, -larga / 2, 0, schermo.width() / 2, schermo.width() - larga,
                        schermo.width() - larga / 2, schermo.width() - 3, schermo.width() + 500}) {
        for (const int y : {-500, -40, 0, 100, schermo.height() - 50, schermo.height() + 300}) {
            console.metti(x, y, larga);
            editor.Mostra();
            EXPECT_TRUE(aspetta([&] { return schermo.contains(editor.frameGeometry()); }))
                << x << ' ' << y << ": " << editor.frameGeometry().x() << ' '
                << editor.frameGeometry().y() << ' ' << editor.frameGeometry().width() << ' '
                << editor.frameGeometry().height();
            editor.Scarica();
        }
    }
}

TEST_F(FrmEditorTest, ComesBackWhollyOntoTheScreenAfterTheConsoleHidIt)
{
    const QRect schermo = editor.screen()->availableGeometry();
    mostra();
    editor.move(schermo.width() - 20, 100);
    editor.Nascondi();
    editor.Mostra();
    EXPECT_TRUE(aspetta([&] { return schermo.contains(editor.frameGeometry()); }));
}

TEST_F(FrmEditorTest, StaysAtItsPlaceWhenTheConsoleHidIt)
{
    mostra();
    editor.move(40, 60);
    const QRect prima = editor.geometry();
    for (int i = 0; i < 3; ++i) {
        editor.Nascondi();
        editor.Mostra();
        gira(20);
    }
    EXPECT_EQ(editor.geometry(), prima);
}

TEST_F(FrmEditorTest, TheMenusStandInTheirOrder)
{
    const auto voci = [](const QMenu *menu) {
        QStringList testi;
        for (const QAction *voce : menu->actions())
            testi += voce->isSeparator() ? voce->objectName() + u"-"_s : voce->text();
        return testi;
    };
    EXPECT_EQ(voci(editor.mnuFile), (QStringList{u"Nuovo"_s, u"Apri"_s, u"t1-"_s, u"Salva"_s,
                                                 u"Salva con nome"_s, u"t2-"_s, u"Esci"_s}));
    EXPECT_EQ(voci(editor.mnuIns),
              (QStringList{u"Pausa"_s, u"Frase"_s, u"Suono"_s, u"Testa"_s, u"Base"_s,
                           u"Visione camera"_s, u"Apri un programma..."_s, u"Ripeti comandi..."_s,
                           u"t3-"_s, u"Condizione di avvio"_s}));
    EXPECT_EQ(voci(editor.mnuInsT), (QStringList{u"Destra (2 st)"_s, u"Sinistra (2 st)"_s,
                                                 u"Su (2 st)"_s, u"Giu (2 st)"_s}));
    EXPECT_EQ(voci(editor.mnuInsB), (QStringList{u"Avanti veloce"_s, u"Indietro veloce"_s,
                                                 u"Destra"_s, u"Sinistra"_s, u"Stop"_s}));
}

TEST_F(FrmEditorTest, EveryMenuEntryOfAMoveInsertsItsLine)
{
    mostra();
    const std::initializer_list<std::pair<VoceMenu *, QString>> voci = {
        {&editor.mnuInsTDx, u"Testa destra 2"_s},
        {&editor.mnuInsTSx, u"Testa sinistra 2"_s},
        {&editor.mnuInsTSu, u"Testa su 2"_s},
        {&editor.mnuInsTGiu, u"Testa giu 2"_s},
        {&editor.mnuInsBAvanti, u"Avanti veloce"_s},
        {&editor.mnuInsBIndietro, u"Indietro veloce"_s},
        {&editor.mnuInsBDx, u"Destra"_s},
        {&editor.mnuInsBSx, u"Sinistra"_s},
        {&editor.mnuInsBStop, u"Stop"_s},
        {&editor.mnuInsCamera, u"Camera"_s},
    };
    QStringList attese;
    for (const auto &[voce, riga] : voci) {
        voce->trigger();
        attese += riga;
        EXPECT_EQ(lista.ListIndex(), attese.size() - 1);
    }
    EXPECT_EQ(righe(), attese);
    EXPECT_EQ(lista.Tag(), u"False"_s);
}

TEST_F(FrmEditorTest, ALineGoesBehindTheSelectedOne)
{
    mostra();
    riempi({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
    lista.setListIndex(2);
    editor.mnuInsBStop.trigger();
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"B"_s, u"C"_s, u"Stop"_s, u"D"_s, u"E"_s}));
    EXPECT_EQ(lista.ListIndex(), 3);
}

TEST_F(FrmEditorTest, ADialogGivesTheLineOfItsMode)
{
    mostra();
    conValore([this] { editor.mnuInsPausa.trigger(); }, [](frmValore &v) { scrivi(v, u"250"_s); });
    conValore([this] { editor.mnuInsPausa.trigger(); },
              [](frmValore &v) {
                  scrivi(v, u"3"_s);
                  v.cbInfo.setListIndex(1);
              });
    conValore([this] { editor.mnuInsFrase.trigger(); }, [](frmValore &v) { scrivi(v, u"14"_s); });
    conValore([this] { editor.mnuInsSuono.trigger(); }, [](frmValore &v) { scrivi(v, u"16"_s); });
    conValore([this] { editor.mnuInsRipeti.trigger(); }, [](frmValore &) {});
    conValore([this] { editor.mnuInsRipeti.trigger(); }, [](frmValore &v) { scrivi(v, u"1"_s); });
    conValore([this] { editor.mnuInsRipeti.trigger(); }, [](frmValore &v) { scrivi(v, u"5"_s); });
    EXPECT_EQ(righe(),
              (QStringList{u"Pausa 250"_s, u"Pausa 3000"_s, u"Frase 14"_s, u"Suono 16"_s,
                           u"Ripeti all'infinito"_s, u"Ripeti 1 volta"_s, u"Ripeti 5 volte"_s}));
}

TEST_F(FrmEditorTest, AFullListTakesNoLineAndSaysSo)
{
    mostra();
    riempi(QStringList(32766, u"Stop"_s));
    lista.setListIndex(3);
    const RispondiMessaggi messaggi;
    editor.mnuInsCamera.trigger();
    EXPECT_EQ(lista.ListCount(), 32767);
    EXPECT_TRUE(messaggi.visti().isEmpty());
    lista.setTag(u"True"_s);
    editor.mnuInsTSu.trigger();
    conValore([this] { editor.mnuInsPausa.trigger(); }, [](frmValore &v) { scrivi(v, u"250"_s); });
    EXPECT_EQ(lista.ListCount(), 32767);
    EXPECT_EQ(lista.ListIndex(), 4);
    EXPECT_EQ(lista.Text(), u"Camera"_s);
    EXPECT_EQ(lista.Tag(), u"True"_s);
    ASSERT_EQ(messaggi.visti().size(), 2);
    EXPECT_EQ(messaggi.visti()[0].testo, u"Una lista ha al massimo 32767 comandi"_s);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Sequor"_s);
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Information);
}

TEST_F(FrmEditorTest, ADialogThatIsClosedGivesNoLine)
{
    mostra();
    for (VoceMenu *voce :
         {&editor.mnuInsPausa, &editor.mnuInsFrase, &editor.mnuInsSuono, &editor.mnuInsRipeti})
        conValore([&] { voce->trigger(); }, [](frmValore &v) { v.close(); });
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(lista.Tag(), u"True"_s);
}

TEST_F(FrmEditorTest, ThePictureButtonsOpenTheDialogsOfTheirEntries)
{
    mostra();
    const std::initializer_list<std::pair<Immagine *, QString>> pulsanti = {
        {&editor.pulPausa, u"Pausa"_s},
        {&editor.pulFrase, u"Frase"_s},
        {&editor.pulSuono, u"Suono"_s}};
    for (const auto &[pulsante, modo] : pulsanti)
        conValore([&, p = pulsante] { clicca(*p); },
                  [&, m = modo](frmValore &v) {
                      EXPECT_EQ(v.Tag(), m);
                      scrivi(v, u"2"_s);
                  });
    EXPECT_EQ(righe(), (QStringList{u"Pausa 2"_s, u"Frase 2"_s, u"Suono 2"_s}));
}

TEST_F(FrmEditorTest, DeletingSelectsTheLineThatTookThePlace)
{
    mostra();
    riempi({u"A"_s, u"B"_s, u"C"_s});
    lista.setListIndex(1);
    clicca(editor.pulCanc);
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"C"_s}));
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_EQ(lista.Tag(), u"False"_s);
}

TEST_F(FrmEditorTest, DeletingTheLastLineSelectsNothingAndTheNextGoesToTheTop)
{
    mostra();
    riempi({u"A"_s, u"B"_s});
    lista.setListIndex(1);
    clicca(editor.pulCanc);
    EXPECT_EQ(lista.ListIndex(), -1);
    editor.mnuInsBStop.trigger();
    EXPECT_EQ(righe(), (QStringList{u"Stop"_s, u"A"_s}));
}

TEST_F(FrmEditorTest, DeletingWithNothingSelectedStillCountsAsAChange)
{
    mostra();
    riempi({u"A"_s});
    clicca(editor.pulCanc);
    EXPECT_EQ(righe(), QStringList{u"A"_s});
    EXPECT_EQ(lista.Tag(), u"False"_s);
}

TEST_F(FrmEditorTest, TheDeleteKeyDeletesUnlessAListRuns)
{
    mostra();
    riempi({u"A"_s, u"B"_s});
    lista.setListIndex(0);
    lista.setFocus();
    timer.setEnabled(true);
    QTest::keyClick(&lista, Qt::Key_Delete);
    EXPECT_EQ(lista.ListCount(), 2);
    timer.setEnabled(false);
    QTest::keyClick(&lista, Qt::Key_Delete);
    EXPECT_EQ(righe(), QStringList{u"B"_s});
}

TEST_F(FrmEditorTest, MovingALineTakesTheSelectionAlongAndIsNoChange)
{
    mostra();
    riempi({u"A"_s, u"B"_s, u"C"_s});
    lista.setListIndex(0);
    clicca(editor.pulGiu);
    EXPECT_EQ(righe(), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    EXPECT_EQ(lista.ListIndex(), 1);
    clicca(editor.pulSu);
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_EQ(lista.ListIndex(), 0);
    EXPECT_EQ(lista.Tag(), u"True"_s);
}

TEST_F(FrmEditorTest, ADoubleClickMovesByTwoPlaces)
{
    mostra();
    riempi({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
    lista.setListIndex(0);
    cliccaDueVolte(editor.pulGiu);
    EXPECT_EQ(righe(), (QStringList{u"B"_s, u"C"_s, u"A"_s, u"D"_s, u"E"_s}));
    EXPECT_EQ(lista.ListIndex(), 2);
    lista.setListIndex(4);
    cliccaDueVolte(editor.pulSu);
    EXPECT_EQ(righe(), (QStringList{u"B"_s, u"C"_s, u"E"_s, u"A"_s, u"D"_s}));
    EXPECT_EQ(lista.ListIndex(), 2);
}

TEST_F(FrmEditorTest, ADoubleClickDeletesOneLine)
{
    mostra();
    riempi({u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    lista.setListIndex(1);
    cliccaDueVolte(editor.pulCanc);
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"C"_s, u"D"_s}));
    EXPECT_EQ(lista.ListIndex(), 1);
}

TEST_F(FrmEditorTest, ADoubleClickOpensTheRunnerOnce)
{
    int chiesto = 0;
    editor.VigilioChiesto.collega([&] { ++chiesto; });
    mostra();
    cliccaDueVolte(editor.imgVigilio);
    EXPECT_EQ(chiesto, 1);
}

TEST_F(FrmEditorTest, AtTheEndsNothingMoves)
{
    mostra();
    riempi({u"A"_s, u"B"_s});
    lista.setListIndex(0);
    clicca(editor.pulSu);
    EXPECT_EQ(lista.ListIndex(), 0);
    lista.setListIndex(1);
    clicca(editor.pulGiu);
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"B"_s}));
}

TEST_F(FrmEditorTest, WithNothingSelectedNothingMoves)
{
    mostra();
    riempi({u"A"_s, u"B"_s});
    clicca(editor.pulGiu);
    clicca(editor.pulSu);
    EXPECT_EQ(righe(), (QStringList{u"A"_s, u"B"_s}));
    EXPECT_EQ(lista.ListIndex(), -1);
}

TEST_F(FrmEditorTest, TheBoxTellsWhetherTheConsoleInserts)
{
    mostra();
    clicca(editor.opzInsComandi, QPoint(8, editor.opzInsComandi.height() / 2));
    EXPECT_EQ(editor.opzInsComandi.Value(), 0);
    EXPECT_EQ(editor.opzInsComandi.Caption(), u"Inserisci comandi nella lista (Disattivato)"_s);
    EXPECT_EQ(editor.opzInsComandi.palette().color(QPalette::WindowText), QColor(0x80, 0, 0));
    editor.opzInsComandi.setValue(1);
    EXPECT_EQ(editor.opzInsComandi.Caption(), u"Inserisci comandi nella lista (Attivato)"_s);
    EXPECT_EQ(editor.opzInsComandi.palette().color(QPalette::WindowText), QColor(0, 0xC0, 0));
}

TEST_F(FrmEditorTest, EveryTextStandsOutFromItsGround)
{
    mostra();
    riempi({u"Avanti piano"_s});
    for (const int valore : {1, 0, 1}) {
        editor.opzInsComandi.setValue(valore);
        EXPECT_THAT(pocoLeggibili(editor), testing::IsEmpty());
    }
}

TEST_F(FrmEditorTest, APictureButtonLightsUpUnderThePointerOnly)
{
    mostra();
    const std::initializer_list<std::tuple<Immagine *, int, int>> pulsanti = {
        {&editor.pulCanc, 1, 7}, {&editor.pulPausa, 2, 8},  {&editor.pulSu, 3, 9},
        {&editor.pulGiu, 4, 10}, {&editor.pulFrase, 5, 11}, {&editor.pulSuono, 6, 12}};
    for (const auto &[pulsante, normale, sotto] : pulsanti) {
        EXPECT_EQ(pulsante->Width(), 240);
        EXPECT_EQ(pulsante->Height(), 240);
        muovi(*pulsante);
        EXPECT_EQ(pulsante->Picture(), sotto);
        // Three pixels are 45 units, four are 60.
        for (const QPoint bordo : {QPoint(3, 8), QPoint(8, 3), QPoint(13, 8), QPoint(8, 13)}) {
            muovi(*pulsante, bordo);
            EXPECT_EQ(pulsante->Picture(), normale);
            muovi(*pulsante);
            EXPECT_EQ(pulsante->Picture(), sotto);
        }
        for (const QPoint dentro : {QPoint(4, 8), QPoint(8, 4), QPoint(12, 8), QPoint(8, 12)}) {
            muovi(*pulsante, dentro);
            EXPECT_EQ(pulsante->Picture(), sotto);
        }
    }
}

TEST_F(FrmEditorTest, ThePointerElsewherePutsThePicturesRight)
{
    mostra();
    riempi({u"A"_s});
    for (QWidget *altrove : {static_cast<QWidget *>(&lista), lista.viewport(),
                             static_cast<QWidget *>(&editor.pulEsegui)}) {
        muovi(editor.pulSu);
        ASSERT_EQ(editor.pulSu.Picture(), 9);
        muovi(*altrove);
        EXPECT_EQ(editor.pulSu.Picture(), 3);
    }
    muovi(editor.pulGiu);
    ASSERT_EQ(editor.pulGiu.Picture(), 10);
    muovi(editor, QPoint(editor.width() - 2, editor.height() - 2));
    EXPECT_EQ(editor.pulGiu.Picture(), 4);
}

TEST_F(FrmEditorTest, AClickPutsTheNormalPictureBack)
{
    mostra();
    riempi({u"A"_s, u"B"_s});
    const std::initializer_list<std::pair<Immagine *, int>> pulsanti = {
        {&editor.pulSu, 3}, {&editor.pulGiu, 4}, {&editor.pulCanc, 1}};
    for (const auto &[pulsante, normale] : pulsanti) {
        muovi(*pulsante);
        clicca(*pulsante);
        EXPECT_EQ(pulsante->Picture(), normale);
    }
}

TEST_F(FrmEditorTest, TheRunnersPictureOpensTheRunner)
{
    int chiesto = 0;
    editor.VigilioChiesto.collega([&] { ++chiesto; });
    mostra();
    clicca(editor.imgVigilio);
    EXPECT_EQ(chiesto, 1);
}

TEST_F(FrmEditorTest, WithoutARunnerItsEntriesDoNothing)
{
    mostra();
    clicca(editor.imgVigilio);
    editor.mnuInsCondizione.trigger();
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST_F(FrmEditorTest, ALineOfAHundredThousandCharactersIsShownAndKept)
{
    mostra();
    const QString lunga(100'000, u'x');
    for (int i = 0; i < 50; ++i)
        lista.AddItem(lunga);
    gira(50);
    EXPECT_EQ(lista.List(49), lunga);
    lista.setListIndex(49);
    clicca(editor.pulSu);
    EXPECT_EQ(lista.ListIndex(), 48);
}

TEST_F(FrmEditorTest, ALineThatIsCutIsReadWholeInItsToolTip)
{
    mostra();
    const QString lunga = u"Programma C:\\Programmi\\"_s +
                          u"una <b>cartella</b> & un nome molto lungo\\"_s.repeated(8) +
                          u"gioco.exe"_s;
    riempi({u"Stop"_s, lunga, u"Foto"_s});
    // The list stays as wide as it is, whatever stands in its first line.
    lista.AddItem(lunga, 0);
    gira(20);
    EXPECT_FALSE(lista.horizontalScrollBar()->isVisible());
    const auto suggerimento = [&](int riga) {
        const QPoint dove = lista.visualItemRect(lista.item(riga)).center();
        QHelpEvent evento(QEvent::ToolTip, dove, lista.viewport()->mapToGlobal(dove));
        QCoreApplication::sendEvent(lista.viewport(), &evento);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().remove(u'\n');
    };
    EXPECT_EQ(suggerimento(0), lunga);
    for (const QWidget *finestra : QApplication::topLevelWidgets()) {
        if (finestra->inherits("QTipLabel")) {
            EXPECT_LE(finestra->width(), editor.screen()->availableGeometry().width());
        }
    }
    EXPECT_EQ(suggerimento(2), lunga);
    QToolTip::hideText();
    EXPECT_TRUE(aspetta([] { return !QToolTip::isVisible(); }));
    EXPECT_EQ(suggerimento(1), QString());
    EXPECT_EQ(suggerimento(3), QString());
}

TEST_F(FrmEditorTest, AScreenReaderReadsALongLineWhole)
{
    mostra();
    const QString lunga(3000, u'x');
    riempi({u"Stop"_s, lunga});
    QAccessibleInterface *voce = QAccessible::queryAccessibleInterface(&lista)->child(1);
    ASSERT_TRUE(voce);
    EXPECT_EQ(voce->text(QAccessible::Name), lunga);
}

TEST_F(FrmEditorTest, EverythingIsFoundByItsName)
{
    for (const char *nome : {"tmrAttivaAut",
                             "opzInsComandi",
                             "Finestre",
                             "tmrEseguiMosse",
                             "pulEsegui",
                             "lstMosse",
                             "imgVigilio",
                             "pulSuono",
                             "pulFrase",
                             "pulPausa",
                             "pulCanc",
                             "pulGiu",
                             "pulSu",
                             "lblFile",
                             "mnuFile",
                             "mnuFileNuovo",
                             "mnuFileApri",
                             "t1",
                             "mnuFileSalva",
                             "mnuFileSalvacome",
                             "t2",
                             "mnuFileEsci",
                             "mnuIns",
                             "mnuInsPausa",
                             "mnuInsFrase",
                             "mnuInsSuono",
                             "mnuInsT",
                             "mnuInsB",
                             "mnuInsCamera",
                             "mnuInsProg",
                             "mnuInsRipeti",
                             "t3",
                             "mnuInsCondizione",
                             "mnuInsTDx",
                             "mnuInsTSx",
                             "mnuInsTSu",
                             "mnuInsTGiu",
                             "mnuInsBAvanti",
                             "mnuInsBIndietro",
                             "mnuInsBDx",
                             "mnuInsBSx",
                             "mnuInsBStop"})
        EXPECT_TRUE(editor.findChild<QObject *>(QLatin1StringView(nome))) << nome;
    EXPECT_EQ(editor.objectName(), u"frmEditor"_s);
    EXPECT_EQ(editor.valore.objectName(), u"frmValore"_s);
}
