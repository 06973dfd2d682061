#include "controls/Pulsanti.h"

#include "controls/CasellaTesto.h"
#include "tests/support/Contrasto.h"
#include "tests/support/Controlli.h"

#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

struct PulsantiTest : ::testing::Test
{
    FinestraDiProva finestra;
    int volte = 0;
    std::function<void()> conta = [this] { ++volte; };
};

} // namespace

TEST_F(PulsantiTest, AButtonRaisesClickByMouseBySpaceAndByCode)
{
    Pulsante pulsante(u"pulEsegui"_s, &finestra, u"ESEGUI"_s);
    pulsante.Click.collega(conta);
    finestra.mostraAttiva();
    QTest::mouseClick(&pulsante, Qt::LeftButton);
    EXPECT_EQ(volte, 1);
    QTest::keyClick(&pulsante, Qt::Key_Space);
    EXPECT_EQ(volte, 2);
    pulsante.click();
    EXPECT_EQ(volte, 3);
}

TEST_F(PulsantiTest, ADisabledButtonRaisesNoClick)
{
    Pulsante pulsante(u"pulEsegui"_s, &finestra, u"ESEGUI"_s);
    pulsante.Click.collega(conta);
    finestra.mostraAttiva();
    pulsante.setEnabled(false);
    QTest::mouseClick(&pulsante, Qt::LeftButton);
    pulsante.click();
    EXPECT_EQ(volte, 0);
}

TEST_F(PulsantiTest, TheCaptionOfAButtonIsAProperty)
{
    Pulsante pulsante(u"pulEsegui"_s, &finestra, u"ESEGUI"_s);
    EXPECT_TRUE(pulsante.setProperty("Caption", u"STOP"_s));
    EXPECT_EQ(pulsante.Caption(), u"STOP"_s);
}

TEST_F(PulsantiTest, AMouseClickMovesTheFocusToTheButtonBeforeItsClick)
{
    CasellaTesto testo(u"txt"_s, &finestra);
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    pulsante.move(0, 100);
    finestra.mostraAttiva();
    testo.SetFocus();
    QStringList ordine;
    testo.LostFocus.collega([&] { ordine += u"LostFocus"_s; });
    pulsante.Click.collega([&] { ordine += pulsante.hasFocus() ? u"Click"_s : u"too early"_s; });
    QTest::mouseClick(&pulsante, Qt::LeftButton);
    EXPECT_EQ(ordine, (QStringList{u"LostFocus"_s, u"Click"_s}));
}

TEST_F(PulsantiTest, AButtonWhoseReleaseWentToAMessageBoxDoesNotStayDown)
{
    CasellaTesto testo(u"txt"_s, &finestra);
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    pulsante.Click.collega(conta);
    pulsante.move(0, 100);
    finestra.mostraAttiva();
    testo.SetFocus();
    testo.LostFocus.collega([&] {
        QTest::mouseRelease(&finestra, Qt::LeftButton);
        testo.SetFocus();
    });
    QTest::mousePress(&pulsante, Qt::LeftButton);
    EXPECT_TRUE(attendi([&] { return !pulsante.isDown(); }));
    EXPECT_TRUE(testo.hasFocus());
    EXPECT_EQ(volte, 0);
}

TEST_F(PulsantiTest, AButtonIsDownBetweenPressAndRelease)
{
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    finestra.mostraAttiva();
    QTest::mousePress(&pulsante, Qt::LeftButton);
    EXPECT_TRUE(pulsante.isDown());
    QTest::mouseRelease(&pulsante, Qt::LeftButton);
    EXPECT_FALSE(pulsante.isDown());
}

TEST_F(PulsantiTest, TheKeysUpAndDownLeaveTheFocusOnAButton)
{
    Pulsante prima(u"pulPrima"_s, &finestra, u"Prima"_s);
    Pulsante pulsante(u"pul"_s, &finestra, u"OK"_s);
    Pulsante dopo(u"pulDopo"_s, &finestra, u"Dopo"_s);
    finestra.mostraAttiva();
    for (const Qt::Key tasto : {Qt::Key_Up, Qt::Key_Down}) {
        pulsante.SetFocus();
        QTest::keyClick(&pulsante, tasto);
        EXPECT_TRUE(pulsante.hasFocus());
    }
}

TEST_F(PulsantiTest, ACheckBoxRaisesClickAtEveryChangeOfItsValue)
{
    CasellaSpunta spunta(u"opzInsComandi"_s, &finestra, u"Inserisci"_s);
    spunta.Click.collega(conta);
    finestra.mostraAttiva();
    EXPECT_EQ(spunta.Value(), 0);
    QTest::keyClick(&spunta, Qt::Key_Space);
    EXPECT_EQ(volte, 1);
    EXPECT_EQ(spunta.Value(), 1);
    spunta.setValue(0);
    EXPECT_EQ(volte, 2);
    spunta.setValue(0);
    EXPECT_EQ(volte, 2) << "the value has not changed";
    EXPECT_TRUE(spunta.setProperty("Value", 1));
    EXPECT_EQ(volte, 3);
    EXPECT_EQ(spunta.Value(), 1);
}

