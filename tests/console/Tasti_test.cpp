// The keys, the latch, the pressed look.
#include "tests/console/ConsoleInProva.h"

#include <QAbstractItemView>
#include <gmock/gmock.h>

namespace {

QString chiusura(ConsoleInProva &c)
{
    return c.finestra.imgFreccia(1).Tag();
}

// As a held key repeats: Qt gives a release of its own before each further press.
void ripeti(ConsoleInProva &c, Qt::Key tasto)
{
    QKeyEvent lasciato(QEvent::KeyRelease, tasto, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&c.finestra.ImgTesta, &lasciato);
    QKeyEvent premuto(QEvent::KeyPress, tasto, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&c.finestra.ImgTesta, &premuto);
}

bool stopARiposo(ConsoleInProva &c)
{
    EXPECT_EQ(c.finestra.lblStop.Left(), c.finestra.shpStop.Left());
    EXPECT_EQ(c.finestra.lblStop.Top(), c.finestra.shpStop.Top());
    return c.finestra.shpStop.Left() == 2490;
}

QList<int> disegni(ConsoleInProva &c)
{
    QList<int> numeri;
    for (int i = 1; i <= 4; ++i)
        numeri << c.finestra.imgFreccia(i).Picture();
    return numeri;
}

} // namespace

TEST(TastiConsole, AHeldArrowSendsOnceWhileTheListIsClosed)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    EXPECT_EQ(chiusura(c), QString());
    c.premiTasto(Qt::Key_Up);
    for (int i = 0; i < 5; ++i)
        ripeti(c, Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
    c.lasciaTasto(Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
}

TEST(TastiConsole, AHeldArrowAddsALineAtEachRepeatWhileTheListIsActive)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    c.premiTasto(Qt::Key_Right);
    for (int i = 0; i < 3; ++i)
        ripeti(c, Qt::Key_Right);
    EXPECT_EQ(chiusura(c), QString());
    c.lasciaTasto(Qt::Key_Right);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(4, u"Destra ½"_s));
    EXPECT_EQ(c.frmEditor.lstMosse.ListIndex(), 3);
}

TEST(TastiConsole, AReleaseSendsNothing)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Down);
    c.mandati();
    c.lasciaTasto(Qt::Key_Down);
    EXPECT_TRUE(c.mandati().isEmpty());
    EXPECT_EQ(c.robot.robot().stato().base, MotoBase::Indietro);
}

TEST(TastiConsole, WhileAKeyCountsAsHeldAnotherIsIgnored)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Up);
    c.premiTasto(Qt::Key_Left);
    EXPECT_EQ(disegni(c), (QList<int>{5, 2, 3, 4}));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
}

TEST(TastiConsole, AnyReleaseLetsTheHeldArrowActAgain)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Up);
    c.tasto(Qt::Key_A);
    ripeti(c, Qt::Key_Up);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1, 19, 65, 1}));
}

TEST(TastiConsole, OtherKeysSetTheLatchAndDoNothingElse)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (const Qt::Key tasto :
         {Qt::Key_A, Qt::Key_Return, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_F5, Qt::Key_Shift}) {
        c.premiTasto(tasto);
        EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        c.lasciaTasto(tasto);
        EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
    }
    EXPECT_TRUE(c.mandati().isEmpty());
}

TEST(TastiConsole, AnArrowsPictureIsPressedWhileItsKeyIs)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    const Qt::Key tasti[] = {Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Down};
    for (int i = 0; i < 4; ++i) {
        c.premiTasto(tasti[i]);
        QList<int> attesi = {1, 2, 3, 4};
        attesi[i] += 4;
        EXPECT_EQ(disegni(c), attesi);
        c.lasciaTasto(tasti[i]);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    }
}

TEST(TastiConsole, InArmModeTheHiddenArrowsArePressedToo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(c.finestra.opzBraccia);
    c.premiTasto(Qt::Key_Left);
    EXPECT_FALSE(c.finestra.imgFreccia(2).isVisible());
    EXPECT_EQ(disegni(c), (QList<int>{1, 6, 3, 4}));
    c.lasciaTasto(Qt::Key_Left);
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
}

