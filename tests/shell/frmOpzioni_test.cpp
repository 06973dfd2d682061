#include "shell/frmOpzioni.h"

#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Opzioni : public ::testing::Test
{
protected:
    // Shown without waiting for its end, as its behaviour is the same as that of a modal dialog.
    void apri()
    {
        opzioni.Mostra();
        opzioni.activateWindow();
        ASSERT_TRUE(aspetta([&] { return QApplication::activeWindow() == &opzioni; }));
    }
    void batti(const QString &tasti)
    {
        opzioni.txtPorta.setFocus();
        opzioni.txtPorta.selectAll();
        QTest::keyClicks(&opzioni.txtPorta, tasti);
    }
    void esciDalCampo() { opzioni.opzCollegaAut.setFocus(); }
    void svuotaCampo()
    {
        opzioni.txtPorta.setFocus();
        opzioni.txtPorta.setText({});
    }

    CartellaDiProva cartella;
    RispondiMessaggi messaggi;
    frmOpzioni opzioni;
};

} // namespace

TEST_F(Opzioni, ShowTheirFixedTexts)
{
    EXPECT_EQ(opzioni.Caption(), u"Opzioni"_s);
    EXPECT_EQ(opzioni.opzCollegaAut.Caption(), u"Collega automaticamente ad Tessaro all'avvio"_s);
    EXPECT_EQ(opzioni.Frame1.title(), u"Porta COM"_s);
    EXPECT_EQ(opzioni.lblSpiegazioneCOM.Caption(),
              u"Il numero di porta utilizzato per connettersi"_s);
    EXPECT_EQ(opzioni.lblAttenzionePorta.Caption(),
              u"Attenzione: non è stato impostato il numero di porta COM. Senza di esso non è "
              "possibile collegarsi al ROBOT!"_s);
    EXPECT_EQ(opzioni.pulOK.Caption(), u"OK"_s);
    EXPECT_EQ(opzioni.pulAnnulla.Caption(), u"Annulla"_s);
    EXPECT_EQ(opzioni.SuGiu.Min(), 1);
    EXPECT_EQ(opzioni.SuGiu.Max(), 99);
}

TEST_F(Opzioni, ShowTheContentsOfTheFiles)
{
    cartella.scrivi(u"Porta COM"_s, "17\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;no,no,no,no,no");
    apri();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"17"_s);
    EXPECT_EQ(opzioni.SuGiu.Value(), 17);
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 0);
    EXPECT_TRUE(opzioni.lblSpiegazioneCOM.Visible());
    EXPECT_FALSE(opzioni.lblAttenzionePorta.Visible());
}

TEST_F(Opzioni, WithoutAPortFileShowTheWarningAndKeep1)
{
    cartella.scrivi(u"prog.dat"_s, "0;");
    apri();
    EXPECT_FALSE(opzioni.lblSpiegazioneCOM.Visible());
    EXPECT_TRUE(opzioni.lblAttenzionePorta.Visible());
    EXPECT_EQ(opzioni.txtPorta.Text(), u"1"_s);
    // The other file is read all the same.
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 0);
}

TEST_F(Opzioni, WithAnEmptyPortFileShowTheWarning)
{
    cartella.scrivi(u"Porta COM"_s, {});
    apri();
    EXPECT_TRUE(opzioni.lblAttenzionePorta.Visible());
    EXPECT_EQ(opzioni.txtPorta.Text(), u"1"_s);
}

TEST_F(Opzioni, WithAPortOutOfRangeShowItsTextAndDoNotReadTheOtherFile)
{
    cartella.scrivi(u"Porta COM"_s, "150\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;");
    apri();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"150"_s);
    EXPECT_FALSE(opzioni.lblAttenzionePorta.Visible());
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 1);
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(Opzioni, WithoutProgDatKeepTheCheckMarkOfTheDesign)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    apri();
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 1);
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(Opzioni, IgnoreAnInvalidCheckMarkWithoutAMessage)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    cartella.scrivi(u"prog.dat"_s, "900;");
    apri();
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 1);
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(Opzioni, ReadTheFileWhateverTheCaseOfItsName)
{
    cartella.scrivi(u"Prog.dat"_s, "0;");
    apri();
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 0);
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.elenco().filter(u"prog.dat"_s, Qt::CaseInsensitive).size(), 1);
}

