// The console by keyboard alone: the menu of what has no key, and the toolbar.
#include "tests/console/ConsoleInProva.h"

#include <QMenu>
#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {

QMenu *aperto()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QString chiusura(ConsoleInProva &c)
{
    return c.finestra.imgFreccia(1).Tag();
}

// The entry of that name, mnemonics left out, under these menus.
QAction *voce(const QMenu &menu, const QStringList &nomi)
{
    for (QAction *azione : menu.actions()) {
        if (azione->text().remove(u'&') == nomi.first())
            return nomi.size() == 1 ? azione : voce(*azione->menu(), nomi.sliced(1));
    }
    ADD_FAILURE() << nomi.first().toStdString();
    return nullptr;
}

// Opens the menu and takes entries by their letters.
void scegli(ConsoleInProva &c, std::initializer_list<Qt::Key> lettere)
{
    c.tasto(Qt::Key_Menu);
    ASSERT_NE(aperto(), nullptr);
    for (const Qt::Key lettera : lettere)
        c.tasto(lettera);
}

void lettere(const QMenu &menu)
{
    QStringList viste;
    for (const QAction *azione : menu.actions()) {
        if (azione->isSeparator())
            continue;
        const qsizetype segno = azione->text().indexOf(u'&');
        ASSERT_GE(segno, 0) << azione->text().toStdString();
        const QString lettera = azione->text().mid(segno + 1, 1).toUpper();
        EXPECT_FALSE(viste.contains(lettera)) << azione->text().toStdString();
        viste << lettera;
        if (azione->menu())
            lettere(*azione->menu());
    }
}

// Whoever is in front now.
class Alzate : public QObject
{
public:
    explicit Alzate(QWidget &finestra) { finestra.installEventFilter(this); }
    int volte = 0;

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::ZOrderChange)
            ++volte;
        return false;
    }
};

} // namespace

TEST(MenuTastiera, TheMenuKeyOpensItWhenItIsLetGo)
{
    ConsoleInProva c;
    c.mostra();
    c.premiTasto(Qt::Key_Menu);
    EXPECT_EQ(aperto(), nullptr);
    EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
    c.lasciaTasto(Qt::Key_Menu);
    EXPECT_EQ(aperto(), &c.finestra.mnuTastiera);
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s) << "the next key of the robot is not swallowed";
    c.tasto(Qt::Key_Escape);
    EXPECT_EQ(aperto(), nullptr);
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(MenuTastiera, SoDoesShiftWithF10AndNoOtherKey)
{
    ConsoleInProva c;
    c.mostra();
    for (const Qt::Key tasto : {Qt::Key_F10, Qt::Key_F5, Qt::Key_M, Qt::Key_Alt}) {
        c.tasto(tasto);
        EXPECT_EQ(aperto(), nullptr);
    }
    // Whichever of the two is let go first.
    for (const Qt::KeyboardModifier rimasto : {Qt::ShiftModifier, Qt::NoModifier}) {
        QTest::keyPress(c.finestra.windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
        QTest::keyRelease(c.finestra.windowHandle(), Qt::Key_F10, rimasto);
        ASSERT_EQ(aperto(), &c.finestra.mnuTastiera);
        aperto()->close();
    }
}

TEST(MenuTastiera, InItTheKeysAreTheMenusAndTheRobotStandsStill)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.tasto(Qt::Key_Menu);
    for (const Qt::Key tasto : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left})
        c.tasto(tasto);
    c.finestra.mnuTastiera.close();
    EXPECT_THAT(c.mandati(), IsEmpty());
    c.tasto(Qt::Key_Up);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
}

TEST(MenuTastiera, EveryEntryHasALetterOfItsOwnInItsMenu)
{
    ConsoleInProva c;
    c.mostra();
    c.tasto(Qt::Key_Menu);
    lettere(c.finestra.mnuTastiera);
    aperto()->close();
    EXPECT_GT(c.finestra.mnuTastiera.actions().size(), 10);
}