TEST_F(PulsantiTest, TheValueOfACheckBoxIs0Or1)
{
    CasellaSpunta spunta(u"opz"_s, &finestra, u"x"_s);
    spunta.setValue(1);
    spunta.Click.collega(conta);
    for (const int cattivo : {-1, 2, 100})
        EXPECT_EQ(erroreDi([&] { spunta.setValue(cattivo); }), 380) << cattivo;
    EXPECT_EQ(spunta.Value(), 1);
    EXPECT_EQ(volte, 0);
}

TEST_F(PulsantiTest, AnOptionBoxRaisesClickWhenItBecomesTheChosenOne)
{
    CasellaOpzione base(u"opzBase"_s, &finestra, u"Base"_s);
    CasellaOpzione testa(u"opzTesta"_s, &finestra, u"Testa"_s);
    testa.move(0, 50);
    QStringList ordine;
    base.Click.collega([&] { ordine += u"base"_s; });
    testa.Click.collega([&] { ordine += u"testa"_s; });
    finestra.mostraAttiva();
    base.setValue(true);
    QTest::mouseClick(&testa, Qt::LeftButton, {}, {8, testa.height() / 2});
    EXPECT_FALSE(base.Value());
    EXPECT_TRUE(testa.Value());
    testa.setValue(true);
    EXPECT_TRUE(base.setProperty("Value", true));
    EXPECT_EQ(ordine, (QStringList{u"base"_s, u"testa"_s, u"base"_s}));
}

TEST_F(PulsantiTest, TheChosenOptionBoxCanBeClearedByCodeWithoutAClick)
{
    CasellaOpzione base(u"opzBase"_s, &finestra, u"Base"_s);
    CasellaOpzione testa(u"opzTesta"_s, &finestra, u"Testa"_s);
    base.setValue(true);
    base.Click.collega(conta);
    testa.Click.collega(conta);
    base.setValue(false);
    EXPECT_FALSE(base.Value());
    EXPECT_FALSE(testa.Value());
    EXPECT_EQ(volte, 0);
    testa.setValue(true);
    base.setValue(true);
    EXPECT_FALSE(testa.Value()) << "they must still exclude each other";
    EXPECT_EQ(volte, 2);
}

TEST_F(PulsantiTest, TheColourOfAnOptionBoxCanBeReadBack)
{
    CasellaOpzione base(u"opzBase"_s, &finestra, u"Base"_s);
    base.setBackColor(QColor(0xC0, 0xFF, 0xC0));
    EXPECT_EQ(base.BackColor(), QColor(0xC0, 0xFF, 0xC0));
}

TEST_F(PulsantiTest, ASpinBarRaisesChangeByCodeAndByItsArrows)
{
    SuGiu barra(u"SuGiu"_s, &finestra, 1, 99, 1);
    barra.resize(20, 40);
    finestra.mostraAttiva();
    barra.Change.collega(conta);
    auto *su = barra.findChild<QToolButton *>(u"SuGiu.Su"_s);
    auto *giu = barra.findChild<QToolButton *>(u"SuGiu.Giu"_s);
    ASSERT_TRUE(su && giu);
    EXPECT_LT(su->geometry().top(), giu->geometry().top());
    QTest::mouseClick(su, Qt::LeftButton);
    EXPECT_EQ(barra.Value(), 2);
    QTest::mouseClick(giu, Qt::LeftButton);
    EXPECT_EQ(barra.Value(), 1);
    EXPECT_EQ(volte, 2);
    EXPECT_TRUE(barra.setProperty("Value", 50));
    EXPECT_EQ(volte, 3);
    barra.setValue(50);
    EXPECT_EQ(volte, 3) << "the value has not changed";
}

TEST_F(PulsantiTest, KeysChangeNeitherAClickedSpinBarNorTheFocus)
{
    SuGiu barra(u"SuGiu"_s, &finestra, 1, 99, 1);
    barra.resize(20, 40);
    Pulsante altro(u"pulAltro"_s, &finestra, u"Altro"_s);
    finestra.mostraAttiva();
    auto *su = barra.findChild<QToolButton *>(u"SuGiu.Su"_s);
    QTest::mouseClick(su, Qt::LeftButton);
    ASSERT_TRUE(su->hasFocus());
    for (const Qt::Key tasto :
         {Qt::Key_Space, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Select}) {
        QTest::keyClick(su, tasto);
        EXPECT_TRUE(su->hasFocus()) << tasto;
        EXPECT_EQ(barra.Value(), 2) << tasto;
    }
}

