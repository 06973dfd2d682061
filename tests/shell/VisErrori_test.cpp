#include "shell/VisErrori.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(MostraErrore, WithATitlePutsErroreBeforeIt)
{
    const RispondiMessaggi messaggi;
    MostraErrore(u"La porta non esiste (8002)"_s, u"Collegamento"_s);
    ASSERT_EQ(messaggi.visti().size(), 1);
    const MessaggioVisto &visto = messaggi.visti().first();
    EXPECT_EQ(visto.titolo, u"Errore - Collegamento"_s);
    EXPECT_EQ(visto.testo, u"La porta non esiste (8002)"_s);
}

TEST(MostraErrore, HasTheStopIconAndAnOkButton)
{
    const RispondiMessaggi messaggi;
    MostraErrore(u"x"_s, u"y"_s);
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti().first().icona, QMessageBox::Critical);
    EXPECT_EQ(messaggi.visti().first().pulsanti, QMessageBox::Ok);
}

TEST(MostraErrore, WithoutATitleUsesTheCaptionOfTheActiveWindow)
{
    QWidget finestra;
    finestra.setWindowTitle(u"Vigilio"_s);
    finestra.show();
    finestra.activateWindow();
    ASSERT_TRUE(aspetta([&] { return QApplication::activeWindow() == &finestra; }));
    const RispondiMessaggi messaggi;
    MostraErrore(u"x"_s, {});
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti().first().titolo, u"Vigilio - Errore"_s);
}
