// The three control modes, and the focus that always goes home.
#include "tests/console/ConsoleInProva.h"

#include <QAbstractItemView>
#include <gmock/gmock.h>

namespace {

constexpr QRgb scelto = 0xFFC0FFC0;
constexpr QRgb altro = 0xFF80FF80;

QList<QRgb> colori(ConsoleInProva &c)
{
    return {c.finestra.opzBase.BackColor().rgb(), c.finestra.opzBraccia.BackColor().rgb(),
            c.finestra.opzTesta.BackColor().rgb()};
}

// Numbers of the arrows on the screen.
QList<int> frecce(ConsoleInProva &c)
{
    QList<int> visibili;
    for (int i = 1; i <= 10; ++i) {
        if (c.finestra.imgFreccia(i).isVisible())
            visibili << i;
    }
    return visibili;
}

struct Icona
{
    int Picture;
    QString suggerimento;
    double Top;
    bool operator==(const Icona &) const = default;
};

void PrintTo(const Icona &icona, std::ostream *uscita)
{
    *uscita << icona.Picture << ' ' << icona.suggerimento.toStdString() << ' ' << icona.Top;
}

Icona icona(const Immagine &immagine)
{
    return {immagine.Picture(), immagine.toolTip(), immagine.Top()};
}

void attendiBase(ConsoleInProva &c)
{
    frmPrincipale &f = c.finestra;
    EXPECT_EQ(colori(c), (QList<QRgb>{scelto, altro, altro}));
    EXPECT_EQ(frecce(c), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(f.cbVelocità.isVisible() && f.cbModGiro.isVisible());
    EXPECT_FALSE(f.cbStepV.isVisible() || f.cbStepO.isVisible());
    EXPECT_TRUE(f.lblStop.isVisible() && f.shpStop.isVisible());
    EXPECT_EQ(icona(f.Image1), (Icona{10, u"Velocità"_s, f.cbVelocità.Top()}));
    EXPECT_EQ(icona(f.Image2), (Icona{12, u"Tipo di rotazione su sé stesso"_s, f.cbModGiro.Top()}));
    EXPECT_EQ(f.lblOpzioni.Caption(), u"OPZIONI"_s);
}

} // namespace

TEST(ModiConsole, TheConsoleStartsInBaseMode)
{
    ConsoleInProva c;
    c.mostra();
    EXPECT_TRUE(c.finestra.opzBase.Value());
    attendiBase(c);
}

TEST(ModiConsole, ArmModeShowsTheArmsArrows)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    const double top1 = f.Image1.Top();
    const double top2 = f.Image2.Top();
    c.clicca(f.opzBraccia);
    EXPECT_EQ(colori(c), (QList<QRgb>{altro, scelto, altro}));
    EXPECT_EQ(frecce(c), (QList<int>{5, 6, 7, 8, 9, 10}));
    EXPECT_FALSE(f.cbVelocità.isVisible() || f.cbModGiro.isVisible());
    EXPECT_FALSE(f.cbStepV.isVisible() || f.cbStepO.isVisible());
    EXPECT_TRUE(f.lblStop.isVisible() && f.shpStop.isVisible());
    EXPECT_EQ(icona(f.Image1), (Icona{0, {}, top1}));
    EXPECT_EQ(icona(f.Image2), (Icona{0, {}, top2}));
    EXPECT_EQ(f.lblOpzioni.Caption(), u"S         D"_s);
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(ModiConsole, HeadModeShowsTheStepsAndNoStop)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    c.clicca(f.opzTesta);
    EXPECT_EQ(colori(c), (QList<QRgb>{altro, altro, scelto}));
    EXPECT_EQ(frecce(c), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_FALSE(f.cbVelocità.isVisible() || f.cbModGiro.isVisible());
    EXPECT_TRUE(f.cbStepV.isVisible() && f.cbStepO.isVisible());
    EXPECT_FALSE(f.lblStop.isVisible() || f.shpStop.isVisible());
    EXPECT_EQ(icona(f.Image1), (Icona{9, u"STEP verticali"_s, f.cbStepV.Top()}));
    EXPECT_EQ(icona(f.Image2), (Icona{11, u"STEP orizzontali"_s, f.cbStepO.Top()}));
    EXPECT_EQ(f.lblOpzioni.Caption(), u"STEP"_s);
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(ModiConsole, EveryWayBetweenTheModesLeadsToTheSameLook)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    for (CasellaOpzione *via : {&f.opzTesta, &f.opzBraccia, &f.opzTesta}) {
        c.clicca(*via);
        c.clicca(f.opzBase);
        attendiBase(c);
    }
    c.clicca(f.opzBraccia);
    c.clicca(f.opzTesta);
    EXPECT_EQ(frecce(c), (QList<int>{1, 2, 3, 4, 5, 6}));
    c.clicca(f.opzBraccia);
    EXPECT_TRUE(f.lblStop.isVisible());
    EXPECT_EQ(frecce(c), (QList<int>{5, 6, 7, 8, 9, 10}));
}

TEST(ModiConsole, TheBoxesHoldWhatTheyStartWith)
{
    ConsoleInProva c;
    c.mostra();
    const auto voci = [](Combo &combo) {
        QStringList testi;
        for (int i = 0; i < combo.ListCount(); ++i)
            testi << combo.List(i);
        return testi;
    };
    const auto numeri = [](int fino) {
        QStringList testi;
        for (int i = 1; i <= fino; ++i)
            testi << QString::number(i);
        return testi;
    };
    frmPrincipale &f = c.finestra;
    EXPECT_EQ(voci(f.cbVelocità), (QStringList{u"piano"_s, u"veloce"_s}));
    EXPECT_EQ(f.cbVelocità.Text(), u"piano"_s);
    EXPECT_EQ(voci(f.cbModGiro), (QStringList{u"½"_s, u"¼"_s, u"~"_s}));
    EXPECT_EQ(f.cbModGiro.Text(), u"½"_s);
    EXPECT_EQ(voci(f.cbStepV), numeri(4));
    EXPECT_EQ(f.cbStepV.Text(), u"2"_s);
    EXPECT_EQ(voci(f.cbStepO), numeri(12));
    EXPECT_EQ(f.cbStepO.Text(), u"2"_s);
    EXPECT_EQ(voci(f.cbMex), numeri(10));
    EXPECT_EQ(f.cbMex.Text(), u"1"_s);
    EXPECT_EQ(voci(f.cbProgrammi), numeri(10));
    EXPECT_EQ(f.cbProgrammi.Text(), u"1"_s);
}

TEST(ModiConsole, AChoiceInAnyBoxSendsTheFocusHome)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    const auto scegli = [&](Combo &combo) {
        SCOPED_TRACE(combo.objectName().toStdString());
        const int prima = combo.ListIndex();
        combo.setFocus();
        combo.showPopup();
        ASSERT_TRUE(aspetta([&] { return combo.view()->isVisible(); }));
        QTest::keyClick(combo.view(), Qt::Key_Down);
        QTest::keyClick(combo.view(), Qt::Key_Return);
        ASSERT_TRUE(aspetta([&] { return !combo.view()->isVisible(); }));
        EXPECT_EQ(combo.ListIndex(), prima + 1);
        EXPECT_EQ(f.focusWidget(), &f.ImgTesta);
        // Without a window manager the list takes the front away when it goes.
        f.activateWindow();
        ASSERT_TRUE(aspetta([&] { return c.fuocoACasa(); }));
    };
    for (Combo *combo : {&f.cbVelocità, &f.cbModGiro, &f.cbMex, &f.cbProgrammi})
        scegli(*combo);
    c.clicca(f.opzTesta);
    for (Combo *combo : {&f.cbStepV, &f.cbStepO})
        scegli(*combo);
}

