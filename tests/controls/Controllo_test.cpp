// What all controls have in common, tested with an image.
#include "controls/Grafica.h"
#include "controls/Unita.h"
#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

struct ControlloTest : ::testing::Test
{
    ControlloTest() : controllo(u"imgFreccia(1)"_s, &finestra)
    {
        controllo.setGeometry(10, 20, 40, 30);
        finestra.mostraAttiva();
    }
    FinestraDiProva finestra;
    Immagine controllo;
};

} // namespace

TEST_F(ControlloTest, IsFoundByItsName)
{
    EXPECT_EQ(finestra.findChild<QWidget *>(u"imgFreccia(1)"_s), &controllo);
    EXPECT_EQ(finestra.objectName(), u"frmProva"_s);
}

TEST_F(ControlloTest, HasATagAndItsStateAsProperties)
{
    QWidget *trovato = &controllo;
    EXPECT_EQ(trovato->property("Tag").toString(), QString());
    EXPECT_TRUE(trovato->setProperty("Tag", u"SI"_s));
    EXPECT_EQ(controllo.Tag(), u"SI"_s);
    EXPECT_TRUE(trovato->setProperty("Enabled", false));
    EXPECT_FALSE(controllo.Enabled());
    EXPECT_TRUE(trovato->setProperty("Visible", false));
    EXPECT_FALSE(controllo.Visible());
}

TEST_F(ControlloTest, IsVisibleAsSetEvenIfItsWindowIsHidden)
{
    finestra.Nascondi();
    EXPECT_TRUE(controllo.Visible());
    controllo.setVisible(false);
    EXPECT_FALSE(controllo.Visible());
}

TEST_F(ControlloTest, HasItsGeometryInLayoutUnits15ToAPixel)
{
    EXPECT_EQ(controllo.Left(), 150);
    EXPECT_EQ(controllo.Top(), 300);
    EXPECT_EQ(controllo.Width(), 600);
    EXPECT_EQ(controllo.Height(), 450);
    controllo.Move(300, 150);
    EXPECT_EQ(controllo.pos(), QPoint(20, 10));
    EXPECT_EQ(controllo.size(), QSize(40, 30));
}

TEST(Unita, AreRoundedToTheNearestPixel)
{
    EXPECT_EQ(Unita::pixel(0), 0);
    EXPECT_EQ(Unita::pixel(15), 1);
    EXPECT_EQ(Unita::pixel(7), 0);
    EXPECT_EQ(Unita::pixel(8), 1);
    EXPECT_EQ(Unita::pixel(-1300), -87);
    EXPECT_EQ(Unita::unita(2), 30);
}

TEST_F(ControlloTest, ReportsWhichMouseButtonWasPressedAndWhere)
{
    QList<double> visti;
    const auto annota = [&](int tasto, int maiuscole, double x, double y) {
        visti = {double(tasto), double(maiuscole), x, y};
    };
    controllo.MouseDown.collega(annota);
    controllo.MouseUp.collega(annota);
    const struct
    {
        Qt::MouseButton tasto;
        int numero;
    } casi[] = {{Qt::LeftButton, 1}, {Qt::RightButton, 2}, {Qt::MiddleButton, 4}};
    for (const auto &caso : casi) {
        QTest::mousePress(&controllo, caso.tasto, {}, {4, 6});
        EXPECT_EQ(visti, (QList<double>{double(caso.numero), 0, 60, 90}));
        QTest::mouseRelease(&controllo, caso.tasto, Qt::ShiftModifier | Qt::AltModifier, {8, 6});
        EXPECT_EQ(visti, (QList<double>{double(caso.numero), 5, 120, 90}));
    }
}

TEST_F(ControlloTest, SeesTheMouseMoveWithoutAButton)
{
    QList<double> visti;
    controllo.MouseMove.collega([&](int tasti, int, double x, double y) {
        visti = {double(tasti), x, y};
    });
    QTest::mouseMove(&controllo, {3, 4});
    EXPECT_EQ(visti, (QList<double>{0, 45, 60}));
}

TEST_F(ControlloTest, AClickComesAfterTheReleaseOfTheLeftButton)
{
    QStringList ordine;
    controllo.MouseDown.collega([&](int, int, double, double) { ordine += u"giù"_s; });
    controllo.MouseUp.collega([&](int, int, double, double) { ordine += u"su"_s; });
    controllo.Click.collega([&] { ordine += u"click"_s; });
    QTest::mouseClick(&controllo, Qt::LeftButton);
    EXPECT_EQ(ordine, (QStringList{u"giù"_s, u"su"_s, u"click"_s}));
}

TEST_F(ControlloTest, AnotherButtonOrAReleaseOutsideGivesNoClick)
{
    int volte = 0;
    controllo.Click.collega([&] { ++volte; });
    QTest::mouseClick(&controllo, Qt::RightButton);
    QTest::mousePress(&controllo, Qt::LeftButton);
    QTest::mouseRelease(&controllo, Qt::LeftButton, {}, {-5, -5});
    EXPECT_EQ(volte, 0);
}

