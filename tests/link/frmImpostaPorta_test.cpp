#include "link/frmImpostaPorta.h"

#include "tests/support/Attesa.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ImpostaPorta : public ::testing::Test
{
protected:
    void SetUp() override
    {
        finestra.Mostra();
        finestra.activateWindow();
        ASSERT_TRUE(aspetta([&] { return finestra.isActiveWindow(); }));
        finestra.txtPorta.setFocus();
    }
    void batti(const QString &tasti)
    {
        finestra.txtPorta.setFocus();
        finestra.txtPorta.selectAll();
        QTest::keyClicks(&finestra.txtPorta, tasti);
    }
    void clicca() { QTest::mouseClick(&finestra.pulOK, Qt::LeftButton); }

    RispondiMessaggi messaggi;
    frmImpostaPorta finestra;
};

} // namespace

TEST_F(ImpostaPorta, StartsAt1AndAccepts1To99)
{
    EXPECT_EQ(finestra.Caption(), u"Imposta porta COM"_s);
    EXPECT_EQ(finestra.txtPorta.Text(), u"1"_s);
    EXPECT_EQ(finestra.SuGiu.Value(), 1);
    EXPECT_EQ(finestra.SuGiu.Min(), 1);
    EXPECT_EQ(finestra.SuGiu.Max(), 99);
    EXPECT_EQ(finestra.pulOK.Caption(), u"OK"_s);
}

TEST_F(ImpostaPorta, SelectsItsNumberWhenItOpens)
{
    finestra.close();
    finestra.Mostra();
    EXPECT_EQ(finestra.focusWidget(), &finestra.txtPorta);
    QTest::keyClicks(finestra.focusWidget(), u"7"_s);
    EXPECT_EQ(finestra.txtPorta.Text(), u"7"_s);
    // Also after its button has hidden it.
    clicca();
    finestra.Mostra();
    EXPECT_EQ(finestra.focusWidget(), &finestra.txtPorta);
    EXPECT_EQ(finestra.txtPorta.selectedText(), u"7"_s);
}

TEST_F(ImpostaPorta, OkHidesItAndKeepsTheText)
{
    batti(u"7"_s);
    clicca();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_TRUE(finestra.Caricata());
    EXPECT_EQ(finestra.txtPorta.Text(), u"7"_s);
    EXPECT_EQ(finestra.SuGiu.Value(), 7);
}

TEST_F(ImpostaPorta, ClosingItGivesAFreshDialog)
{
    batti(u"7"_s);
    finestra.close();
    EXPECT_FALSE(finestra.Visible());
    EXPECT_EQ(finestra.txtPorta.Text(), u"1"_s);
}

TEST_F(ImpostaPorta, Typing150AndLeavingTheFieldGives99)
{
    batti(u"150"_s);
    finestra.pulOK.setFocus();
    EXPECT_EQ(finestra.txtPorta.Text(), u"99"_s);
    EXPECT_EQ(finestra.SuGiu.Value(), 99);
}

TEST_F(ImpostaPorta, Typing0AndLeavingTheFieldGives1)
{
    batti(u"0"_s);
    finestra.pulOK.setFocus();
    EXPECT_EQ(finestra.txtPorta.Text(), u"1"_s);
}

TEST_F(ImpostaPorta, EnterLimitsTheNumberToTheRangeAsWell)
{
    batti(u"150"_s);
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_EQ(finestra.txtPorta.Text(), u"99"_s);
    EXPECT_FALSE(finestra.Visible());
}

TEST_F(ImpostaPorta, LettersAndSignsAreDropped)
{
    batti(u"x-4.2"_s);
    EXPECT_EQ(finestra.txtPorta.Text(), u"42"_s);
}

TEST_F(ImpostaPorta, TheSpinBarWritesItsNumber)
{
    finestra.SuGiu.setValue(33);
    EXPECT_EQ(finestra.txtPorta.Text(), u"33"_s);
}

TEST_F(ImpostaPorta, OkWithAnEmptyFieldShowsOneMessageForEachClickAndStaysOpen)
{
    finestra.txtPorta.setText({});
    clicca();
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti().first().testo, u"Devi impostare un numero di porta!"_s);
    EXPECT_EQ(messaggi.visti().first().icona, QMessageBox::NoIcon);
    EXPECT_EQ(messaggi.visti().first().pulsanti, QMessageBox::Ok);
    EXPECT_TRUE(finestra.Visible());
    EXPECT_EQ(finestra.Tag(), QString());
    EXPECT_EQ(finestra.focusWidget(), &finestra.txtPorta);
}

TEST_F(ImpostaPorta, EnterWithAnEmptyFieldShowsItsMessageEachTime)
{
    finestra.txtPorta.setText({});
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_EQ(messaggi.visti().size(), 1);
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_EQ(messaggi.visti().size(), 2);
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(ImpostaPorta, EnterAfterAPressWhoseReleaseWentToTheMessageShowsItAgain)
{
    finestra.txtPorta.setText({});
    // The message appears at the press and gets the release of the mouse, so no click follows.
    messaggi.mentreAperto = [&](const QMessageBox &) {
        QTest::mouseRelease(&finestra, Qt::LeftButton);
    };
    QTest::mousePress(&finestra.pulOK, Qt::LeftButton);
    ASSERT_TRUE(aspetta([&] { return !finestra.pulOK.isDown(); }));
    ASSERT_EQ(messaggi.visti().size(), 1);
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_EQ(messaggi.visti().size(), 2);
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(ImpostaPorta, LeavingTheEmptyFieldSetsTheTagOfTheWindow)
{
    finestra.txtPorta.setText({});
    finestra.SuGiu.setFocusPolicy(Qt::StrongFocus);
    finestra.pulOK.setFocus();
    EXPECT_EQ(finestra.Tag(), u"Errore"_s);
    // Enter is a new attempt and shows the message again.
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_EQ(messaggi.visti().size(), 2);
    EXPECT_TRUE(finestra.Visible());
}

TEST_F(ImpostaPorta, AFieldCorrectedAfterwardsIsAcceptedAtTheNextOk)
{
    finestra.txtPorta.setText({});
    clicca();
    batti(u"5"_s);
    clicca();
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_FALSE(finestra.Visible());
    EXPECT_EQ(finestra.txtPorta.Text(), u"5"_s);
}

TEST_F(ImpostaPorta, ATagLeftByAnEmptyFieldDoesNotRejectACorrectedNumber)
{
    finestra.txtPorta.setText({});
    finestra.pulOK.setFocus();
    ASSERT_EQ(finestra.Tag(), u"Errore"_s);
    batti(u"5"_s);
    QTest::keyClick(&finestra.txtPorta, Qt::Key_Return);
    EXPECT_FALSE(finestra.Visible());
    EXPECT_EQ(messaggi.visti().size(), 1);
}
