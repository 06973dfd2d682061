#include "controls/Elenco.h"

#include "tests/support/Controlli.h"

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
    // The second press alone, as the window system gives it.
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

TEST_F(ElencoTest, its_state_is_found_in_properties_and_in_the_model)
{
    lista.setListIndex(2);
    EXPECT_EQ(lista.property("ListIndex").toInt(), 2);
    EXPECT_EQ(lista.property("ListCount").toInt(), 4);
    EXPECT_EQ(lista.property("Text").toString(), u"due"_s);
    EXPECT_EQ(lista.model()->index(3, 0).data().toString(), u"tre"_s);
}

TEST_F(ElencoTest, nothing_is_selected_at_first)
{
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(lista.Text(), QString());
    finestra.mostraAttiva();
    EXPECT_EQ(lista.ListIndex(), -1);
}

TEST_F(ElencoTest, a_change_by_code_raises_click_at_once)
{
    lista.setListIndex(1);
    EXPECT_EQ(click, QList<int>{1});
    EXPECT_TRUE(lista.setProperty("ListIndex", 3));
    EXPECT_EQ(click, (QList<int>{1, 3}));
}

TEST_F(ElencoTest, setting_the_row_that_is_selected_already_raises_nothing)
{
    lista.setListIndex(1);
    lista.setListIndex(1);
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ElencoTest, setting_minus_1_clears_the_selection_and_raises_nothing)
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

TEST_F(ElencoTest, a_row_that_is_not_there_is_error_380_and_changes_nothing)
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

TEST_F(ElencoTest, a_mouse_click_selects_and_raises_click_once)
{
    finestra.mostraAttiva();
    premi(lista, 2);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ElencoTest, a_mouse_click_on_the_selected_row_raises_click_again)
{
    finestra.mostraAttiva();
    lista.setListIndex(2);
    premi(lista, 2);
    EXPECT_EQ(click, (QList<int>{2, 2}));
}

TEST_F(ElencoTest, a_click_with_the_control_key_held_keeps_the_row_selected)
{
    finestra.mostraAttiva();
    premi(lista, 2);
    premi(lista, 2, Qt::ControlModifier);
    EXPECT_EQ(lista.ListIndex(), 2);
    EXPECT_TRUE(lista.item(2)->isSelected());
}

TEST_F(ElencoTest, a_click_beside_the_rows_raises_nothing_and_leaves_the_row_selected)
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

TEST_F(ElencoTest, the_arrow_keys_move_the_selection_and_raise_click)
{
    finestra.mostraAttiva();
    lista.setListIndex(1);
    QTest::keyClick(&lista, Qt::Key_Down);
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_EQ(click, (QList<int>{1, 2, 1}));
}

TEST_F(ElencoTest, the_focus_coming_in_selects_nothing)
{
    finestra.mostraAttiva();
    finestra.setFocus();
    lista.SetFocus();
    ASSERT_TRUE(lista.hasFocus());
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(lista.selectedItems().isEmpty());
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, the_window_coming_back_to_the_front_selects_nothing)
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

TEST_F(ElencoTest, after_removing_the_selected_row_nothing_is_selected)
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

TEST_F(ElencoTest, the_selection_stays_with_its_row_when_others_come_and_go)
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

TEST_F(ElencoTest, removing_a_row_that_is_not_there_is_error_5)
{
    for (const int cattiva : {-1, 4, 100})
        EXPECT_EQ(erroreDi([&] { lista.RemoveItem(cattiva); }), 5) << cattiva;
    EXPECT_EQ(lista.ListCount(), 4);
    lista.Clear();
    EXPECT_EQ(erroreDi([&] { lista.RemoveItem(0); }), 5);
}

TEST_F(ElencoTest, adds_at_the_end_or_before_a_row)
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

TEST_F(ElencoTest, adding_to_an_empty_list_with_the_focus_selects_nothing)
{
    lista.Clear();
    finestra.mostraAttiva();
    lista.SetFocus();
    lista.AddItem(u"uno"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, a_rows_text_can_be_read_and_changed_without_a_click)
{
    lista.setList(1, u"altro"_s);
    EXPECT_EQ(lista.List(1), u"altro"_s);
    EXPECT_TRUE(click.isEmpty());
    for (const int cattiva : {-1, 4}) {
        EXPECT_EQ(erroreDi([&] { lista.List(cattiva); }), 380) << cattiva;
        EXPECT_EQ(erroreDi([&] { lista.setList(cattiva, u"x"_s); }), 380) << cattiva;
    }
}

TEST_F(ElencoTest, each_row_has_a_number_of_its_own_0_at_first)
{
    EXPECT_EQ(lista.ItemData(1), 0);
    lista.setItemData(1, -7);
    EXPECT_EQ(lista.ItemData(1), -7);
    EXPECT_EQ(lista.ItemData(0), 0);
    EXPECT_TRUE(click.isEmpty());
    EXPECT_EQ(erroreDi([&] { lista.ItemData(4); }), 380);
    EXPECT_EQ(erroreDi([&] { lista.setItemData(-1, 1); }), 380);
}

TEST_F(ElencoTest, clearing_leaves_nothing_selected_and_raises_nothing)
{
    lista.setListIndex(2);
    click.clear();
    lista.Clear();
    EXPECT_EQ(lista.ListCount(), 0);
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoTest, a_key_comes_to_its_handler_first_which_may_drop_it)
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

TEST_F(ElencoTest, sees_the_mouse_move_over_its_rows_in_layout_units)
{
    finestra.mostraAttiva();
    double y = 0;
    lista.MouseMove.collega([&](int, int, double, double sotto) { y = sotto; });
    EXPECT_TRUE(lista.viewport()->hasMouseTracking());
    QTest::mouseMove(lista.viewport(), {10, 30});
    EXPECT_EQ(y, 450);
    EXPECT_GT(lista.AltezzaRiga(), 0);
}

TEST_F(ElencoTest, a_handler_of_the_mouse_press_may_put_the_selection_back)
{
    finestra.mostraAttiva();
    lista.setListIndex(0);
    lista.MouseDown.collega([&](int, int, double, double) { lista.setListIndex(0); });
    premi(lista, 2);
    EXPECT_EQ(lista.ListIndex(), 0);
}

TEST_F(ElencoTest, a_double_click_raises_its_event)
{
    finestra.mostraAttiva();
    int doppi = 0;
    lista.DblClick.collega([&] { ++doppi; });
    premi(lista, 1);
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, punto(lista, 1));
    EXPECT_EQ(doppi, 1);
}