TEST(TastiConsole, AReleaseServedDuringTheWaitLeavesTheLatchShut)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        c.lasciaTasto(Qt::Key_Up);
        EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
        c.robot.inviaGrezzo(b({31, 20}));
    });
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
    // The next press is swallowed, and its release opens the latch.
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    EXPECT_TRUE(c.mandati().isEmpty());
    c.lasciaTasto(Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
}

TEST(TastiConsole, TheSpaceBarStopsTheBaseAndPressesTheLabel)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Space);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 0}));
    EXPECT_EQ(c.finestra.shpStop.Left(), 2540);
    EXPECT_EQ(c.finestra.shpStop.Top(), 3950);
    EXPECT_EQ(c.finestra.lblStop.Left(), 2540);
    EXPECT_EQ(c.finestra.lblStop.Top(), 3950);
    c.lasciaTasto(Qt::Key_Space);
    EXPECT_EQ(c.finestra.shpStop.Left(), 2490);
    EXPECT_EQ(c.finestra.shpStop.Top(), 3915);
    EXPECT_EQ(c.finestra.lblStop.Left(), 2490);
    EXPECT_EQ(c.finestra.lblStop.Top(), 3915);
    EXPECT_TRUE(c.mandati().isEmpty());
}

TEST(TastiConsole, TheSpaceBarInTheListSetsTheLatchAllTheSame)
{
    ConsoleInProva c;
    c.mostra();
    c.attivaLista(true);
    c.premiTasto(Qt::Key_Space);
    ripeti(c, Qt::Key_Space);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(u"Stop"_s));
    EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
}

TEST(TastiConsole, InTheOtherModesTheSpaceBarOnlySetsTheLatch)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (CasellaOpzione *modo : {&c.finestra.opzBraccia, &c.finestra.opzTesta}) {
        c.clicca(*modo);
        c.premiTasto(Qt::Key_Space);
        EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
        EXPECT_EQ(c.finestra.shpStop.Left(), 2490);
        EXPECT_EQ(c.finestra.shpStop.Top(), 3900);
        c.lasciaTasto(Qt::Key_Space);
    }
    EXPECT_TRUE(c.mandati().isEmpty());
}

TEST(TastiConsole, AReleaseInHeadModeDoesNotTouchTheStopLabel)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(c.finestra.opzTesta);
    c.tasto(Qt::Key_Up);
    EXPECT_EQ(c.finestra.lblStop.Top(), 3900);
}

TEST(TastiConsole, KeysReachTheWindowFromATextBoxToo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(c.finestra.txtValFrase);
    ASSERT_TRUE(c.finestra.txtValFrase.hasFocus());
    c.tasto(Qt::Key_Left);
    c.tasto(Qt::Key_Space);
    EXPECT_EQ(c.byteMandati(), b({19, 68, 18, 19, 65, 0}));
    EXPECT_EQ(c.finestra.txtValFrase.Text(), u"1"_s);
}

TEST(TastiConsole, AMessageBoxThatAKeyOpensTakesItsRelease)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    messaggi.mentreAperto = [&](QMessageBox &box) {
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        // The key that the user still holds repeats in the box, and is let go there.
        QTest::keyRelease(box.windowHandle(), Qt::Key_Up);
    };
    for (int volta = 1; volta <= 2; ++volta) {
        c.premiTasto(Qt::Key_Up);
        EXPECT_EQ(messaggi.visti().size(), volta) << "a key that was swallowed says nothing";
        EXPECT_EQ(messaggi.testi().last(), u"Non sono collegato al robot"_s);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
    }
}

