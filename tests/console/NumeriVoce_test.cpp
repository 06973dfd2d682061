// The boxes of phrases and sounds, typed and pasted into as users do.
#include "simulator/robot/Vocabolario.h"
#include "tests/console/ConsoleInProva.h"

#include <QClipboard>
#include <QToolButton>
#include <gmock/gmock.h>

namespace {

void scrivi(CasellaTesto &casella, const QString &testo)
{
    casella.setFocus();
    casella.selectAll();
    QTest::keyClick(&casella, Qt::Key_Backspace);
    QTest::keyClicks(&casella, testo);
}

void incolla(CasellaTesto &casella, const QString &testo)
{
    QApplication::clipboard()->setText(testo);
    casella.setFocus();
    casella.selectAll();
    casella.paste();
}

QString traVirgolette(int frase)
{
    return u'"' + Vocabolario::frase(frase) + u'"';
}

} // namespace

TEST(NumeriVoce, EveryPhraseIsShownAndSpoken)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (int n = 2; n <= 140; ++n) {
        c.finestra.txtValFrase.setText(QString::number(n));
        EXPECT_EQ(c.pannello(), traVirgolette(n));
        c.clicca(c.finestra.pulFrase);
        EXPECT_EQ(c.byteMandati(), b({19, 97, n + 66}));
        EXPECT_EQ(c.robot.robot().stato().detto, Vocabolario::frase(n));
        EXPECT_EQ(c.pannello(), traVirgolette(n));
    }
    c.finestra.txtValFrase.setText(u"1"_s);
    EXPECT_EQ(c.pannello(), traVirgolette(1));
    c.clicca(c.finestra.pulFrase);
    EXPECT_EQ(c.byteMandati(), b({19, 97, 67}));
}

TEST(NumeriVoce, EverySoundIsShownAndPlayed)
{
    const QString nomi[] = {u"Clacson"_s,
                            u"Sirena 1"_s,
                            u"Boing"_s,
                            u"Rutto"_s,
                            u"Fischio 1"_s,
                            u"5 bip"_s,
                            u"Esplosione"_s,
                            u"Campana"_s,
                            u"Trombetta"_s,
                            u"Sirena 2"_s,
                            u"Scatto di una macchina fotografica"_s,
                            u"Risata 1"_s,
                            u"Risata 2"_s,
                            u"WOW!"_s,
                            QString(),
                            QString()};
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (int n = 16; n >= 1; --n) {
        c.finestra.txtValSuono.setText(QString::number(n));
        EXPECT_EQ(c.pannello(), nomi[n - 1]) << n;
        c.clicca(c.finestra.pulSuono);
        EXPECT_EQ(c.byteMandati(), b({19, 97, n + 206}));
        EXPECT_EQ(c.pannello(), nomi[n - 1]) << n;
    }
}

TEST(NumeriVoce, TypingShowsTheNameOfEachNumberOnTheWay)
{
    ConsoleInProva c;
    c.mostra();
    CasellaTesto &casella = c.finestra.txtValFrase;
    scrivi(casella, {});
    EXPECT_EQ(c.pannello(), QString());
    QTest::keyClicks(&casella, u"1"_s);
    EXPECT_EQ(c.pannello(), traVirgolette(1));
    QTest::keyClicks(&casella, u"4"_s);
    EXPECT_EQ(c.pannello(), traVirgolette(14));
    QTest::keyClicks(&casella, u"1"_s);
    EXPECT_EQ(c.pannello(), QString());
}

TEST(NumeriVoce, LeavingTheBoxBringsTheNumberBetweenItsLimits)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    scrivi(f.txtValFrase, u"141"_s);
    EXPECT_EQ(c.pannello(), QString());
    f.ImgTesta.SetFocus();
    EXPECT_EQ(f.txtValFrase.Text(), u"140"_s);
    EXPECT_EQ(f.SuGiu1.Value(), 140);
    EXPECT_EQ(c.pannello(), traVirgolette(140));
    scrivi(f.txtValSuono, u"17"_s);
    f.ImgTesta.SetFocus();
    EXPECT_EQ(f.txtValSuono.Text(), u"16"_s);
    EXPECT_EQ(f.SuGiu2.Value(), 16);
    EXPECT_EQ(c.pannello(), QString());
}

TEST(NumeriVoce, AnEmptyBoxAndZeroBecomeOne)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    for (const QString &testo : {QString(), u"0"_s, u"00"_s}) {
        scrivi(f.txtValFrase, testo);
        f.ImgTesta.SetFocus();
        EXPECT_EQ(f.txtValFrase.Text(), u"1"_s);
        EXPECT_EQ(f.SuGiu1.Value(), 1);
        EXPECT_EQ(c.pannello(), traVirgolette(1));
        scrivi(f.txtValSuono, testo);
        f.ImgTesta.SetFocus();
        EXPECT_EQ(f.txtValSuono.Text(), u"1"_s);
        EXPECT_EQ(f.SuGiu2.Value(), 1);
        EXPECT_EQ(c.pannello(), u"Clacson"_s);
    }
}

TEST(NumeriVoce, OnlyDigitsCanBeTyped)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    for (CasellaTesto *casella : {&c.finestra.txtValFrase, &c.finestra.txtValSuono}) {
        scrivi(*casella, u"a1-b.2,c½ e"_s);
        EXPECT_EQ(casella->Text(), u"12"_s);
        QTest::keyClick(casella, Qt::Key_Backspace);
        EXPECT_EQ(casella->Text(), u"1"_s);
    }
}

