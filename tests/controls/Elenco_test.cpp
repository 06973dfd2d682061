#include "controls/Elenco.h"

#include "tests/support/Controlli.h"

using namespace Qt::StringLiterals;

namespace {

struct ElencoTest : ::testing::Test
{
    ElencoTest() { prepara(lista); }

    void prepara(Elenco &quale)
    {
        for (const QString &testo : {u"zero"_s, u"uno"_s, u"due"_s, u"tre"_s})
            quale.AddItem(testo);
        quale.setGeometry(0, 0, 200, 200);
        quale.Click.collega([&] { click += quale.ListIndex(); });
    }
    static QPoint punto(Elenco &quale, int riga)
    {
        return quale.visualItemRect(quale.item(riga)).center();
    }
    static void premi(Elenco &quale, int riga, Qt::KeyboardModifiers con = {})
    {
        QTest::mouseClick(quale.viewport(), Qt::LeftButton, con, punto(quale, riga));
    }
    // Only the second press of a double click, as the window system sends it.
    static void doppioClick(Elenco &quale, Qt::MouseButton pulsante, QPoint dove)
    {
        QWidget &sopra = *quale.viewport();
        QMouseEvent premuto(QEvent::MouseButtonDblClick, dove, sopra.mapToGlobal(dove), pulsante,
                            pulsante, {});
        QApplication::sendEvent(&sopra, &premuto);
        QTest::mouseRelease(&sopra, pulsante, {}, dove);
    }
    static QStringList righe(const Elenco &quale)
    {
        QStringList tutte;
        for (int i = 0; i < quale.ListCount(); ++i)
            tutte += quale.List(i);
        return tutte;
    }

    FinestraDiProva finestra;
    Elenco lista{u"lstMosse"_s, &finestra};
    // The ListIndex at each Click.
    QList<int> click;
};

struct ElencoConSpunteTest : ElencoTest
{
    ElencoConSpunteTest() { prepara(spunte); }

    QPoint spunta(int riga)
    {
        QStyleOptionViewItem opzione;
        opzione.initFrom(&spunte);
        opzione.rect = spunte.visualItemRect(spunte.item(riga));
        opzione.features = QStyleOptionViewItem::HasCheckIndicator;
        return spunte.style()
            ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &opzione, &spunte)
            .center();
    }
    void premiSpunta(int riga)
    {
        QTest::mouseClick(spunte.viewport(), Qt::LeftButton, {}, spunta(riga));
    }

    Elenco spunte{u"lstFile"_s, &finestra, Elenco::Stile::ConSpunte};
};

} // namespace

TEST_F(ElencoTest, ItsStateIsFoundInPropertiesAndInTheModel)
{
    lista.setListIndex(2);
    EXPECT_EQ(lista.property("ListIndex").toInt(), 2);
    EXPECT_EQ(lista.property("ListCount").toInt(), 4);
    EXPECT_EQ(lista.property("Text").toString(), u"due"_s);
    EXPECT_EQ(lista.model()->index(3, 0).data().toString(), u"tre"_s);
}

TEST_F(ElencoTest, NothingIsSelectedAtFirst)
{
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(lista.Text(), QString());
    finestra.mostraAttiva();
    EXPECT_EQ(lista.ListIndex(), -1);
}

TEST_F(ElencoTest, AChangeByCodeRaisesClickAtOnce)
{
    lista.setListIndex(1);
    EXPECT_EQ(click, QList<int>{1});
    EXPECT_TRUE(lista.setProperty("ListIndex", 3));
    EXPECT_EQ(click, (QList<int>{1, 3}));
}

TEST_F(ElencoTest, SettingTheRowThatIsSelectedAlreadyRaisesNothing)
{
    lista.setListIndex(1);
    lista.setListIndex(1);
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ElencoTest, SettingMinus1ClearsTheSelectionAndRaisesNothing)
{
    lista.setListIndex(1);
    lista.setListIndex(-1);
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(lista.selectedItems().isEmpty());
    lista.setListIndex(-1);
    EXPECT_EQ(click, QList<int>{1});
    lista.setListIndex(1);
    EXPECT_EQ(click, (QList<int>{1, 1}));
}

TEST_F(ElencoTest, ARowThatDoesNotExistGivesError380AndChangesNothing)
{
    lista.setListIndex(1);
    for (const int cattiva : {-2, 4, 100, std::numeric_limits<int>::min()})
        EXPECT_EQ(erroreDi([&] { lista.setListIndex(cattiva); }), 380) << cattiva;
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_EQ(click, QList<int>{1});
    lista.Clear();
    EXPECT_EQ(erroreDi([&] { lista.setListIndex(0); }), 380);
    EXPECT_EQ(erroreDi([&] { lista.setListIndex(-1); }), 0);
}