TEST_F(Opzioni, OkWritesBothFilesAndKeepsTheOtherField)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;no,no,no,no,alta;e altro");
    apri();
    opzioni.opzCollegaAut.click();
    batti(u"12"_s);
    QTest::mouseClick(&opzioni.pulOK, Qt::LeftButton);
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "12\r\n");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;no,no,no,no,alta;e altro");
    EXPECT_FALSE(opzioni.Visible());
}

TEST_F(Opzioni, OkCreatesAMissingProgDatWithNothingAfterTheSemicolon)
{
    apri();
    opzioni.opzCollegaAut.click();
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;");
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "1\r\n");
}

TEST_F(Opzioni, OkKeepsTheWholeTextOfAFileWithoutASemicolon)
{
    cartella.scrivi(u"prog.dat"_s, "0");
    apri();
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;0");
}

TEST_F(Opzioni, OkIgnoresAPortFileThatCannotBeWritten)
{
    QDir().mkdir(u"Porta COM"_s);
    apri();
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;");
    EXPECT_FALSE(opzioni.Visible());
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(Opzioni, OkIgnoresAProgDatThatCannotBeWritten)
{
    QDir().mkdir(u"prog.dat"_s);
    apri();
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "1\r\n");
    EXPECT_FALSE(opzioni.Visible());
}

TEST_F(Opzioni, CancelLeavesBothFilesUntouched)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;resto");
    apri();
    opzioni.opzCollegaAut.click();
    batti(u"12"_s);
    QTest::mouseClick(&opzioni.pulAnnulla, Qt::LeftButton);
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "2\r\n");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;resto");
    EXPECT_FALSE(opzioni.Visible());
}

TEST_F(Opzioni, AreReadAgainAtTheNextShowing)
{
    apri();
    batti(u"12"_s);
    opzioni.pulAnnulla.click();
    cartella.scrivi(u"Porta COM"_s, "3\r\n");
    opzioni.Mostra();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"3"_s);
    EXPECT_TRUE(opzioni.lblSpiegazioneCOM.Visible());
    EXPECT_FALSE(opzioni.lblAttenzionePorta.Visible());
}

TEST_F(Opzioni, AnEmptyFieldShowsItsMessageOnceAndGetsTheFocusBack)
{
    apri();
    svuotaCampo();
    esciDalCampo();
    ASSERT_EQ(messaggi.visti().size(), 1);
    EXPECT_EQ(messaggi.visti().first().testo, u"Devi impostare un numero di porta!"_s);
    EXPECT_EQ(messaggi.visti().first().icona, QMessageBox::NoIcon);
    EXPECT_EQ(messaggi.visti().first().pulsanti, QMessageBox::Ok);
    EXPECT_EQ(opzioni.Tag(), u"Errore"_s);
    EXPECT_EQ(opzioni.focusWidget(), &opzioni.txtPorta);
}

TEST_F(Opzioni, OkDoesNotLookAtTheTagOfAnEmptyField)
{
    apri();
    svuotaCampo();
    QTest::mouseClick(&opzioni.pulOK, Qt::LeftButton);
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_FALSE(opzioni.Visible());
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "\r\n");
}

TEST_F(Opzioni, EnterAppliesTheRulesOfLeavingTheFieldFirst)
{
    apri();
    batti(u"150"_s);
    QTest::keyClick(&opzioni.txtPorta, Qt::Key_Return);
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "99\r\n");
    EXPECT_FALSE(opzioni.Visible());
}

TEST_F(Opzioni, EnterWithAnEmptyFieldShowsItsMessageEachTimeAndStoresNothing)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;resto");
    apri();
    svuotaCampo();
    for (int volta = 1; volta <= 2; ++volta) {
        QTest::keyClick(&opzioni.txtPorta, Qt::Key_Return);
        EXPECT_EQ(messaggi.testi(), QStringList(volta, u"Devi impostare un numero di porta!"_s));
        EXPECT_TRUE(opzioni.Visible());
        EXPECT_EQ(opzioni.focusWidget(), &opzioni.txtPorta);
    }
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "2\r\n");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "0;resto");
}

TEST_F(Opzioni, AClickOnCancelClosesThemEvenIfTheFieldIsEmpty)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    apri();
    svuotaCampo();
    QTest::mouseClick(&opzioni.pulAnnulla, Qt::LeftButton);
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_FALSE(opzioni.Visible());
    EXPECT_EQ(cartella.leggi(u"Porta COM"_s), "2\r\n");
}

