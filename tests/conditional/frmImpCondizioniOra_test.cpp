// The time in the condition dialog: its boxes and its spin bars.
#include "tests/conditional/BancoImpCondizioni.h"

#include "tests/support/Attesa.h"

#include <QToolButton>

using testing::ElementsAre;
using testing::IsEmpty;

class FrmImpCondizioniOra : public BancoImpCondizioni
{
protected:
    struct Numero
    {
        CasellaTesto &testo;
        SuGiu &barra;
        int fine;
    };
    QList<Numero> numeri()
    {
        return {{dialogo.txtOre, dialogo.SuGiuOre, 24},
                {dialogo.txtMinuti, dialogo.SuGiuMinuti, 60},
                {dialogo.txtSecondi, dialogo.SuGiuSecondi, 60}};
    }
    void esci() { tasto(Qt::Key_Tab); }
    // A key held for that many repeats, each going to whatever has the focus then; not let go yet.
    void tieni(Qt::Key quale, int ripetizioni, bool giaPremuto = false)
    {
        for (int i = 0; i <= ripetizioni; ++i) {
            const bool ripetuto = giaPremuto || i > 0;
            QKeyEvent evento(QEvent::KeyPress, quale, Qt::NoModifier, QString(), ripetuto);
            QWidget *dove = dialogo.focusWidget();
            QApplication::sendEvent(dove ? dove : &dialogo, &evento);
        }
    }
    void lascia(Qt::Key quale)
    {
        QKeyEvent evento(QEvent::KeyRelease, quale, Qt::NoModifier);
        QApplication::sendEvent(dialogo.focusWidget(), &evento);
    }
};

TEST_F(FrmImpCondizioniOra, TheSpinBarsGoRound)
{
    apri(u"23:59:59,no,no,no,no"_s);
    for (const Numero &numero : numeri()) {
        freccia(numero.barra, u".Su"_s);
        EXPECT_EQ(numero.testo.Text(), u"0"_s);
        EXPECT_EQ(numero.barra.Value(), 0);
        freccia(numero.barra, u".Giu"_s);
        EXPECT_EQ(numero.testo.Text(), QString::number(numero.fine - 1));
        EXPECT_EQ(numero.barra.Value(), numero.fine - 1);
        freccia(numero.barra, u".Giu"_s, 3);
        EXPECT_EQ(numero.testo.Text(), QString::number(numero.fine - 4));
    }
}

TEST_F(FrmImpCondizioniOra, ASpinBarGoesAllTheWayRound)
{
    apri(u"no,no,no,no,no"_s);
    for (const Numero &numero : numeri()) {
        const QString prima = numero.testo.Text();
        freccia(numero.barra, u".Su"_s, numero.fine);
        EXPECT_EQ(numero.testo.Text(), prima);
        freccia(numero.barra, u".Giu"_s, numero.fine);
        EXPECT_EQ(numero.testo.Text(), prima);
    }
}

TEST_F(FrmImpCondizioniOra, ASpinBarSwitchesItsPanelOn)
{
    for (int i = 0; i < 3; ++i) {
        apri(u"no,no,no,no,no"_s);
        freccia(numeri()[i].barra, u".Su"_s);
        EXPECT_THAT(attivi(), ElementsAre(1));
        EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
        freccia(numeri()[i].barra, u".Su"_s);
        EXPECT_THAT(attivi(), ElementsAre(1)) << "and leaves it on";
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioniOra, AnArrowThatIsHeldGoesOnThoughThePanelTakesTheFocusToOk)
{
    apri(u"no,no,no,no,no"_s);
    auto *su = dialogo.SuGiuMinuti.findChild<QToolButton *>(u"SuGiuMinuti.Su"_s);
    QTest::mousePress(su, Qt::LeftButton);
    EXPECT_TRUE(aspetta([&] { return dialogo.SuGiuMinuti.Value() >= 8; }));
    QTest::mouseRelease(su, Qt::LeftButton);
    EXPECT_THAT(attivi(), ElementsAre(1));
}

TEST_F(FrmImpCondizioniOra, LeavingABoxBringsItsNumberIntoRange)
{
    apri(u"12:12:12,no,no,no,no"_s);
    struct Caso
    {
        QString scritto, ore, altri;
    };
    for (const Caso &caso : {Caso{u""_s, u"0"_s, u"0"_s},
                             {u"0"_s, u"0"_s, u"0"_s},
                             {u"5"_s, u"5"_s, u"5"_s},
                             {u"23"_s, u"23"_s, u"23"_s},
                             {u"24"_s, u"0"_s, u"24"_s},
                             {u"25"_s, u"23"_s, u"25"_s},
                             {u"30"_s, u"23"_s, u"30"_s},
                             {u"59"_s, u"23"_s, u"59"_s},
                             {u"60"_s, u"23"_s, u"0"_s},
                             {u"61"_s, u"23"_s, u"59"_s},
                             {u"99999999999999999999"_s, u"23"_s, u"59"_s}}) {
        for (const Numero &numero : numeri()) {
            scrivi(numero.testo, caso.scritto);
            EXPECT_EQ(numero.testo.Text(), caso.scritto) << "nothing happens while typing";
            esci();
            EXPECT_EQ(numero.testo.Text(), numero.fine == 24 ? caso.ore : caso.altri);
            EXPECT_EQ(numero.barra.Value(), numero.testo.Text().toInt());
        }
    }
}

TEST_F(FrmImpCondizioniOra, ATypedTimeSwitchesThePanelOnWhenTheBoxIsLeft)
{
    apri(u"no,no,no,no,no"_s);
    scrivi(dialogo.txtOre, u"17"_s);
    EXPECT_THAT(attivi(), IsEmpty());
    esci();
    EXPECT_THAT(attivi(), ElementsAre(1));
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK);
}