TEST_F(ElencoTest, AMouseClickSelectsAndRaisesClickOnce)
{
    finestra.mostraAttiva();
    premi(lista, 2);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ElencoTest, AMouseClickOnTheSelectedRowRaisesClickAgain)
{
    finestra.mostraAttiva();
    lista.setListIndex(2);
    premi(lista, 2);
    EXPECT_EQ(click, (QList<int>{2, 2}));
}

TEST_F(ElencoTest, AClickWithTheControlKeyHeldKeepsTheRowSelected)
{
    finestra.mostraAttiva();
    premi(lista, 2);
    premi(lista, 2, Qt::ControlModifier);
    EXPECT_EQ(lista.ListIndex(), 2);
    EXPECT_TRUE(lista.item(2)->isSelected());
}

TEST_F(ElencoTest, AClickBelowTheRowsRaisesNothingAndLeavesTheRowSelected)
{
    finestra.mostraAttiva();
    lista.setListIndex(2);
    click.clear();
    for (const Qt::KeyboardModifier tasto : {Qt::NoModifier, Qt::ControlModifier}) {
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, tasto, {100, 190});
        EXPECT_TRUE(click.isEmpty());
        EXPECT_EQ(lista.ListIndex(), 2);
        EXPECT_TRUE(lista.item(2)->isSelected());
    }
}

TEST_F(ElencoTest, TheArrowKeysMoveTheSelectionAndRaiseClick)
{
    finestra.mostraAttiva();
    lista.setListIndex(1);
    QTest::keyClick(&lista, Qt::Key_Down);
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(click, (QList<int>{1, 2, 1}));
}