TEST(MenuTastiera, AnEntryDoesWhatTheMouseDoes)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    const std::pair<QStringList, QString> casi[] = {
        {{u"STOP"_s}, u"Stop"_s},
        {{u"Bacino"_s, u"Alza il bacino"_s}, u"Bacino Alza"_s},
        {{u"Bacino"_s, u"Abbassa il bacino"_s}, u"Bacino Abbassa"_s},
        {{u"LED"_s, u"Accendi a destra"_s, u"Verde"_s}, u"Testa LED Vd on"_s},
        {{u"LED"_s, u"Accendi a destra"_s, u"Blu"_s}, u"Testa LED Bd on"_s},
        {{u"LED"_s, u"Accendi a sinistra"_s, u"Giallo"_s}, u"Testa LED Gs on"_s},
        {{u"LED"_s, u"Spegni a destra"_s, u"Rosso"_s}, u"Testa LED Rd off"_s},
        {{u"LED"_s, u"Spegni a sinistra"_s, u"Blu"_s}, u"Testa LED Bs off"_s},
        {{u"LED"_s, u"Accendi tutti"_s}, u"Testa LED tutti on"_s},
        {{u"LED"_s, u"Spegni tutti"_s}, u"Testa LED tutti off"_s},
        {{u"LED"_s, u"Accendi il LED di posizione"_s}, u"LED Posizione ON"_s},
        {{u"LED"_s, u"Spegni il LED di posizione"_s}, u"LED Posizione OFF"_s},
        {{u"Tool"_s, u"Accendi il tool sinistro"_s}, u"Tool Sinistro ON"_s},
        {{u"Tool"_s, u"Spegni il tool sinistro"_s}, u"Tool Sinistro OFF"_s},
        {{u"Tool"_s, u"Accendi il tool destro"_s}, u"Tool Destro ON"_s},
        {{u"Tool"_s, u"Spegni il tool destro"_s}, u"Tool Destro OFF"_s},
        {{u"Pinza"_s, u"Apri la pinza"_s}, u"Pinza Apri"_s},
        {{u"Pinza"_s, u"Chiudi la pinza"_s}, u"Pinza Chiudi"_s},
        {{u"Scatta una foto"_s}, u"Foto"_s},
        {{u"Voce"_s, u"Pronuncia frase"_s}, u"Frase 1"_s},
        {{u"Voce"_s, u"Esegui suono"_s}, u"Suono 1"_s},
        {{u"Messaggi"_s, u"Play"_s}, u"Mex 1 play"_s},
        {{u"Messaggi"_s, u"Registra"_s}, u"Mex 1 registra"_s},
        {{u"Messaggi"_s, u"Stop"_s}, u"Mex stop"_s},
        {{u"Messaggi"_s, u"Cancella"_s}, u"Mex 1 cancella"_s},
        {{u"Programmi interni"_s, u"Fai partire il programma"_s}, u"Prog interno 1"_s},
        {{u"Programmi interni"_s, u"Stoppa il programma"_s}, u"Prog interno Stop"_s}};
    for (const auto &[nomi, riga] : casi) {
        c.frmEditor.lstMosse.Clear();
        voce(c.finestra.mnuTastiera, nomi)->trigger();
        EXPECT_EQ(c.frmEditor.mosse(), QStringList(riga));
    }
}

TEST(MenuTastiera, TheArmsMoveInTheirMode)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    QAction *braccia = voce(c.finestra.mnuTastiera, {u"Braccia"_s});
    c.tasto(Qt::Key_Menu);
    EXPECT_FALSE(braccia->isEnabled());
    aperto()->close();
    scegli(c, {Qt::Key_M, Qt::Key_R}); // Modo, Controlla le braccia
    EXPECT_TRUE(c.finestra.opzBraccia.Value());
    scegli(c, {Qt::Key_R, Qt::Key_D}); // Braccia, Alza il braccio destro
    EXPECT_TRUE(braccia->isEnabled());
    EXPECT_EQ(c.finestra.imgFreccia(8).Picture(), 1) << "let go again";
    scegli(c, {Qt::Key_R, Qt::Key_I}); // Abbassa il braccio sinistro
    scegli(c, {Qt::Key_S});
    EXPECT_EQ(c.frmEditor.mosse(),
              (QStringList{u"Braccio Dx Alza"_s, u"Braccio Sx Abbassa"_s, u"Braccia Stop"_s}));
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(MenuTastiera, TheKeysAloneLightALedOnTheRobot)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    scegli(c, {Qt::Key_L, Qt::Key_D, Qt::Key_B});
    EXPECT_EQ(c.pannello(), u"LED dell'orecchio destro acceso"_s);
    EXPECT_EQ(c.mandati().size(), 1);
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
}

