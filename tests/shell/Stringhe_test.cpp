#include "shell/Stringhe.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QAbstractButton>
#include <QWidget>
#include <gtest/gtest.h>
#include <iostream>

using namespace Qt::StringLiterals;

TEST(InStrDx, OfTheDotInABCIs2)
{
    EXPECT_EQ(InStrDx(u"a.b.c"_s, u"."_s), 2);
}

TEST(InStrDx, CountsFromTheRightTheLastCharacterBeing1)
{
    EXPECT_EQ(InStrDx(u"abc"_s, u"c"_s), 1);
    EXPECT_EQ(InStrDx(u"abc"_s, u"a"_s), 3);
}

TEST(InStrDx, OfAnEmptyTextIs0)
{
    EXPECT_EQ(InStrDx({}, u"."_s), 0);
}

TEST(InStrDx, IsZeroIfNothingIsFound)
{
    EXPECT_EQ(InStrDx(u"abc"_s, u"x"_s), 0);
}

TEST(InStrDx, IsCaseSensitive)
{
    EXPECT_EQ(InStrDx(u"aBc"_s, u"b"_s), 0);
}

TEST(InStrDx, FindsMoreThanOneCharacter)
{
    EXPECT_EQ(InStrDx(u"uno, due, tre"_s, u", "_s), 5);
    EXPECT_EQ(InStrDx(u"abc"_s, u"abc"_s), 3);
    EXPECT_EQ(InStrDx(u"bc"_s, u"abc"_s), 0);
}

TEST(InStrDx, WithoutWarningShowsNoBox)
{
    const RispondiMessaggi messaggi;
    EXPECT_EQ(InStrDx(u"abc"_s, u"x"_s, false), 0);
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST(InStrDx, WithWarningStillReturnsThePosition)
{
    EXPECT_EQ(InStrDx(u"a.b"_s, u"."_s, true), 2);
}

TEST(InStrDxDeathTest, WithWarningShowsAMessageAndEndsTheProgram)
{
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto cerca = [] {
        QWidget finestra;
        finestra.setWindowTitle(u"Sequor"_s);
        finestra.show();
        finestra.activateWindow();
        if (!aspetta([&] { return finestra.isActiveWindow(); }))
            return;
        RispondiMessaggi messaggi;
        messaggi.mentreAperto = [](QMessageBox &box) {
            std::cerr << box.windowTitle().toStdString() << '|' << box.text().toStdString() << '|'
                      << (box.icon() == QMessageBox::Critical) << '|'
                      << (box.standardButtons() == QMessageBox::Ok) << std::endl;
        };
        InStrDx({}, u"."_s, true);
    };
    EXPECT_EXIT(cerca(), ::testing::ExitedWithCode(1),
                "Sequor.*Istruzione: InStrDx.La lettera non è stata trovata all'interno della "
                "stringa.1.1");
}