TEST_F(ElencoTest, a_double_click_counts_with_the_left_button_and_on_a_row_only)
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
    // Two quick clicks on neighbours.
    EXPECT_EQ(doppio(Qt::LeftButton, punto(lista, 1), punto(lista, 2)), 0);
    EXPECT_EQ(doppio(Qt::LeftButton, accanto, punto(lista, 2)), 0);
    EXPECT_EQ(doppio(Qt::LeftButton, punto(lista, 2), accanto), 0);
}

TEST_F(ElencoTest, a_row_that_went_between_the_presses_is_not_double_clicked)
{
    finestra.mostraAttiva();
    int doppi = 0;
    lista.DblClick.collega([&] { ++doppi; });
    premi(lista, 1);
    lista.RemoveItem(1);
    doppioClick(lista, Qt::LeftButton, punto(lista, 1));
    EXPECT_EQ(doppi, 0);
}

TEST_F(ElencoTest, the_second_press_of_a_double_click_is_a_press)
{
    finestra.mostraAttiva();
    QStringList eventi;
    lista.MouseDown.collega(
        [&](int quale, int, double, double) { eventi += u"giu %1"_s.arg(quale); });
    lista.DblClick.collega([&] { eventi += u"doppio"_s; });
    premi(lista, 1);
    doppioClick(lista, Qt::LeftButton, punto(lista, 1));
    EXPECT_EQ(eventi, (QStringList{u"giu 1"_s, u"giu 1"_s, u"doppio"_s}));
    EXPECT_EQ(click, QList<int>{1}) << "the row is chosen by the first press";
    eventi.clear();
    doppioClick(lista, Qt::RightButton, {100, 190});
    EXPECT_EQ(eventi, QStringList{u"giu 2"_s});
}

TEST_F(ElencoConSpunteTest, a_check_mark_set_by_code_raises_click_once)
{
    spunte.setSelected(1, true);
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click.size(), 1);
    spunte.setSelected(1, true);
    EXPECT_EQ(click.size(), 1) << "that was no change";
    spunte.setSelected(1, false);
    EXPECT_EQ(click.size(), 2);
}

TEST_F(ElencoConSpunteTest, check_marks_are_in_the_model)
{
    spunte.setSelected(1, true);
    EXPECT_EQ(spunte.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(spunte.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    click.clear();
    spunte.model()->setData(spunte.model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_TRUE(spunte.Selected(0));
    EXPECT_EQ(click.size(), 1);
}

TEST_F(ElencoConSpunteTest, a_mouse_click_on_the_mark_of_the_selected_row_raises_click_once)
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

TEST_F(ElencoConSpunteTest, a_mouse_click_on_the_mark_of_another_row_raises_click_once)
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

TEST_F(ElencoConSpunteTest, a_press_on_a_mark_released_elsewhere_raises_click_for_the_row)
{
    finestra.mostraAttiva();
    lista.hide();
    QTest::mousePress(spunte.viewport(), Qt::LeftButton, {}, spunta(2));
    QTest::mouseRelease(spunte.viewport(), Qt::LeftButton, {}, {150, 190});
    EXPECT_FALSE(spunte.Selected(2));
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ElencoConSpunteTest, a_click_on_a_rows_text_selects_it_and_leaves_the_mark)
{
    finestra.mostraAttiva();
    lista.hide();
    premi(spunte, 2);
    EXPECT_FALSE(spunte.Selected(2));
    EXPECT_EQ(click, QList<int>{2});
    premi(spunte, 2);
    EXPECT_EQ(click, (QList<int>{2, 2}));
}

TEST_F(ElencoConSpunteTest, the_space_bar_changes_the_mark_and_raises_click_once)
{
    finestra.mostraAttiva();
    spunte.setListIndex(1);
    click.clear();
    spunte.SetFocus();
    QTest::keyClick(&spunte, Qt::Key_Space);
    EXPECT_TRUE(spunte.Selected(1));
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ElencoConSpunteTest, the_space_bar_held_down_changes_the_mark_once)
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

TEST_F(ElencoConSpunteTest, rows_that_come_are_unmarked_and_raise_nothing)
{
    spunte.AddItem(u"nuova"_s);
    EXPECT_FALSE(spunte.Selected(4));
    spunte.setList(4, u"altra"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ElencoConSpunteTest, the_mark_of_a_row_that_is_not_there_is_an_error)
{
    for (const int cattiva : {-1, 4}) {
        EXPECT_EQ(erroreDi([&] { spunte.Selected(cattiva); }), 380) << cattiva;
        EXPECT_EQ(erroreDi([&] { spunte.setSelected(cattiva, true); }), 380) << cattiva;
    }
    EXPECT_TRUE(click.isEmpty());
}