TEST(MenuTastiera, AListIsOpenedAndChosenFromByKeys)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    scegli(c, {Qt::Key_M, Qt::Key_V});
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    c.tasto(Qt::Key_Down);
    c.tasto(Qt::Key_Return);
    EXPECT_EQ(c.finestra.cbVelocità.Text(), u"veloce"_s);
    EXPECT_TRUE(c.fuocoACasa());
    EXPECT_THAT(c.mandati(), IsEmpty());
    c.tasto(Qt::Key_Up);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 2}));
}

TEST(MenuTastiera, TheModeShownIsTheOneThatIsOn)
{
    ConsoleInProva c;
    c.mostra();
    c.finestra.opzTesta.setValue(true);
    scegli(c, {Qt::Key_M});
    const QAction *testa = voce(c.finestra.mnuTastiera, {u"Modo"_s, u"Controlla la testa"_s});
    EXPECT_TRUE(testa->isChecked());
    EXPECT_FALSE(voce(c.finestra.mnuTastiera, {u"Modo"_s, u"Controlla la base"_s})->isChecked());
    EXPECT_FALSE(voce(c.finestra.mnuTastiera, {u"STOP"_s})->isEnabled());
    while (aperto())
        aperto()->close();
}

TEST(MenuTastiera, TheNumbersBoxBringsItsNameBackAsAClickDoes)
{
    ConsoleInProva c;
    c.mostra();
    c.scriviPannello(u"altro"_s);
    scegli(c, {Qt::Key_V, Qt::Key_U});
    EXPECT_TRUE(c.finestra.txtValSuono.hasFocus());
    EXPECT_EQ(c.pannello(), u"Clacson"_s);
    QTest::keyClicks(&c.finestra.txtValSuono, u"8"_s);
    EXPECT_EQ(c.finestra.txtValSuono.Text(), u"8"_s);
}

TEST(MenuTastiera, TheOtherWindowsAreOpenedFromIt)
{
    ConsoleInProva c;
    c.mostra();
    scegli(c, {Qt::Key_Q});
    EXPECT_TRUE(c.frmEditor.Visible());
    c.finestra.activateWindow();
    ASSERT_TRUE(aspetta([&] { return c.finestra.isActiveWindow(); }));
    scegli(c, {Qt::Key_I});
    EXPECT_TRUE(c.frmProcessor.Visible());
}

TEST(MenuTastiera, TheConnectionIsMadeAndEndedFromIt)
{
    ConsoleInProva c;
    c.mostra();
    scegli(c, {Qt::Key_C});
    EXPECT_EQ(c.pannello(1), u"Connesso"_s);
    scegli(c, {Qt::Key_N});
    EXPECT_EQ(c.pannello(1), u"Non connesso"_s);
}

TEST(BarraPulsanti, EnterPressesTheButtonThatHasTheFocusAndTellsTheRobotNothing)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.finestra.BarraPulsanti.Buttons(6).setFocus(Qt::TabFocusReason);
    c.premiTasto(Qt::Key_Return);
    EXPECT_FALSE(c.frmProcessor.Visible());
    c.lasciaTasto(Qt::Key_Return);
    EXPECT_TRUE(c.frmProcessor.Visible());
    EXPECT_THAT(c.mandati(), IsEmpty());
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
}

TEST(BarraPulsanti, AnOpenWindowComesToTheFrontAndNothingElseHappensToIt)
{
    ConsoleInProva c;
    c.mostra();
    c.clicca(c.finestra.BarraPulsanti.Buttons(6));
    const Alzate alzate(c.frmProcessor);
    c.clicca(c.finestra.BarraPulsanti.Buttons(6));
    EXPECT_EQ(alzate.volte, 1);
    EXPECT_EQ(c.frmProcessor.caricamenti, 1);
}