TEST(TastiConsole, AKeyThatIsStillHeldWhenTheBoxHasGoneOpensNoOther)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    c.premiTasto(Qt::Key_Up);
    c.torna();
    for (int i = 0; i < 3; ++i)
        ripeti(c, Qt::Key_Up);
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    c.lasciaTasto(Qt::Key_Up);
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(messaggi.visti().size(), 2);
}

TEST(TastiConsole, AMessageBoxThatAnArrowOpensTakesItsRelease)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    messaggi.mentreAperto = [&](QMessageBox &) {
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        EXPECT_EQ(c.finestra.imgFreccia(5).Picture(), 1);
        // It goes to the console, which the box keeps it from.
        c.lascia(c.finestra.imgFreccia(2));
    };
    int volta = 0;
    for (const int freccia : {2, 5, 2, 5}) {
        c.premi(c.finestra.imgFreccia(freccia));
        EXPECT_EQ(messaggi.visti().size(), ++volta);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        EXPECT_EQ(c.finestra.imgFreccia(5).Picture(), 1);
        EXPECT_NE(chiusura(c), u"Tasto premuto"_s);
    }
}

TEST(TastiConsole, AHeldArrowSendsOneCommandToASilentRobot)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        for (int i = 0; i < 3; ++i)
            ripeti(c, Qt::Key_Up);
        EXPECT_EQ(chiusura(c), QString()) << "the latch is written after the wait";
        c.robot.inviaGrezzo(b({31, 20}));
    });
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
    EXPECT_EQ(disegni(c), (QList<int>{5, 2, 3, 4}));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
}

TEST(TastiConsole, AnotherButtonOnAHeldArrowIsNoOtherCommand)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        c.premi(c.finestra.imgFreccia(1), Qt::RightButton);
        c.robot.inviaGrezzo(b({31, 20}));
    });
    c.premi(c.finestra.imgFreccia(1));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1}));
    EXPECT_EQ(disegni(c), (QList<int>{5, 2, 3, 4}));
    // Outside of it: the arrow has the mouse until the last button is let go.
    c.lascia(c.finestra, Qt::RightButton, QPoint(399, 200));
    c.lascia(c.finestra, Qt::LeftButton, QPoint(399, 200));
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
}

TEST(TastiConsole, AKeyPressedAnewDuringItsWaitIsACommandOfItsOwn)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        c.lasciaTasto(Qt::Key_Up);
        QTimer::singleShot(0, &c.finestra, [&] { c.robot.inviaGrezzo(b({31, 20})); });
        c.premiTasto(Qt::Key_Up);
    });
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1, 19, 65, 1}));
}

TEST(TastiConsole, WhoeverPressesOnAndOnIsObeyed)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    constexpr int battute = 60;
    int fatte = 0;
    const std::function<void()> batti = [&] {
        if (fatte > 0)
            c.lasciaTasto(Qt::Key_Up);
        if (fatte == battute) {
            c.robot.inviaGrezzo(b({31, 20}));
            return;
        }
        ++fatte;
        QTimer::singleShot(0, &c.finestra, batti);
        c.premiTasto(Qt::Key_Up);
    };
    batti();
    EXPECT_TRUE(aspetta([&] { return fatte == battute; }));
    EXPECT_EQ(c.mandati().size(), battute);
}

TEST(TastiConsole, AnotherProgramInFrontLetsAllKeysGo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (const Qt::Key tasto : {Qt::Key_Up, Qt::Key_Alt}) {
        c.premiTasto(tasto);
        EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
        c.vaiAltrove();
        EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        c.torna();
        c.mandati();
        c.tasto(Qt::Key_Space);
        EXPECT_EQ(c.byteMandati(), b({19, 65, 0})) << "the first key is not swallowed";
    }
}

TEST(TastiConsole, NothingHeldTheLatchKeepsWhatItSaid)
{
    ConsoleInProva c;
    c.mostra();
    c.vaiAltrove();
    EXPECT_EQ(chiusura(c), QString());
    EXPECT_EQ(c.finestra.lblStop.Top(), 3900);
}