TEST_F(FrmImpCondizioniOra, LeavingABoxAsItWasSwitchesNothing)
{
    apri(u"no,no,no,no,no"_s);
    clicca(dialogo.txtOre);
    esci();
    esci();
    esci();
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(orario(), u"9:5:7"_s);
}

TEST_F(FrmImpCondizioniOra, TheBoxClickedFromATypedTimeDoesNotSwitchThePanelBackOff)
{
    apri(u"no,no,no,no,no"_s);
    scrivi(dialogo.txtOre, u"17"_s);
    clicca(dialogo.imgCasella(1));
    EXPECT_THAT(attivi(), ElementsAre(1));
    EXPECT_EQ(dialogo.SuGiuOre.Value(), 17);
}

TEST_F(FrmImpCondizioniOra, ASpinBarGoesOnFromTheNumberThatWasTyped)
{
    apri(u"no,no,no,no,no"_s);
    scrivi(dialogo.txtOre, u"30"_s);
    freccia(dialogo.SuGiuOre, u".Giu"_s);
    EXPECT_EQ(dialogo.txtOre.Text(), u"22"_s);
}

TEST_F(FrmImpCondizioniOra, OnlyDigitsCanBeTyped)
{
    apri(u"12:12:12,no,no,no,no"_s);
    for (const Numero &numero : numeri()) {
        scrivi(numero.testo, u"1a-:., 2"_s);
        EXPECT_EQ(numero.testo.Text(), u"12"_s);
        tasto(Qt::Key_Backspace);
        EXPECT_EQ(numero.testo.Text(), u"1"_s);
    }
}

TEST_F(FrmImpCondizioniOra, WhatWasPastedIsReadAsANumber)
{
    apri(u"12:12:12,no,no,no,no"_s);
    struct Caso
    {
        QString incollato, ore, altri;
    };
    for (const Caso &caso : {Caso{u"abc"_s, u"0"_s, u"0"_s},
                             {u"7 nani"_s, u"7"_s, u"7"_s},
                             {u"12:30"_s, u"12"_s, u"12"_s},
                             {u"-5"_s, u"0"_s, u"0"_s},
                             {u"-"_s, u"0"_s, u"0"_s},
                             {u"1.5"_s, u"2"_s, u"2"_s},
                             {u"23.9"_s, u"0"_s, u"24"_s},
                             {QString(100, u'9'), u"23"_s, u"59"_s},
                             {QString(400, u'9'), u"23"_s, u"59"_s},
                             {QString(100, u'0') + u'8', u"8"_s, u"8"_s},
                             {u"\u0661\u0662"_s, u"0"_s, u"0"_s}}) {
        for (const Numero &numero : numeri()) {
            incolla(numero.testo, caso.incollato);
            ASSERT_EQ(numero.testo.Text(), caso.incollato);
            esci();
            EXPECT_EQ(numero.testo.Text().toDouble(),
                      (numero.fine == 24 ? caso.ore : caso.altri).toDouble())
                << caso.incollato.toStdString();
            EXPECT_EQ(numero.barra.Value(), numero.testo.Text().toInt());
        }
    }
    EXPECT_THAT(messaggi.visti(), IsEmpty());
}

TEST_F(FrmImpCondizioniOra, ATypedTimeIsStoredWhenOkIsClickedOrEnterPressed)
{
    apri(u"no,no,25,no,no"_s);
    scrivi(dialogo.txtOre, u"30"_s);
    clicca(dialogo.pulOK);
    EXPECT_EQ(condizione(), u"23:05:07,no,25,no,no"_s);
    dialogo.Scarica();
    apri(u"no,no,25,no,no"_s);
    scrivi(dialogo.txtSecondi, QString());
    tasto(Qt::Key_Return);
    EXPECT_FALSE(dialogo.Visible());
    EXPECT_EQ(condizione(), u"09:05:00,no,25,no,no"_s);
}