TEST(NumeriVoce, ATextOfALeadingZeroHasNoName)
{
    ConsoleInProva c;
    c.mostra();
    scrivi(c.finestra.txtValFrase, u"07"_s);
    EXPECT_EQ(c.pannello(), QString());
}

TEST(NumeriVoce, PastedLettersGoInAndBecomeOne)
{
    ConsoleInProva c;
    c.mostra();
    for (CasellaTesto *casella : {&c.finestra.txtValFrase, &c.finestra.txtValSuono}) {
        for (const QString &testo : {u"ciao"_s, u"-5"_s, u"0.4"_s, u"   "_s}) {
            incolla(*casella, testo);
            EXPECT_EQ(casella->Text(), testo);
            EXPECT_EQ(c.pannello(), QString());
            c.finestra.ImgTesta.SetFocus();
            EXPECT_EQ(casella->Text(), u"1"_s) << testo.toStdString();
        }
    }
}

TEST(NumeriVoce, ANumberOfAHundredDigitsBecomesTheLimit)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    const QString lungo(100, u'7');
    scrivi(f.txtValFrase, lungo);
    EXPECT_EQ(f.txtValFrase.Text(), lungo);
    f.pulFrase.click();
    EXPECT_EQ(f.txtValFrase.Text(), u"140"_s);
    EXPECT_EQ(c.byteMandati(), b({19, 97, 206}));
    incolla(f.txtValSuono, QString(500, u'9'));
    f.pulSuono.click();
    EXPECT_EQ(f.txtValSuono.Text(), u"16"_s);
    EXPECT_EQ(c.byteMandati(), b({19, 97, 222}));
}

TEST(NumeriVoce, TheButtonTakesTheNumberThatLeavingTheBoxHasPutRight)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    scrivi(c.finestra.txtValFrase, u"999"_s);
    c.clicca(c.finestra.pulFrase);
    EXPECT_EQ(c.byteMandati(), b({19, 97, 206}));
    EXPECT_TRUE(c.fuocoACasa());
    c.attivaLista(true);
    scrivi(c.finestra.txtValSuono, u"0"_s);
    c.clicca(c.finestra.pulSuono);
    EXPECT_EQ(c.frmEditor.mosse(), QStringList(u"Suono 1"_s));
    EXPECT_TRUE(c.fuocoACasa());
}

TEST(NumeriVoce, SpinningShowsEachNameAsItGoesBy)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    auto *su = f.SuGiu1.findChild<QToolButton *>(u"SuGiu1.Su"_s);
    auto *giu = f.SuGiu1.findChild<QToolButton *>(u"SuGiu1.Giu"_s);
    ASSERT_TRUE(su && giu);
    c.clicca(*su);
    c.clicca(*su);
    EXPECT_EQ(f.txtValFrase.Text(), u"3"_s);
    EXPECT_EQ(c.pannello(), traVirgolette(3));
    c.clicca(*giu);
    EXPECT_EQ(c.pannello(), traVirgolette(2));
    c.clicca(*giu);
    c.clicca(*giu);
    EXPECT_EQ(f.txtValFrase.Text(), u"1"_s);
    EXPECT_EQ(f.SuGiu1.Value(), 1);
    f.SuGiu2.setValue(16);
    EXPECT_EQ(f.txtValSuono.Text(), u"16"_s);
    EXPECT_EQ(c.pannello(), QString());
    EXPECT_EQ(f.SuGiu1.Min(), 1);
    EXPECT_EQ(f.SuGiu1.Max(), 140);
    EXPECT_EQ(f.SuGiu2.Min(), 1);
    EXPECT_EQ(f.SuGiu2.Max(), 16);
}

TEST(NumeriVoce, AfterSpinningTheKeysDriveTheRobotAndNothingElse)
{
    ConsoleInProva c;
    ASSERT_TRUE(c.mostraCollegata());
    frmPrincipale &f = c.finestra;
    c.clicca(*f.SuGiu1.findChild<QToolButton *>(u"SuGiu1.Su"_s));
    const QWidget *fuoco = QApplication::focusWidget();
    c.tasto(Qt::Key_Space);
    EXPECT_EQ(f.txtValFrase.Text(), u"2"_s);
    c.tasto(Qt::Key_Up);
    EXPECT_EQ(c.byteMandati(), b({19, 65, 0, 19, 65, 1}));
    EXPECT_EQ(QApplication::focusWidget(), fuoco);
}

TEST(NumeriVoce, SpinningGoesOnFromTheTypedNumber)
{
    ConsoleInProva c;
    c.mostra();
    scrivi(c.finestra.txtValFrase, u"50"_s);
    c.clicca(*c.finestra.SuGiu1.findChild<QToolButton *>(u"SuGiu1.Su"_s));
    EXPECT_EQ(c.finestra.txtValFrase.Text(), u"51"_s);
}

TEST(NumeriVoce, AClickOnTheBoxBringsTheNameBack)
{
    ConsoleInProva c;
    c.mostra();
    frmPrincipale &f = c.finestra;
    f.txtValFrase.setText(u"12"_s);
    f.txtValSuono.setText(u"3"_s);
    c.scriviPannello(u"altro"_s);
    c.clicca(f.txtValFrase);
    EXPECT_EQ(c.pannello(), traVirgolette(12));
    c.clicca(f.txtValSuono);
    EXPECT_EQ(c.pannello(), u"Boing"_s);
    c.clicca(f.txtValFrase);
    EXPECT_EQ(c.pannello(), traVirgolette(12));
}