TEST(TastiConsole, AKeyThatWasLostDuringItsWaitDoesNotShutTheLatchAfterIt)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        c.vaiAltrove();
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        c.robot.inviaGrezzo(b({31, 20}));
    });
    c.premiTasto(Qt::Key_Up);
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
    c.torna();
    c.mandati();
    c.tasto(Qt::Key_Space);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 0}));
}

TEST(TastiConsole, AListThatOpensTakesTheReleaseOfAHeldKey)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Up);
    c.finestra.cbMex.showPopup();
    ASSERT_TRUE(aspetta([&] { return c.finestra.cbMex.view()->isVisible(); }));
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
    EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
    c.finestra.cbMex.hidePopup();
}

TEST(TastiConsole, AnotherProgramInFrontLetsAllThatTheMouseHoldsGo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    const std::pair<Etichetta *, double> etichette[] = {
        {&f.lblStop, 2490}, {&f.lblAccLED, 60}, {&f.lblSpLED, 1140}, {&f.lblScattaFoto, 4500}};
    for (const auto &[etichetta, left] : etichette) {
        c.premi(*etichetta);
        EXPECT_EQ(etichetta->Left(), left + 50);
        c.vaiAltrove();
        EXPECT_EQ(etichetta->Left(), left);
        c.torna();
        c.lascia(f, Qt::LeftButton, QPoint(399, 200));
        EXPECT_EQ(etichetta->Left(), left);
    }
    for (const int freccia : {1, 4, 5, 6}) {
        const int riposo = f.imgFreccia(freccia).Picture();
        c.premi(f.imgFreccia(freccia));
        EXPECT_EQ(f.imgFreccia(freccia).Picture(), riposo + 4);
        c.vaiAltrove();
        EXPECT_EQ(f.imgFreccia(freccia).Picture(), riposo);
        c.torna();
        c.lascia(f, Qt::LeftButton, QPoint(399, 200));
    }
    EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
}

TEST(TastiConsole, TheStopLabelThatTheSpaceBarHoldsIsLetGoToo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Space);
    EXPECT_FALSE(stopARiposo(c));
    c.vaiAltrove();
    EXPECT_TRUE(stopARiposo(c));
    c.torna();
    // The mode changes while it is held.
    for (CasellaOpzione *modo : {&c.finestra.opzBraccia, &c.finestra.opzTesta}) {
        c.finestra.opzBase.setValue(true);
        c.premiTasto(Qt::Key_Space);
        EXPECT_FALSE(stopARiposo(c));
        modo->setValue(true);
        c.lasciaTasto(Qt::Key_Space);
        EXPECT_TRUE(stopARiposo(c));
    }
}

TEST(TastiConsole, ASpaceBarLetGoDuringItsWaitLeavesTheStopLabelAtRest)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.taci();
    QTimer::singleShot(0, &c.finestra, [&] {
        c.lasciaTasto(Qt::Key_Space);
        c.robot.inviaGrezzo(b({31, 20}));
    });
    c.premiTasto(Qt::Key_Space);
    EXPECT_TRUE(stopARiposo(c));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 0}));
}

TEST(TastiConsole, StopGoesOutWhileAnotherCommandWaits)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    const std::function<void()> fermate[] = {
        [&] { c.tasto(Qt::Key_Space); }, [&] { c.clicca(c.finestra.lblStop); },
        // A key counts as held when its wait has ended.
        [&] {
            c.finestra.imgFreccia(1).setTag(u"Tasto premuto"_s);
            c.tasto(Qt::Key_Space);
        }};
    for (const auto &ferma : fermate) {
        c.taci();
        QTimer::singleShot(0, &c.finestra, [&] {
            QTimer::singleShot(0, &c.finestra, [&] { c.robot.inviaGrezzo(b({31, 20})); });
            ferma();
        });
        c.premiTasto(Qt::Key_Up);
        EXPECT_EQ(c.byteMandati(), b({19, 65, 1, 19, 65, 0}));
        c.lasciaTasto(Qt::Key_Up);
    }
}