TEST_F(ControlloTest, TheSecondPressOfADoubleClickIsAPressButNoClick)
{
    int premuto = 0;
    int click = 0;
    int doppi = 0;
    controllo.MouseDown.collega([&](int, int, double, double) { ++premuto; });
    controllo.Click.collega([&] { ++click; });
    controllo.DblClick.collega([&] { ++doppi; });
    QTest::mouseDClick(finestra.windowHandle(), Qt::LeftButton, {}, {30, 35});
    EXPECT_EQ(premuto, 2);
    EXPECT_EQ(doppi, 1);
    EXPECT_EQ(click, 1);
    QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, {30, 35});
    EXPECT_EQ(click, 2) << "a press after the double click must give a click again";
}

TEST_F(ControlloTest, ADoubleClickGivesASecondClickIfThatWasRequested)
{
    int click = 0;
    controllo.Click.collega([&] { ++click; });
    controllo.conDoppioClick();
    QTest::mouseDClick(finestra.windowHandle(), Qt::LeftButton, {}, {30, 35});
    EXPECT_EQ(click, 2);
    QTest::mouseDClick(finestra.windowHandle(), Qt::RightButton, {}, {30, 35});
    EXPECT_EQ(click, 2);
}

TEST_F(ControlloTest, ADoubleClickWhoseFirstPressWasElsewhereIsAClick)
{
    int click = 0;
    controllo.Click.collega([&] { ++click; });
    // Qt takes two presses up to 5 pixels apart for a double click.
    QTest::mouseMove(finestra.windowHandle(), {9, 30});
    QTest::mousePress(finestra.windowHandle(), Qt::LeftButton, {}, {9, 30});
    QTest::mouseRelease(finestra.windowHandle(), Qt::LeftButton, {}, {9, 30});
    QMouseEvent seconda(QEvent::MouseButtonDblClick, QPointF(1, 10), QPointF(1, 10), Qt::LeftButton,
                        Qt::LeftButton, {});
    seconda.setTimestamp(100'000);
    QApplication::sendEvent(&controllo, &seconda);
    QTest::mouseRelease(&controllo, Qt::LeftButton, {}, {1, 10});
    EXPECT_EQ(click, 1);
}

TEST_F(ControlloTest, AClickAtTheEdgeCountsEvenIfThePressMovesTheControl)
{
    int click = 0;
    controllo.MouseDown.collega(
        [&](int, int, double, double) { controllo.move(controllo.pos() + QPoint(3, 3)); });
    controllo.MouseUp.collega(
        [&](int, int, double, double) { controllo.move(controllo.pos() - QPoint(3, 3)); });
    controllo.Click.collega([&] { ++click; });
    for (const QPoint dove : {QPoint(10, 20), QPoint(49, 20), QPoint(10, 49), QPoint(49, 49)})
        QTest::mouseClick(finestra.windowHandle(), Qt::LeftButton, {}, dove);
    EXPECT_EQ(click, 4);
}

TEST_F(ControlloTest, AnotherButtonPressedMeanwhileDoesNotCancelTheClick)
{
    int click = 0;
    controllo.Click.collega([&] { ++click; });
    QTest::mousePress(&controllo, Qt::LeftButton);
    QTest::mousePress(&controllo, Qt::RightButton);
    QTest::mouseRelease(&controllo, Qt::RightButton);
    EXPECT_EQ(click, 0);
    QTest::mouseRelease(&controllo, Qt::LeftButton);
    EXPECT_EQ(click, 1);
}

TEST_F(ControlloTest, ATagThatShowsAnOwnerIsReadFromItAndWrittenToIt)
{
    QString stato = u"primo"_s;
    controllo.mostraTag([&] { return stato; }, [&](const QString &testo) { stato = testo; });
    EXPECT_EQ(controllo.Tag(), u"primo"_s);
    controllo.setTag(u"SI"_s);
    EXPECT_EQ(stato, u"SI"_s);
    EXPECT_TRUE(controllo.setProperty("Tag", u"NO"_s));
    EXPECT_EQ(stato, u"NO"_s);
    stato = u"altro"_s;
    EXPECT_EQ(controllo.property("Tag").toString(), u"altro"_s);
}

TEST_F(ControlloTest, WhenDisabledItGetsNoMouseEvents)
{
    int volte = 0;
    controllo.Click.collega([&] { ++volte; });
    controllo.MouseDown.collega([&](int, int, double, double) { ++volte; });
    controllo.setEnabled(false);
    QTest::mouseClick(&controllo, Qt::LeftButton);
    EXPECT_EQ(volte, 0);
}

TEST_F(ControlloTest, CannotBeGivenTheFocusWhileItIsHiddenOrDisabled)
{
    controllo.setFocusPolicy(Qt::StrongFocus);
    controllo.setVisible(false);
    EXPECT_EQ(erroreDi([&] { controllo.SetFocus(); }), 5);
    controllo.setVisible(true);
    controllo.setEnabled(false);
    EXPECT_EQ(erroreDi([&] { controllo.SetFocus(); }), 5);
    controllo.setEnabled(true);
    EXPECT_EQ(erroreDi([&] { controllo.SetFocus(); }), 0);
    EXPECT_TRUE(controllo.hasFocus());
    finestra.Nascondi();
    EXPECT_EQ(erroreDi([&] { controllo.SetFocus(); }), 5);
}
