#include "controls/Combo.h"

#include "controls/Pulsanti.h"
#include "tests/support/Controlli.h"

#include <QAbstractItemView>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

struct ComboTest : ::testing::Test
{
    ComboTest()
    {
        for (Combo *combo : {&fisso, &editabile}) {
            for (const QString &testo : {u"½"_s, u"¼"_s, u"~"_s})
                combo->AddItem(testo);
            combo->resize(100, 25);
            combo->Click.collega([this, combo] { click += combo->ListIndex(); });
            combo->Change.collega([this] { ++modifiche; });
        }
        editabile.move(0, 50);
        pulsante.move(0, 100);
    }
    // As a user does: opens the list and clicks on the row.
    static void scegli(Combo &combo, int riga)
    {
        combo.showPopup();
        ASSERT_TRUE(attendi([&] { return combo.view()->isVisible(); }));
        const QPoint punto = combo.view()->visualRect(combo.model()->index(riga, 0)).center();
        // The list ignores a release within the double-click time after it has opened.
        QTest::mouseMove(combo.view()->viewport(), punto);
        QTest::qWait(QApplication::doubleClickInterval() + 20);
        QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, punto);
        ASSERT_TRUE(attendi([&] { return !combo.view()->isVisible(); }));
    }
    void batti(const QString &testo)
    {
        editabile.SetFocus();
        editabile.lineEdit()->selectAll();
        QTest::keyClicks(&editabile, testo);
    }

    FinestraDiProva finestra;
    Combo fisso{u"cbVelocità"_s, &finestra};
    Combo editabile{u"cbModGiro"_s, &finestra, Combo::Stile::Editabile};
    Pulsante pulsante{u"pulOK"_s, &finestra, u"OK"_s};
    QList<int> click;
    int modifiche = 0;
};

} // namespace

TEST_F(ComboTest, NothingIsSelectedAtFirst)
{
    for (const Combo *combo : {&fisso, &editabile}) {
        EXPECT_EQ(combo->ListIndex(), -1);
        EXPECT_EQ(combo->Text(), QString());
        EXPECT_EQ(combo->ListCount(), 3);
    }
    EXPECT_TRUE(click.isEmpty());
    EXPECT_EQ(modifiche, 0);
}

TEST_F(ComboTest, ItsStateIsFoundInPropertiesAndInTheModel)
{
    EXPECT_TRUE(editabile.setProperty("ListIndex", 1));
    EXPECT_EQ(editabile.property("ListIndex").toInt(), 1);
    EXPECT_EQ(editabile.property("ListCount").toInt(), 3);
    EXPECT_EQ(editabile.property("Text").toString(), u"¼"_s);
    EXPECT_EQ(editabile.model()->index(2, 0).data().toString(), u"~"_s);
}

TEST_F(ComboTest, AChangeByCodeRaisesClickAtOnce)
{
    fisso.setListIndex(0);
    editabile.setListIndex(2);
    EXPECT_EQ(click, (QList<int>{0, 2}));
    EXPECT_EQ(editabile.Text(), u"~"_s);
}

TEST_F(ComboTest, SettingTheRowThatIsSelectedAlreadyRaisesNothing)
{
    fisso.setListIndex(1);
    fisso.setListIndex(1);
    EXPECT_EQ(click, QList<int>{1});
}

TEST_F(ComboTest, SettingMinus1ClearsAndRaisesNothing)
{
    for (Combo *combo : {&fisso, &editabile}) {
        combo->setListIndex(1);
        click.clear();
        combo->setListIndex(-1);
        EXPECT_EQ(combo->ListIndex(), -1);
        EXPECT_EQ(combo->Text(), QString());
        EXPECT_TRUE(click.isEmpty());
    }
}