TEST_F(ElencoTest, GettingTheFocusSelectsNothing)
{
    finestra.mostraAttiva();
    finestra.setFocus();
    lista.SetFocus();
    ASSERT_TRUE(lista.hasFocus());
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(lista.selectedItems().isEmpty());
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, ReturningToTheWindowSelectsNothing)
{
    finestra.mostraAttiva();
    lista.SetFocus();
    FinestraDiProva altra(u"frmAltra"_s);
    altra.mostraAttiva();
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, AfterRemovingTheSelectedRowNothingIsSelected)
{
    for (const int quale : {0, 1, 0, 0}) {
        lista.setListIndex(quale);
        click.clear();
        lista.RemoveItem(quale);
        EXPECT_EQ(lista.ListIndex(), -1);
        EXPECT_TRUE(lista.selectedItems().isEmpty());
        EXPECT_TRUE(click.isEmpty());
    }
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST_F(ElencoTest, TheSelectionStaysWithItsRowWhenOthersAreAddedOrRemoved)
{
    lista.setListIndex(2);
    click.clear();
    lista.RemoveItem(0);
    EXPECT_EQ(lista.Text(), u"due"_s);
    EXPECT_EQ(lista.ListIndex(), 1);
    lista.AddItem(u"nuova"_s, 0);
    EXPECT_EQ(lista.Text(), u"due"_s);
    EXPECT_EQ(lista.ListIndex(), 2);
    lista.RemoveItem(3);
    EXPECT_EQ(lista.Text(), u"due"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, RemovingARowThatDoesNotExistGivesError5)
{
    for (const int cattiva : {-1, 4, 100})
        EXPECT_EQ(erroreDi([&] { lista.RemoveItem(cattiva); }), 5) << cattiva;
    EXPECT_EQ(lista.ListCount(), 4);
    lista.Clear();
    EXPECT_EQ(erroreDi([&] { lista.RemoveItem(0); }), 5);
}

TEST_F(ElencoTest, AddsAtTheEndOrBeforeARow)
{
    lista.AddItem(u"ultima"_s);
    lista.AddItem(u"prima"_s, 0);
    lista.AddItem(u"in coda"_s, 6);
    EXPECT_EQ(righe(lista), (QStringList{u"prima"_s, u"zero"_s, u"uno"_s, u"due"_s, u"tre"_s,
                                         u"ultima"_s, u"in coda"_s}));
    EXPECT_EQ(erroreDi([&] { lista.AddItem(u"x"_s, -1); }), 5);
    EXPECT_EQ(erroreDi([&] { lista.AddItem(u"x"_s, 8); }), 5);
    EXPECT_EQ(lista.ListCount(), 7);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, AddingToAnEmptyListWithTheFocusSelectsNothing)
{
    lista.Clear();
    finestra.mostraAttiva();
    lista.SetFocus();
    lista.AddItem(u"uno"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, ARowsTextCanBeReadAndChangedWithoutAClick)
{
    lista.setList(1, u"altro"_s);
    EXPECT_EQ(lista.List(1), u"altro"_s);
    EXPECT_TRUE(click.isEmpty());
    for (const int cattiva : {-1, 4}) {
        EXPECT_EQ(erroreDi([&] { lista.List(cattiva); }), 380) << cattiva;
        EXPECT_EQ(erroreDi([&] { lista.setList(cattiva, u"x"_s); }), 380) << cattiva;
    }
}

TEST_F(ElencoTest, EachRowHasItsOwnNumberWhichIs0AtFirst)
{
    EXPECT_EQ(lista.ItemData(1), 0);
    lista.setItemData(1, -7);
    EXPECT_EQ(lista.ItemData(1), -7);
    EXPECT_EQ(lista.ItemData(0), 0);
    EXPECT_TRUE(click.isEmpty());
    EXPECT_EQ(erroreDi([&] { lista.ItemData(4); }), 380);
    EXPECT_EQ(erroreDi([&] { lista.setItemData(-1, 1); }), 380);
}

TEST_F(ElencoTest, ClearingLeavesNothingSelectedAndRaisesNothing)
{
    lista.setListIndex(2);
    click.clear();
    lista.Clear();
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, ItsHandlerSeesAKeyFirstAndMayDropIt)
{
    finestra.mostraAttiva();
    lista.setListIndex(1);
    QList<int> tasti;
    bool butta = false;
    lista.KeyDown.collega([&](int &codice, int) {
        tasti += codice;
        if (butta)
            codice = 0;
    });
    QTest::keyClick(&lista, Qt::Key_Delete);
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(lista.ListIndex(), 2);
    butta = true;
    QTest::keyClick(&lista, Qt::Key_Down);
    EXPECT_EQ(lista.ListIndex(), 2);
    EXPECT_EQ(tasti, (QList<int>{46, 40, 40}));
}

TEST_F(ElencoTest, SeesTheMouseMoveOverItsRowsInLayoutUnits)
{
    finestra.mostraAttiva();
    double y = 0;
    lista.MouseMove.collega([&](int, int, double, double sotto) { y = sotto; });
    EXPECT_TRUE(lista.viewport()->hasMouseTracking());
    QTest::mouseMove(lista.viewport(), {10, 30});
    EXPECT_EQ(y, 450);
    EXPECT_GT(lista.AltezzaRiga(), 0);
}

TEST_F(ElencoTest, AHandlerOfTheMousePressMayRestoreTheSelection)
{
    finestra.mostraAttiva();
    lista.setListIndex(0);
    lista.MouseDown.collega([&](int, int, double, double) { lista.setListIndex(0); });
    premi(lista, 2);
    EXPECT_EQ(lista.ListIndex(), 0);
}

TEST_F(ElencoTest, ADoubleClickRaisesItsEvent)
{
    finestra.mostraAttiva();
    int doppi = 0;
    lista.DblClick.collega([&] { ++doppi; });
    premi(lista, 1);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, punto(lista, 1));
    EXPECT_EQ(doppi, 1);
}

TEST_F(ElencoTest, ADoubleClickCountsOnlyWithTheLeftButtonAndOnARow)
{
    finestra.mostraAttiva();
    int doppi = 0;
    lista.DblClick.collega([&] { ++doppi; });
    const auto doppio = [&](Qt::MouseButton pulsante, QPoint dove, QPoint secondo) {
        doppi = 0;
        QTest::mouseClick(lista.viewport(), pulsante, {}, dove);
        doppioClick(lista, pulsante, secondo);
        return doppi;
    };
    const QPoint accanto(100, 190);
    EXPECT_EQ(doppio(Qt::LeftButton, punto(lista, 1), punto(lista, 1)), 1);
    EXPECT_EQ(doppio(Qt::RightButton, punto(lista, 1), punto(lista, 1)), 0);
    EXPECT_EQ(doppio(Qt::MiddleButton, punto(lista, 1), punto(lista, 1)), 0);
    EXPECT_EQ(doppio(Qt::LeftButton, accanto, accanto), 0);
    EXPECT_EQ(doppio(Qt::RightButton, accanto, accanto), 0);
    // Two quick clicks on neighbouring rows.
    EXPECT_EQ(doppio(Qt::LeftButton, punto(lista, 1), punto(lista, 2)), 0);
    EXPECT_EQ(doppio(Qt::LeftButton, accanto, punto(lista, 2)), 0);
    EXPECT_EQ(doppio(Qt::LeftButton, punto(lista, 2), accanto), 0);
}

TEST_F(ElencoTest, ARowRemovedBetweenThePressesIsNotDoubleClicked)
{
    finestra.mostraAttiva();
    int doppi = 0;
    lista.DblClick.collega([&] { ++doppi; });
    premi(lista, 1);
    lista.RemoveItem(1);
    doppioClick(lista, Qt::LeftButton, punto(lista, 1));
    EXPECT_EQ(doppi, 0);
}

TEST_F(ElencoTest, TheSecondPressOfADoubleClickIsAPress)
{
    finestra.mostraAttiva();
    QStringList eventi;
    lista.MouseDown.collega(
        [&](int quale, int, double, double) { eventi += u"giu %1"_s.arg(quale); });
    lista.DblClick.collega([&] { eventi += u"doppio"_s; });
    premi(lista, 1);
    doppioClick(lista, Qt::LeftButton, punto(lista, 1));
    EXPECT_EQ(eventi, (QStringList{u"giu 1"_s, u"giu 1"_s, u"doppio"_s}));
    EXPECT_EQ(click, QList<int>{1}) << "only the first press selects the row";
    eventi.clear();
    doppioClick(lista, Qt::RightButton, {100, 190});
    EXPECT_EQ(eventi, QStringList{u"giu 2"_s});
}

TEST_F(ElencoConSpunteTest, ACheckMarkSetByCodeRaisesClickOnce)
{
    spunte.setSelected(1, true);
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click.size(), 1);
    spunte.setSelected(1, true);
    EXPECT_EQ(click.size(), 1) << "the mark has not changed";
    spunte.setSelected(1, false);
    EXPECT_EQ(click.size(), 2);
}

TEST_F(ElencoConSpunteTest, CheckMarksAreInTheModel)
{
    spunte.setSelected(1, true);
    EXPECT_EQ(spunte.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(spunte.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    click.clear();
    spunte.model()->setData(spunte.model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_TRUE(spunte.Selected(0));
    EXPECT_EQ(click.size(), 1);
}

TEST_F(ElencoConSpunteTest, AMouseClickOnTheMarkOfTheSelectedRowRaisesClickOnce)
{
    finestra.mostraAttiva();
    lista.hide();
    spunte.setListIndex(1);
    click.clear();
    premiSpunta(1);
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click, QList<int>{1});
    premiSpunta(1);
    EXPECT_FALSE(spunte.Selected(1));
    EXPECT_EQ(click, (QList<int>{1, 1}));
}

TEST_F(ElencoConSpunteTest, AMouseClickOnTheMarkOfAnotherRowRaisesClickOnce)
{
    finestra.mostraAttiva();
    lista.hide();
    spunte.setListIndex(1);
    click.clear();
    premiSpunta(2);
    EXPECT_TRUE(spunte.Selected(2));
    EXPECT_EQ(spunte.ListIndex(), 2);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ElencoConSpunteTest, APressOnAMarkReleasedElsewhereRaisesClickForTheRow)
{
    finestra.mostraAttiva();
    lista.hide();
    QTest::mousePress(spunte.viewport(), Qt::LeftButton, {}, spunta(2));
    QTest::mouseRelease(spunte.viewport(), Qt::LeftButton, {}, {150, 190});
    EXPECT_FALSE(spunte.Selected(2));
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ElencoConSpunteTest, AClickOnARowsTextSelectsItAndLeavesTheMark)
{
    finestra.mostraAttiva();
    lista.hide();
    premi(spunte, 2);
    EXPECT_FALSE(spunte.Selected(2));
    EXPECT_EQ(click, QList<int>{2});
    premi(spunte, 2);
    EXPECT_EQ(click, (QList<int>{2, 2}));
}

TEST_F(ElencoConSpunteTest, TheSpaceBarChangesTheMarkAndRaisesClickOnce)
{
    finestra.mostraAttiva();
    spunte.setListIndex(1);
    click.clear();
    spunte.SetFocus();
    QTest::keyClick(&spunte, Qt::Key_Space);
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ElencoConSpunteTest, AHeldSpaceBarChangesTheMarkOnce)
{
    finestra.mostraAttiva();
    spunte.setListIndex(1);
    click.clear();
    spunte.SetFocus();
    for (int i = 0; i < 6; ++i) {
        QKeyEvent evento(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, i > 0);
        QApplication::sendEvent(&spunte, &evento);
    }
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ElencoConSpunteTest, AddedRowsAreUnmarkedAndRaiseNothing)
{
    spunte.AddItem(u"nuova"_s);
    EXPECT_FALSE(spunte.Selected(4));
    spunte.setList(4, u"altra"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoConSpunteTest, TheMarkOfARowThatDoesNotExistGivesAnError)
{
    for (const int cattiva : {-1, 4}) {
        EXPECT_EQ(erroreDi([&] { spunte.Selected(cattiva); }), 380) << cattiva;
        EXPECT_EQ(erroreDi([&] { spunte.setSelected(cattiva, true); }), 380) << cattiva;
    }
    EXPECT_TRUE(click.isEmpty());
}
