#include "controls/CasellaTesto.h"

#include "controls/Messaggi.h"
#include "tests/support/Controlli.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct CasellaTestoTest : ::testing::Test
{
    CasellaTestoTest()
    {
        altro.move(0, 50);
        pulsante.move(0, 100);
        testo.Change.collega([this] { modifiche += testo.Text(); });
        testo.LostFocus.collega([this] {
            ++lasciata;
            if (lasciando)
                lasciando();
        });
    }
    void pronta()
    {
        finestra.mostraAttiva();
        testo.SetFocus();
        ASSERT_TRUE(testo.hasFocus());
        lasciata = 0;
        modifiche.clear();
    }
    void mostraMessaggio()
    {
        const ManoSuiMessaggi mano(premiOK);
        messaggio(u"Devi impostare un numero di porta!"_s);
        finestra.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    }

    FinestraDiProva finestra;
    CasellaTesto testo{u"txtPorta"_s, &finestra, u"1"_s};
    CasellaTesto altro{u"txtAltro"_s, &finestra};
    Pulsante pulsante{u"pulOK"_s, &finestra, u"OK"_s};
    QStringList modifiche;
    int lasciata = 0;
    std::function<void()> lasciando;
};

} // namespace

TEST_F(CasellaTestoTest, ItsTextIsAProperty)
{
    EXPECT_EQ(testo.property("Text").toString(), u"1"_s);
    EXPECT_TRUE(testo.setProperty("Text", u"7"_s));
    EXPECT_EQ(testo.Text(), u"7"_s);
}

TEST_F(CasellaTestoTest, AChangeByCodeRaisesChange)
{
    testo.setText(u"22"_s);
    testo.setText(u"22"_s);
    EXPECT_EQ(modifiche, QStringList{u"22"_s});
}

TEST_F(CasellaTestoTest, ATextThatCodeCorrectsKeepsTheCaretInItsPlace)
{
    pronta();
    testo.Change.collega([this] { testo.setText(QString::number(testo.Text().toInt())); });
    testo.setText(u"5"_s);
    QTest::keyClick(&testo, Qt::Key_Home);
    QTest::keyClicks(&testo, u"012"_s);
    EXPECT_EQ(testo.Text(), u"125"_s);
    EXPECT_EQ(testo.cursorPosition(), 2);
}

TEST_F(CasellaTestoTest, EachTypedCharacterRaisesChange)
{
    pronta();
    testo.selectAll();
    QTest::keyClicks(&testo, u"42"_s);
    EXPECT_EQ(modifiche, (QStringList{u"4"_s, u"42"_s}));
    QTest::keyClick(&testo, Qt::Key_Backspace);
    EXPECT_EQ(modifiche.last(), u"4"_s);
}

TEST_F(CasellaTestoTest, SeesEachTypedCharacterBeforeItIsInTheText)
{
    pronta();
    QStringList visti;
    testo.KeyPress.collega([&](int &tasto) { visti += u"%1 %2"_s.arg(tasto).arg(testo.Text()); });
    testo.clear();
    batti(testo, u"a½"_s);
    QTest::keyClick(&testo, Qt::Key_Backspace);
    EXPECT_EQ(visti, (QStringList{u"97 "_s, u"189 a"_s, u"8 a½"_s}));
    EXPECT_EQ(testo.Text(), u"a"_s);
}

TEST_F(CasellaTestoTest, ItsHandlerMayChangeACharacter)
{
    pronta();
    testo.KeyPress.collega([](int &tasto) {
        if (tasto == 'a')
            tasto = 189;
    });
    testo.clear();
    QTest::keyClicks(&testo, u"ab"_s);
    EXPECT_EQ(testo.Text(), u"½b"_s);
}

TEST_F(CasellaTestoTest, ItsHandlerMayDropACharacter)
{
    pronta();
    testo.KeyPress.collega(&soloCifre);
    testo.clear();
    modifiche.clear();
    batti(testo, u"1a2,3 -4½é"_s);
    EXPECT_EQ(testo.Text(), u"1234"_s);
    EXPECT_EQ(modifiche.size(), 4);
    QTest::keyClick(&testo, Qt::Key_Backspace);
    EXPECT_EQ(testo.Text(), u"123"_s);
}

TEST_F(CasellaTestoTest, ADroppedBackspaceDeletesNothing)
{
    pronta();
    testo.setText(u"12"_s);
    testo.KeyPress.collega([](int &tasto) { tasto = 0; });
    QTest::keyClick(&testo, Qt::Key_Backspace);
    EXPECT_EQ(testo.Text(), u"12"_s);
}

TEST_F(CasellaTestoTest, ADroppedCharacterLeavesTheSelectedText)
{
    pronta();
    testo.setText(u"12"_s);
    testo.selectAll();
    testo.KeyPress.collega(&soloCifre);
    QTest::keyClick(&testo, Qt::Key_A);
    EXPECT_EQ(testo.Text(), u"12"_s);
    QTest::keyClick(&testo, Qt::Key_5);
    EXPECT_EQ(testo.Text(), u"5"_s);
}