TEST_F(PulsantiTest, TheArrowsOfASpinBarHaveDifferentNamesForAScreenReader)
{
    const SuGiu barra(u"SuGiu"_s, &finestra, 1, 99, 1);
    EXPECT_EQ(barra.findChild<QToolButton *>(u"SuGiu.Su"_s)->accessibleName(), u"Aumenta"_s);
    EXPECT_EQ(barra.findChild<QToolButton *>(u"SuGiu.Giu"_s)->accessibleName(), u"Diminuisci"_s);
}

TEST_F(PulsantiTest, AHeldArrowRepeatsEvenIfItsHandlerMovesTheFocus)
{
    SuGiu barra(u"SuGiu"_s, &finestra, 1, 99, 1);
    barra.resize(20, 40);
    Pulsante pulsante(u"pulOK"_s, &finestra, u"OK"_s);
    pulsante.move(0, 100);
    finestra.mostraAttiva();
    barra.Change.collega([&] { pulsante.SetFocus(); });
    auto *su = barra.findChild<QToolButton *>(u"SuGiu.Su"_s);
    QTest::mousePress(su, Qt::LeftButton);
    EXPECT_TRUE(attendi([&] { return barra.Value() >= 4; }));
    EXPECT_TRUE(pulsante.hasFocus());
    QTest::mouseRelease(su, Qt::LeftButton);
    EXPECT_FALSE(su->isDown());
}

TEST_F(PulsantiTest, AHeldArrowStopsWhenAnotherWindowComesToTheFront)
{
    SuGiu barra(u"SuGiu"_s, &finestra, 1, 99, 1);
    barra.resize(20, 40);
    finestra.mostraAttiva();
    auto *su = barra.findChild<QToolButton *>(u"SuGiu.Su"_s);
    su->setFocus();
    QTest::mousePress(su, Qt::LeftButton);
    const AltroProgramma altro;
    EXPECT_TRUE(attendi([&] { return !su->isDown(); }));
}

TEST_F(PulsantiTest, ASpinBarStopsAtItsLimits)
{
    SuGiu barra(u"SuGiu"_s, &finestra, -1, 24, 24);
    finestra.mostraAttiva();
    barra.Change.collega(conta);
    QTest::mouseClick(barra.findChild<QToolButton *>(u"SuGiu.Su"_s), Qt::LeftButton);
    EXPECT_EQ(barra.Value(), 24);
    barra.setValue(-1);
    QTest::mouseClick(barra.findChild<QToolButton *>(u"SuGiu.Giu"_s), Qt::LeftButton);
    EXPECT_EQ(barra.Value(), -1);
    EXPECT_EQ(volte, 1);
    for (const int cattivo : {-2, 25, 1000})
        EXPECT_EQ(erroreDi([&] { barra.setValue(cattivo); }), 380) << cattivo;
    EXPECT_EQ(barra.Value(), -1);
    EXPECT_EQ(volte, 1);
}

TEST_F(PulsantiTest, TheArrowKeysInItsTextBoxTurnTheSpinBar)
{
    CasellaTesto testo(u"txtOre"_s, &finestra, u"5"_s);
    SuGiu barra(u"SuGiuOre"_s, &finestra, 0, 23, 0);
    barra.Change.collega([&] { testo.setText(QString::number(barra.Value())); });
    testo.LostFocus.collega([&] {
        if (!testo.Text().isEmpty())
            barra.setValue(testo.Text().toInt());
    });
    barra.conFrecce(testo);
    finestra.mostraAttiva();
    testo.setFocus();
    QTest::keyClick(&testo, Qt::Key_Up);
    EXPECT_EQ(testo.Text(), u"6"_s) << "must start from the typed number";
    QTest::keyClick(&testo, Qt::Key_Down);
    QTest::keyClick(&testo, Qt::Key_Down);
    EXPECT_EQ(barra.Value(), 4);
    EXPECT_EQ(testo.Text(), u"4"_s);
    EXPECT_TRUE(testo.hasFocus());
    testo.clear();
    QTest::keyClick(&testo, Qt::Key_Up);
    EXPECT_EQ(testo.Text(), QString()) << "an empty box has no number to start from";
}

TEST_F(PulsantiTest, TheMarkOfACheckBoxHasEnoughContrastWithItsGround)
{
    CasellaSpunta casella(u"opz"_s, &finestra, u"Attivato"_s);
    const QColor fondo(0x1B, 0x2A, 0x20);
    casella.setForeColor(QColor(0, 0xC0, 0), fondo);
    finestra.show();
    casella.show();
    casella.resize(casella.sizeHint());
    // The highest contrast of the pixels left of the text.
    const auto massimo = [&] {
        const QImage immagine = casella.grab(QRect(4, 4, 20, casella.height() - 8)).toImage();
        double trovato = 1;
        for (int y = 0; y < immagine.height(); ++y)
            for (int x = 0; x < immagine.width(); ++x)
                trovato = std::max(trovato, contrasto(immagine.pixelColor(x, y), fondo));
        return trovato;
    };
    const double vuota = massimo();
    casella.setValue(1);
    EXPECT_GE(massimo(), 4.5);
    EXPECT_LT(vuota, massimo());
}