TEST(TastiConsole, TheTagOfTheFirstArrowIsTheLatchFromOutsideToo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    QWidget &freccia = c.finestra.imgFreccia(1);
    EXPECT_TRUE(freccia.setProperty("Tag", u"Tasto premuto"_s));
    c.premiTasto(Qt::Key_Up);
    EXPECT_TRUE(c.mandati().isEmpty());
    EXPECT_TRUE(freccia.setProperty("Tag", u"Tasto rilasciato"_s));
    c.premiTasto(Qt::Key_Left);
    EXPECT_EQ(c.byteMandati(), b({19, 68, 18}));
    EXPECT_EQ(freccia.property("Tag").toString(), u"Tasto premuto"_s);
    EXPECT_TRUE(freccia.setProperty("Tag", QString()));
    EXPECT_EQ(chiusura(c), QString());
    c.premiTasto(Qt::Key_Down);
    EXPECT_EQ(c.byteMandati(), b({19, 66, 1}));
}

TEST(TastiConsole, AMouseButtonOnAMainArrowIsItsKey)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (const Qt::MouseButton pulsante : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        c.premi(c.finestra.imgFreccia(2), pulsante);
        EXPECT_EQ(disegni(c), (QList<int>{1, 6, 3, 4}));
        EXPECT_EQ(chiusura(c), u"Tasto premuto"_s);
        c.lascia(c.finestra.imgFreccia(2), pulsante);
        EXPECT_EQ(disegni(c), (QList<int>{1, 2, 3, 4}));
        EXPECT_EQ(chiusura(c), u"Tasto rilasciato"_s);
        EXPECT_EQ(c.byteMandati(), b({19, 68, 18}));
    }
}

TEST(TastiConsole, PelvisAndArmArrowsArePressedInBothBranchesAndLeaveTheLatchAlone)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.clicca(c.finestra.opzBraccia);
    for (const bool lista : {false, true}) {
        c.attivaLista(lista);
        for (int i = 5; i <= 10; ++i) {
            const int riposo = i == 5 || i == 7 || i == 8 ? 1 : 4;
            EXPECT_EQ(c.finestra.imgFreccia(i).Picture(), riposo) << i;
            c.premi(c.finestra.imgFreccia(i), Qt::RightButton);
            EXPECT_EQ(c.finestra.imgFreccia(i).Picture(), riposo + 4) << i;
            c.mandati();
            c.lascia(c.finestra.imgFreccia(i), Qt::RightButton);
            EXPECT_EQ(c.finestra.imgFreccia(i).Picture(), riposo) << i;
            EXPECT_TRUE(c.mandati().isEmpty());
            EXPECT_EQ(chiusura(c), QString());
        }
    }
    EXPECT_EQ(c.frmEditor.lstMosse.ListCount(), 6);
}

TEST(TastiConsole, AnArmArrowActsWhileAKeyIsHeld)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.premiTasto(Qt::Key_Up);
    c.clicca(c.finestra.imgFreccia(5));
    EXPECT_EQ(c.byteMandati(), b({19, 65, 1, 19, 73, 4}));
}

TEST(TastiConsole, ATypedTurnIsSentAsNoneOfTheThree)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.finestra.cbModGiro.lineEdit()->setFocus();
    c.finestra.cbModGiro.lineEdit()->selectAll();
    QTest::keyClicks(c.finestra.cbModGiro.lineEdit(), u"xy"_s);
    EXPECT_EQ(c.finestra.cbModGiro.ListIndex(), -1);
    c.finestra.ImgTesta.SetFocus();
    c.tasto(Qt::Key_Right);
    EXPECT_EQ(c.byteMandati(), b({19, 67, 19}));
    EXPECT_EQ(c.pannello(), u"Robot svoltato a destra per xy di giro"_s);
    c.attivaLista(true);
    c.tasto(Qt::Key_Left);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(u"Sinistra xy"_s));
}