TEST(ModiConsole, ABoxThatIsLeftWithoutAChoiceSendsTheFocusHomeToo)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    const auto lascia = [&](Combo &combo, bool conEsc) {
        SCOPED_TRACE(combo.objectName().toStdString());
        const int prima = combo.ListIndex();
        combo.setFocus(Qt::MouseFocusReason);
        combo.showPopup();
        ASSERT_TRUE(aspetta([&] { return combo.view()->isVisible(); }));
        if (conEsc)
            QTest::keyClick(combo.view(), Qt::Key_Escape);
        else
            QTest::mousePress(combo.view()->window(), Qt::LeftButton, {}, QPoint(-20, -20));
        ASSERT_TRUE(aspetta([&] { return !combo.view()->isVisible(); }));
        f.activateWindow();
        ASSERT_TRUE(aspetta([&] { return f.isActiveWindow(); }));
        EXPECT_TRUE(c.fuocoACasa());
        EXPECT_EQ(combo.ListIndex(), prima);
        c.tasto(Qt::Key_Down);
        c.mandati();
        EXPECT_EQ(combo.ListIndex(), prima) << "the key is the robot's alone";
        c.tasto(Qt::Key_Space);
        EXPECT_FALSE(combo.view()->isVisible());
    };
    for (const bool conEsc : {true, false}) {
        f.opzBase.setValue(true);
        for (Combo *combo : {&f.cbVelocità, &f.cbModGiro, &f.cbMex, &f.cbProgrammi})
            lascia(*combo, conEsc);
        f.opzTesta.setValue(true);
        for (Combo *combo : {&f.cbStepV, &f.cbStepO})
            lascia(*combo, conEsc);
    }
}

TEST(ModiConsole, AClickOnTheChosenModeSendsTheFocusHomeToo)
{
    ConsoleInProva c;
    c.mostra();
    c.finestra.txtValFrase.setFocus();
    c.clicca(c.finestra.opzBase);
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(ModiConsole, WhileTheWindowIsHiddenTheFocusStaysWhereItIs)
{
    ConsoleInProva c;
    c.finestra.RidaiFuoco();
    EXPECT_FALSE(c.finestra.ImgTesta.hasFocus());
}
