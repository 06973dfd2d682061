// The end of the program, and the editor that goes along with the main window.
#include "tests/console/ConsoleInProva.h"

#include <gmock/gmock.h>

TEST(FineConsole, ClosingSendsTheEndOfTheSessionAndEndsTheProgram)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.finestra.close();
    EXPECT_EQ(c.fini, 1);
    EXPECT_TRUE(aspetta([&] { return !c.robot.robot().stato().sessioneAperta; }));
}

TEST(FineConsole, ClosingWithoutAConnectionSaysNothing)
{
    RispondiMessaggi messaggi;
    ConsoleInProva c;
    c.mostra();
    c.finestra.close();
    EXPECT_EQ(c.fini, 1);
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST(FineConsole, ClosingUnloadsTheOpenEditorFirst)
{
    ConsoleInProva c;
    c.mostra();
    c.frmEditor.Mostra();
    c.finestra.close();
    EXPECT_EQ(c.frmEditor.scaricamenti, 1);
    EXPECT_FALSE(c.frmEditor.Visible());
    EXPECT_EQ(c.fini, 1);
}

TEST(FineConsole, AnEditorThatRefusesKeepsBothWindowsAndNothingIsSent)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.frmEditor.Mostra();
    c.frmEditor.rifiuta = true;
    c.finestra.close();
    EXPECT_EQ(c.fini, 0);
    EXPECT_TRUE(c.finestra.Visible());
    EXPECT_TRUE(c.frmEditor.Visible());
    c.mandati();
    EXPECT_TRUE(c.robot.robot().stato().sessioneAperta);
}

TEST(FineConsole, AHiddenEditorIsNotAsked)
{
    ConsoleInProva c;
    c.mostra();
    c.frmEditor.Mostra();
    c.frmEditor.Nascondi();
    c.frmEditor.rifiuta = true;
    c.finestra.close();
    EXPECT_EQ(c.frmEditor.scaricamenti, 0);
    EXPECT_EQ(c.fini, 1);
}

TEST(FineConsole, TheProgramsOwnClosingDoesNotAskTheEditor)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    c.frmEditor.Mostra();
    c.frmEditor.rifiuta = true;
    c.finestra.Scarica();
    EXPECT_EQ(c.frmEditor.scaricamenti, 0);
    EXPECT_EQ(c.fini, 1);
    EXPECT_TRUE(aspetta([&] { return !c.robot.robot().stato().sessioneAperta; }));
}

TEST(FineConsole, TheEditorIsHiddenWithTheMinimisedWindowAndComesBackWithIt)
{
    ConsoleInProva c;
    c.mostra();
    c.frmEditor.Mostra();
    c.finestra.setWindowState(1);
    EXPECT_TRUE(aspetta([&] { return !c.frmEditor.Visible(); }));
    EXPECT_EQ(c.frmEditor.Tag(), u"Aperto"_s);
    c.finestra.setWindowState(0);
    EXPECT_TRUE(aspetta([&] { return c.frmEditor.Visible(); }));
    EXPECT_EQ(c.frmEditor.Tag(), u"Aperto"_s);
}

TEST(FineConsole, AnEditorThatWasClosedInBetweenComesBackAllTheSame)
{
    ConsoleInProva c;
    c.mostra();
    c.frmEditor.Mostra();
    c.finestra.setWindowState(1);
    c.finestra.setWindowState(0);
    ASSERT_TRUE(aspetta([&] { return c.frmEditor.Visible(); }));
    c.frmEditor.Scarica();
    c.finestra.setWindowState(1);
    gira(10);
    EXPECT_FALSE(c.frmEditor.Visible());
    c.finestra.setWindowState(0);
    EXPECT_TRUE(aspetta([&] { return c.frmEditor.Visible(); }));
}

TEST(FineConsole, AClosedEditorStaysClosedThroughAMinimise)
{
    ConsoleInProva c;
    c.mostra();
    c.finestra.setWindowState(1);
    c.finestra.setWindowState(0);
    gira(10);
    EXPECT_FALSE(c.frmEditor.Visible());
    EXPECT_EQ(c.frmEditor.Tag(), QString());
}