TEST_F(ComboTest, ARowThatDoesNotExistGivesError380AndChangesNothing)
{
    for (Combo *combo : {&fisso, &editabile}) {
        combo->setListIndex(1);
        for (const int cattiva : {-2, 3, 100})
            EXPECT_EQ(erroreDi([&] { combo->setListIndex(cattiva); }), 380) << cattiva;
        EXPECT_EQ(combo->ListIndex(), 1);
    }
    EXPECT_EQ(click, (QList<int>{1, 1}));
    EXPECT_EQ(erroreDi([&] { fisso.List(3); }), 380);
    EXPECT_EQ(erroreDi([&] { fisso.List(-1); }), 380);
    EXPECT_EQ(fisso.List(2), u"~"_s);
}

TEST_F(ComboTest, ChoosingAnItemRaisesClickOnce)
{
    finestra.mostraAttiva();
    scegli(fisso, 2);
    EXPECT_EQ(fisso.ListIndex(), 2);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ComboTest, ChoosingTheSameItemAgainRaisesClickAgain)
{
    finestra.mostraAttiva();
    fisso.setListIndex(2);
    scegli(fisso, 2);
    EXPECT_EQ(click, (QList<int>{2, 2}));
}

TEST_F(ComboTest, TheArrowKeysChangeTheChoiceAndRaiseClick)
{
    finestra.mostraAttiva();
    fisso.setListIndex(0);
    fisso.SetFocus();
    QTest::keyClick(&fisso, Qt::Key_Down);
    EXPECT_EQ(click, (QList<int>{0, 1}));
    EXPECT_EQ(fisso.ListIndex(), 1);
}

TEST_F(ComboTest, TypedTextSelectsNoRow)
{
    finestra.mostraAttiva();
    editabile.setListIndex(2);
    click.clear();
    batti(u"3"_s);
    EXPECT_EQ(editabile.ListIndex(), -1);
    EXPECT_EQ(editabile.Text(), u"3"_s);
    EXPECT_TRUE(click.isEmpty());
    EXPECT_EQ(modifiche, 1);
}

