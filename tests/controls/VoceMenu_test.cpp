#include "controls/VoceMenu.h"

#include "tests/support/Controlli.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

struct VoceMenuTest : ::testing::Test
{
    FinestraDiProva finestra;
    BarraMenu barra{&finestra};
    QMenu *menuFile = barra.aggiungi(u"mnuFile"_s, u"File"_s);
    VoceMenu nuovo{u"mnuFileNuovo"_s, menuFile, u"Nuovo"_s};
    int volte = 0;
    std::function<void()> conta = [this] { ++volte; };
};

} // namespace

TEST_F(VoceMenuTest, EntriesAndMenusAreActionsFoundByTheirNames)
{
    auto *voce = finestra.findChild<QAction *>(u"mnuFileNuovo"_s);
    ASSERT_EQ(voce, &nuovo);
    EXPECT_EQ(voce->text(), u"Nuovo"_s);
    EXPECT_EQ(voce->property("Caption").toString(), u"Nuovo"_s);
    auto *menu = finestra.findChild<QAction *>(u"mnuFile"_s);
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->text(), u"File"_s);
    EXPECT_EQ(menu->menu(), menuFile);
}

TEST_F(VoceMenuTest, AMenuKeepsTheOrderOfItsEntries)
{
    BarraMenu::aggiungiSeparatore(menuFile, u"t1"_s);
    const VoceMenu esci(u"mnuFileEsci"_s, menuFile, u"Esci"_s);
    QMenu *sotto = BarraMenu::aggiungi(menuFile, u"mnuInsT"_s, u"Testa"_s);
    const VoceMenu destra(u"mnuInsTDx"_s, sotto, u"Destra (2 st)"_s);
    QStringList nomi;
    for (const QAction *azione : menuFile->actions())
        nomi += azione->objectName();
    EXPECT_EQ(nomi, (QStringList{u"mnuFileNuovo"_s, u"t1"_s, u"mnuFileEsci"_s, u"mnuInsT"_s}));
    EXPECT_TRUE(menuFile->actions().at(1)->isSeparator());
    EXPECT_EQ(finestra.findChild<QAction *>(u"mnuInsTDx"_s), &destra);
}

TEST_F(VoceMenuTest, ChoosingAnEntryRaisesClick)
{
    nuovo.Click.collega(conta);
    finestra.mostraAttiva();
    menuFile->popup(finestra.mapToGlobal(QPoint(0, 20)));
    ASSERT_TRUE(attendi([&] { return menuFile->isVisible(); }));
    QTest::mouseClick(menuFile, Qt::LeftButton, {}, menuFile->actionGeometry(&nuovo).center());
    EXPECT_EQ(volte, 1);
    nuovo.trigger();
    EXPECT_EQ(volte, 2);
}

TEST_F(VoceMenuTest, ADisabledEntryRaisesNoClick)
{
    nuovo.Click.collega(conta);
    EXPECT_TRUE(nuovo.setProperty("Enabled", false));
    EXPECT_FALSE(nuovo.Enabled());
    nuovo.trigger();
    EXPECT_EQ(volte, 0);
}

TEST_F(VoceMenuTest, HasATag)
{
    EXPECT_EQ(nuovo.Tag(), QString());
    EXPECT_TRUE(nuovo.setProperty("Tag", u"-1"_s));
    EXPECT_EQ(nuovo.Tag(), u"-1"_s);
}

TEST_F(VoceMenuTest, ItsCheckMarkIsChangedOnlyByCode)
{
    EXPECT_FALSE(nuovo.Checked());
    nuovo.trigger();
    EXPECT_FALSE(nuovo.Checked());
    nuovo.setChecked(true);
    EXPECT_TRUE(nuovo.isChecked());
    nuovo.trigger();
    EXPECT_TRUE(nuovo.Checked());
    EXPECT_TRUE(nuovo.isChecked());
}

TEST_F(VoceMenuTest, AHandlerCanToggleItsCheckMark)
{
    nuovo.Click.collega([&] { nuovo.setChecked(!nuovo.Checked()); });
    nuovo.trigger();
    EXPECT_TRUE(nuovo.isChecked());
    nuovo.trigger();
    EXPECT_FALSE(nuovo.isChecked());
    nuovo.trigger();
    EXPECT_TRUE(nuovo.property("Checked").toBool());
}