TEST_F(CasellaTestoTest, KeysThatTypeNoCharacterDoNotReachTheHandler)
{
    pronta();
    int volte = 0;
    testo.KeyPress.collega([&](int &) { ++volte; });
    for (const Qt::Key tasto : {Qt::Key_Left, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Shift})
        QTest::keyClick(&testo, tasto);
    QTest::keyClick(&testo, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(volte, 0);
}

TEST_F(CasellaTestoTest, CharactersTypedWithAltGrAreTypedCharacters)
{
    pronta();
    testo.clear();
    int visto = 0;
    testo.KeyPress.collega([&](int &tasto) { visto = tasto; });
    QKeyEvent chiocciola(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier,
                         u"@"_s);
    QApplication::sendEvent(&testo, &chiocciola);
    EXPECT_EQ(visto, '@');
    EXPECT_EQ(testo.Text(), u"@"_s);
}

TEST_F(CasellaTestoTest, PastedTextIsNotFiltered)
{
    pronta();
    int volte = 0;
    testo.KeyPress.collega([&](int &tasto) {
        ++volte;
        soloCifre(tasto);
    });
    testo.clear();
    modifiche.clear();
    QApplication::clipboard()->setText(u"abc"_s);
    QTest::keySequence(&testo, QKeySequence::Paste);
    EXPECT_EQ(testo.Text(), u"abc"_s);
    EXPECT_EQ(volte, 0);
    EXPECT_EQ(modifiche, QStringList{u"abc"_s});
}

TEST_F(CasellaTestoTest, ALineBreakBecomesABlankHoweverItIsEntered)
{
    pronta();
    const QString conRotture = u"a\r\nb\nc\rd\u2028e\u2029f\u0085g\vh\fi"_s;
    const QString senza = u"a b c d e f g h i"_s;
    const std::pair<const char *, std::function<void()>> strade[] = {
        {"pasted by key",
         [&] {
             QApplication::clipboard()->setText(conRotture);
             QTest::keySequence(&testo, QKeySequence::Paste);
         }},
        {"pasted from the menu",
         [&] {
             QApplication::clipboard()->setText(conRotture);
             testo.paste();
         }},
        {"dropped",
         [&] {
             QMimeData dati;
             dati.setText(conRotture);
             QDragEnterEvent entra({2, 2}, Qt::CopyAction, &dati, Qt::LeftButton, {});
             QApplication::sendEvent(&testo, &entra);
             QDropEvent evento({2, 2}, Qt::CopyAction, &dati, Qt::LeftButton, {});
             QApplication::sendEvent(&testo, &evento);
         }},
        {"composed",
         [&] {
             QInputMethodEvent composto;
             composto.setCommitString(conRotture);
             QApplication::sendEvent(&testo, &composto);
         }},
        {"by code", [&] { testo.setText(conRotture); }},
        {"in its middle",
         [&] {
             testo.setText(u"ai"_s);
             testo.setCursorPosition(1);
             testo.insert(u"\nb\nc\nd\ne\nf\ng\nh\n"_s);
         }},
    };
    for (const auto &[nome, strada] : strade) {
        SCOPED_TRACE(nome);
        testo.clear();
        modifiche.clear();
        strada();
        EXPECT_EQ(testo.Text(), senza);
        for (const QString &visto : modifiche)
            EXPECT_FALSE(visto.contains(u'\n')) << "a handler has seen the line break";
    }
}

TEST_F(CasellaTestoTest, ACharacterComposedByAnInputMethodIsFilteredToo)
{
    pronta();
    testo.KeyPress.collega(&soloCifre);
    testo.clear();
    QInputMethodEvent composto;
    composto.setCommitString(u"à3"_s);
    QApplication::sendEvent(&testo, &composto);
    EXPECT_EQ(testo.Text(), u"3"_s);
}

TEST_F(CasellaTestoTest, TakesNoCharactersWhileItIsReadOnly)
{
    pronta();
    testo.setReadOnly(true);
    QTest::keyClicks(&testo, u"5"_s);
    EXPECT_EQ(testo.Text(), u"1"_s);
}

TEST_F(CasellaTestoTest, LosesTheFocusByTheTabKey)
{
    pronta();
    QTest::keyClick(&testo, Qt::Key_Tab);
    EXPECT_TRUE(altro.hasFocus());
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, LosesTheFocusByAClickOnAnotherControl)
{
    pronta();
    QTest::mouseClick(&altro, Qt::LeftButton);
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, LosesTheFocusByCode)
{
    pronta();
    altro.SetFocus();
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, LosesTheFocusToAnotherWindowOfTheProgramExactlyOnce)
{
    pronta();
    FinestraDiProva altra(u"frmAltra"_s);
    CasellaTesto suo(u"txtSuo"_s, &altra);
    altra.mostraAttiva();
    suo.SetFocus();
    EXPECT_EQ(lasciata, 1);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, LosesTheFocusToAnotherWindowThatHasNoControlForIt)
{
    pronta();
    FinestraDiProva altra(u"frmAltra"_s);
    altra.mostraAttiva();
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, KeepsTheFocusWhenAMessageBoxComesToTheFront)
{
    pronta();
    mostraMessaggio();
    EXPECT_TRUE(testo.hasFocus());
    EXPECT_EQ(lasciata, 0);
}

TEST_F(CasellaTestoTest, KeepsTheFocusWhenAnotherProgramComesToTheFront)
{
    pronta();
    const AltroProgramma programma;
    ASSERT_FALSE(testo.hasFocus());
    EXPECT_EQ(lasciata, 0);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_TRUE(testo.hasFocus());
    EXPECT_EQ(lasciata, 0);
}

TEST_F(CasellaTestoTest, LosesTheFocusWhenTheUserReturnsFromAnotherProgramToAnotherWindow)
{
    FinestraDiProva altra(u"frmAltra"_s);
    CasellaTesto suo(u"txtSuo"_s, &altra);
    altra.mostraAttiva();
    suo.SetFocus();
    pronta();
    const AltroProgramma programma;
    ASSERT_FALSE(testo.hasFocus());
    altra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&altra));
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, LosesTheFocusWhenAnotherControlGetsItAfterAMessageBox)
{
    pronta();
    mostraMessaggio();
    altro.SetFocus();
    EXPECT_EQ(lasciata, 1);
}