TEST_F(Opzioni, AClickOnCancelWhoseReleaseWentToTheMessageClosesThemAsWell)
{
    apri();
    svuotaCampo();
    // The message appears at the press, and the user releases the mouse button over it.
    messaggi.mentreAperto = [&](const QMessageBox &) {
        QTest::mouseRelease(&opzioni, Qt::LeftButton);
    };
    QTest::mousePress(&opzioni.pulAnnulla, Qt::LeftButton);
    EXPECT_EQ(messaggi.visti().size(), 1);
    EXPECT_FALSE(opzioni.Visible());
    opzioni.Mostra();
    EXPECT_TRUE(aspetta([&] { return !opzioni.pulAnnulla.isDown(); }));
    EXPECT_EQ(messaggi.visti().size(), 1);
}

TEST_F(Opzioni, ARightPressOnCancelClosesNothing)
{
    apri();
    QTest::mouseClick(&opzioni.pulAnnulla, Qt::RightButton);
    EXPECT_TRUE(opzioni.Visible());
}

TEST_F(Opzioni, EscWithAnEmptyFieldClosesThemWithoutAMessage)
{
    apri();
    svuotaCampo();
    QTest::keyClick(&opzioni.txtPorta, Qt::Key_Escape);
    gira(100);
    EXPECT_FALSE(opzioni.Visible());
    EXPECT_TRUE(messaggi.visti().isEmpty());
}

TEST_F(Opzioni, SelectTheirNumberWhenTheyOpen)
{
    cartella.scrivi(u"Porta COM"_s, "17\r\n");
    apri();
    EXPECT_EQ(opzioni.focusWidget(), &opzioni.txtPorta);
    EXPECT_EQ(opzioni.txtPorta.selectedText(), u"17"_s);
    QTest::keyClicks(opzioni.focusWidget(), u"8"_s);
    EXPECT_EQ(opzioni.txtPorta.Text(), u"8"_s);
}

TEST_F(Opzioni, TypingDropsAllButDigitsAndBackspace)
{
    apri();
    batti(u"a1 -b.2,"_s);
    EXPECT_EQ(opzioni.txtPorta.Text(), u"12"_s);
    QTest::keyClick(&opzioni.txtPorta, Qt::Key_Backspace);
    EXPECT_EQ(opzioni.txtPorta.Text(), u"1"_s);
}

TEST_F(Opzioni, AnyNumberAbove99Becomes99)
{
    apri();
    batti(u"150"_s);
    esciDalCampo();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"99"_s);
    EXPECT_EQ(opzioni.SuGiu.Value(), 99);
    batti(u"99999999999999999999"_s);
    esciDalCampo();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"99"_s);
}

TEST_F(Opzioni, Number0Becomes1)
{
    apri();
    batti(u"0"_s);
    esciDalCampo();
    EXPECT_EQ(opzioni.txtPorta.Text(), u"1"_s);
    EXPECT_EQ(opzioni.SuGiu.Value(), 1);
}

TEST_F(Opzioni, TheSpinBarTakesTheNumberOfTheText)
{
    apri();
    batti(u"42"_s);
    esciDalCampo();
    EXPECT_EQ(opzioni.SuGiu.Value(), 42);
}

TEST_F(Opzioni, TheTextTakesTheNumberOfTheSpinBar)
{
    apri();
    opzioni.SuGiu.setValue(8);
    EXPECT_EQ(opzioni.txtPorta.Text(), u"8"_s);
}

TEST_F(Opzioni, ReadAndWriteTheUsersFileIfTheSampleIsInTheSameFolder)
{
    cartella.scrivi(u"Porta COM"_s, "2\r\n");
    cartella.scrivi(u"PROG.DAT"_s, "0;no,no,25,no,no");
    cartella.scrivi(u"prog.dat"_s, "1;");
    apri();
    EXPECT_EQ(opzioni.opzCollegaAut.Value(), 0);
    opzioni.opzCollegaAut.click();
    opzioni.pulOK.click();
    EXPECT_EQ(cartella.leggi(u"PROG.DAT"_s), "1;no,no,25,no,no");
    EXPECT_EQ(cartella.leggi(u"prog.dat"_s), "1;");
}