TEST_F(ComboTest, TypedTextSelectsNoRowEvenIfItEqualsAnItem)
{
    finestra.mostraAttiva();
    batti(u"~"_s);
    EXPECT_EQ(editabile.ListIndex(), -1);
    EXPECT_EQ(editabile.Text(), u"~"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ComboTest, EnterDoesNotSelectTheRowOfATypedText)
{
    finestra.mostraAttiva();
    editabile.setListIndex(0);
    batti(u"~"_s);
    click.clear();
    QTest::keyClick(&editabile, Qt::Key_Return);
    QTest::keyClick(&editabile, Qt::Key_Enter);
    EXPECT_EQ(editabile.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
    EXPECT_EQ(editabile.ListCount(), 3) << "the text must not be added to the list";
}

TEST_F(ComboTest, LeavingTheBoxDoesNotSelectTheRowOfATypedText)
{
    finestra.mostraAttiva();
    editabile.setListIndex(0);
    batti(u"~"_s);
    click.clear();
    pulsante.SetFocus();
    EXPECT_EQ(editabile.ListIndex(), -1);
    EXPECT_EQ(editabile.Text(), u"~"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ComboTest, ChoosingTheItemThatWasSelectedBeforeTypingRestoresIt)
{
    finestra.mostraAttiva();
    editabile.setListIndex(2);
    batti(u"5"_s);
    click.clear();
    scegli(editabile, 2);
    EXPECT_EQ(editabile.ListIndex(), 2);
    EXPECT_EQ(editabile.Text(), u"~"_s);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ComboTest, SettingTheRowThatWasSelectedBeforeTypingRestoresIt)
{
    finestra.mostraAttiva();
    editabile.setListIndex(2);
    batti(u"5"_s);
    click.clear();
    editabile.setListIndex(2);
    EXPECT_EQ(editabile.ListIndex(), 2);
    EXPECT_EQ(editabile.Text(), u"~"_s);
    EXPECT_EQ(click, QList<int>{2});
}

TEST_F(ComboTest, SettingMinus1ClearsTypedText)
{
    finestra.mostraAttiva();
    batti(u"5"_s);
    editabile.setListIndex(-1);
    EXPECT_EQ(editabile.Text(), QString());
}

TEST_F(ComboTest, TypedTextSurvivesTheAddingAndRemovingOfRows)
{
    finestra.mostraAttiva();
    editabile.setListIndex(0);
    batti(u"5"_s);
    click.clear();
    editabile.AddItem(u"nuova"_s);
    editabile.RemoveItem(0);
    EXPECT_EQ(editabile.Text(), u"5"_s);
    EXPECT_EQ(editabile.ListIndex(), -1);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ComboTest, AfterRemovingTheSelectedRowNothingIsSelected)
{
    for (Combo *combo : {&fisso, &editabile}) {
        combo->setListIndex(1);
        click.clear();
        combo->RemoveItem(1);
        EXPECT_EQ(combo->ListIndex(), -1);
        EXPECT_EQ(combo->Text(), QString());
        EXPECT_TRUE(click.isEmpty());
    }
}

TEST_F(ComboTest, TheSelectionStaysWithItsRowWhenOthersAreRemoved)
{
    fisso.setListIndex(2);
    click.clear();
    fisso.RemoveItem(0);
    EXPECT_EQ(fisso.ListIndex(), 1);
    EXPECT_EQ(fisso.Text(), u"~"_s);
    EXPECT_TRUE(click.isEmpty());
}

TEST_F(ComboTest, RemovingARowThatDoesNotExistGivesError5)
{
    for (const int cattiva : {-1, 3})
        EXPECT_EQ(erroreDi([&] { fisso.RemoveItem(cattiva); }), 5) << cattiva;
    EXPECT_EQ(fisso.ListCount(), 3);
}

TEST_F(ComboTest, ClearingLeavesNothingSelectedAndRaisesNothing)
{
    for (Combo *combo : {&fisso, &editabile}) {
        combo->setListIndex(1);
        click.clear();
        combo->Clear();
        EXPECT_EQ(combo->ListIndex(), -1);
        EXPECT_EQ(combo->ListCount(), 0);
        EXPECT_EQ(combo->Text(), QString());
        EXPECT_TRUE(click.isEmpty());
        combo->AddItem(u"a"_s);
        EXPECT_EQ(combo->ListIndex(), -1);
        EXPECT_EQ(combo->Text(), QString());
    }
}

TEST_F(ComboTest, TheWheelOverABoxWithoutTheFocusChangesNothing)
{
    pulsante.setGeometry(0, 100, 80, 25);
    finestra.mostraAttiva();
    pulsante.setFocus();
    for (Combo *combo : {&fisso, &editabile}) {
        combo->setListIndex(1);
        click.clear();
        const auto gira = [&] {
            const QPoint dove = combo->rect().center();
            QWheelEvent ruota(dove, combo->mapToGlobal(dove), {}, {0, -120}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(combo, &ruota);
        };
        gira();
        EXPECT_EQ(combo->ListIndex(), 1);
        EXPECT_TRUE(click.isEmpty());
        combo->SetFocus();
        gira();
        EXPECT_EQ(combo->ListIndex(), 2);
        EXPECT_EQ(click, QList<int>{2});
        pulsante.setFocus();
    }
}

TEST_F(ComboTest, ItReportsThatItsListHasClosedBeforeTheClickOfAChoice)
{
    finestra.mostraAttiva();
    QStringList visti;
    for (Combo *combo : {&fisso, &editabile}) {
        combo->Chiusa.collega([&] { visti << u"chiusa"_s; });
        combo->Click.collega([&] { visti << u"click"_s; });
    }
    scegli(fisso, 1);
    scegli(fisso, 1);
    EXPECT_EQ(visti, (QStringList{u"chiusa"_s, u"click"_s, u"chiusa"_s, u"click"_s}));
    visti.clear();
    editabile.showPopup();
    ASSERT_TRUE(attendi([&] { return editabile.view()->isVisible(); }));
    QTest::keyClick(editabile.view(), Qt::Key_Escape);
    EXPECT_EQ(visti, QStringList{u"chiusa"_s});
}