TEST_F(CasellaTestoTest, ItsMenuDoesNotTakeTheFocusAway)
{
    pronta();
    std::unique_ptr<QMenu> menu(testo.createStandardContextMenu());
    menu->popup(testo.mapToGlobal(QPoint(5, 5)));
    ASSERT_TRUE(attendi([&] { return menu->isVisible(); }));
    menu->close();
    EXPECT_EQ(lasciata, 0);
}

TEST_F(CasellaTestoTest, ItsHandlerMayShowAMessageAndTakeTheFocusBack)
{
    pronta();
    int messaggi = 0;
    lasciando = [&] {
        const ManoSuiMessaggi mano(premiOK);
        messaggio(u"Devi impostare un numero di porta!"_s);
        ++messaggi;
        testo.SetFocus();
    };
    QTest::keyClick(&testo, Qt::Key_Tab);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_EQ(messaggi, 1);
    EXPECT_EQ(lasciata, 1);
    EXPECT_TRUE(testo.hasFocus());
    QTest::keyClicks(&testo, u"5"_s);
    EXPECT_TRUE(testo.Text().contains(u'5'));
}

TEST_F(CasellaTestoTest, AClickOnAButtonIsCompletedEvenIfAMessageBoxComesBetween)
{
    pronta();
    lasciando = [&] {
        const ManoSuiMessaggi mano(premiOK);
        messaggio(u"Devi impostare un numero di porta!"_s);
        testo.SetFocus();
    };
    int click = 0;
    pulsante.Click.collega([&] {
        ++click;
        EXPECT_EQ(lasciata, 1) << "the focus must move before the click";
    });
    QTest::mouseClick(&pulsante, Qt::LeftButton);
    finestra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    EXPECT_EQ(click, 1);
    EXPECT_EQ(lasciata, 1);
    EXPECT_TRUE(testo.hasFocus());
    EXPECT_FALSE(pulsante.isDown());
}

TEST_F(CasellaTestoTest, EnterOnTheDefaultButtonClicksItAndDoesNotMoveTheFocus)
{
    pronta();
    int click = 0;
    pulsante.Click.collega([&] { ++click; });
    finestra.setPredefinito(&pulsante);
    QTest::keyClick(&testo, Qt::Key_Return);
    QTest::keyClick(&testo, Qt::Key_Enter);
    EXPECT_EQ(click, 2);
    EXPECT_EQ(lasciata, 0);
    EXPECT_TRUE(testo.hasFocus());
}

TEST_F(CasellaTestoTest, EscapeClicksTheCancelButton)
{
    pronta();
    int click = 0;
    pulsante.Click.collega([&] { ++click; });
    finestra.setAnnulla(&pulsante);
    QTest::keyClick(&testo, Qt::Key_Escape);
    EXPECT_EQ(click, 1);
    EXPECT_EQ(lasciata, 0);
}

TEST_F(CasellaTestoTest, AClickInItRaisesClick)
{
    pronta();
    int click = 0;
    testo.Click.collega([&] { ++click; });
    QTest::mouseClick(&testo, Qt::LeftButton);
    EXPECT_EQ(click, 1);
}