TEST_F(FrmImpCondizioniOra, MidnightIsStoredAndThenShownAsNoTime)
{
    apri(u"12:12:12,no,no,no,no"_s);
    for (const Numero &numero : numeri())
        scrivi(numero.testo, u"0"_s);
    clicca(dialogo.pulOK);
    EXPECT_EQ(condizione(), u"00:00:00,no,no,no,no"_s);
    dialogo.Scarica();
    orologio.ora = QTime(18, 0, 1);
    mostra();
    EXPECT_THAT(attivi(), IsEmpty());
    EXPECT_EQ(orario(), u"18:0:1"_s);
}

TEST_F(FrmImpCondizioniOra, AnArrowKeyThatIsHeldSpinsItsBoxAndNothingElse)
{
    for (int i = 0; i < 3; ++i) {
        apri(u"no,no,no,no,no"_s);
        const Numero numero = numeri()[i];
        numero.testo.setFocus();
        const int prima = numero.barra.Value();
        tieni(Qt::Key_Up, 5);
        EXPECT_EQ(numero.barra.Value(), prima + 6);
        tieni(Qt::Key_Down, 7);
        EXPECT_EQ(numero.barra.Value(), (prima - 2 + numero.fine) % numero.fine);
        lascia(Qt::Key_Down);
        EXPECT_THAT(attivi(), ElementsAre(1));
        // Pressed again and again it does the same.
        tasto(Qt::Key_Up);
        tasto(Qt::Key_Up);
        EXPECT_EQ(numero.barra.Value(), prima);
        EXPECT_EQ(dialogo.focusWidget(), &numero.testo);
        tieni(Qt::Key_PageUp, 3);
        tieni(Qt::Key_PageDown, 3);
        EXPECT_EQ(dialogo.focusWidget(), &numero.testo);
        EXPECT_THAT(attivi(), ElementsAre(1));
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioniOra, AnArrowKeySpinsOnFromATypedNumberAndKeepsTheFocus)
{
    apri(u"no,no,no,no,no"_s);
    scrivi(dialogo.txtOre, u"17"_s);
    tieni(Qt::Key_Up, 2);
    EXPECT_EQ(dialogo.txtOre.Text(), u"20"_s);
    EXPECT_EQ(dialogo.focusWidget(), &dialogo.txtOre);
    EXPECT_THAT(attivi(), ElementsAre(1));
    // Left as ever, the box is brought into range.
    scrivi(dialogo.txtOre, u"30"_s);
    esci();
    EXPECT_EQ(dialogo.txtOre.Text(), u"23"_s);
}

TEST_F(FrmImpCondizioniOra, AKeyThatIsHeldInAComboGoesThroughItsRowsAndNothingElse)
{
    struct Caso
    {
        Combo &combo;
        int pannello, ultima;
    };
    for (const Caso &caso : {Caso{dialogo.cbTemperatura, 3, 40},
                             {dialogo.cbBattLogica, 4, 4},
                             {dialogo.cbBattMotori, 5, 4}}) {
        apri(u"no,no,no,no,no"_s);
        caso.combo.setFocus();
        const int prima = caso.combo.ListIndex();
        tieni(Qt::Key_Up, 2);
        EXPECT_EQ(caso.combo.ListIndex(), prima - 3);
        tieni(Qt::Key_Up, 45, true);
        EXPECT_EQ(caso.combo.ListIndex(), 0) << "and stays there";
        lascia(Qt::Key_Up);
        EXPECT_THAT(attivi(), ElementsAre(caso.pannello));
        EXPECT_EQ(dialogo.focusWidget(), &dialogo.pulOK) << "as after a choice with the mouse";
        caso.combo.setFocus();
        tieni(Qt::Key_PageDown, 45);
        lascia(Qt::Key_PageDown);
        EXPECT_EQ(caso.combo.ListIndex(), caso.ultima);
        EXPECT_THAT(attivi(), ElementsAre(caso.pannello));
        dialogo.Scarica();
    }
}

TEST_F(FrmImpCondizioniOra, ATemperatureIsTypedInItsCombo)
{
    apri(u"no,no,no,no,no"_s);
    dialogo.cbTemperatura.setFocus();
    QTest::keyClick(dialogo.focusWidget(), '3');
    QTest::keyClick(dialogo.focusWidget(), '1');
    EXPECT_EQ(dialogo.cbTemperatura.Text(), u"31"_s);
    EXPECT_THAT(attivi(), ElementsAre(3));
}

TEST_F(FrmImpCondizioniOra, ArrowKeysOnOkChangeNoCondition)
{
    apri(u"no,no,25,no,no"_s);
    for (const Qt::Key quale : {Qt::Key_Up, Qt::Key_Down}) {
        dialogo.pulOK.setFocus();
        tieni(quale, 30);
        lascia(quale);
        EXPECT_THAT(attivi(), ElementsAre(3));
        EXPECT_EQ(dialogo.cbTemperatura.Text(), u"25"_s);
    }
}
