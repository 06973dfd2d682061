// The run of a list: order, waits, loops, stops, and what the user does meanwhile.
#include "tests/movelists/BancoEditor.h"
#include "tests/support/ProgrammaDiProva.h"

#include <gmock/gmock.h>

namespace {

using Istante = ConsoleFinta::Istante;

class EsecuzioneTest : public testing::Test, protected Banco
{
protected:
    EsecuzioneTest() { mostra(); }

    // Runs a list to its end and gives what the robot was sent.
    QList<QByteArray> corsa(const QStringList &righe)
    {
        riempi(righe);
        corri();
        return mandati();
    }
    void avvia(const QStringList &righe)
    {
        riempi(righe);
        seriale.apri();
        clicca(editor.pulEsegui);
    }
    // Waits until so many lines have told of themselves.
    void aspettaRighe(qsizetype quante)
    {
        EXPECT_TRUE(aspetta([&] { return console.pannello.size() >= quante; }));
    }

    const QByteArray foto = b({19, 3, 1});
    const QByteArray fermo = b({19, 65, 0});
    const QByteArray piano = b({19, 65, 1});
};

} // namespace

TEST_F(EsecuzioneTest, EveryLineIsSentInItsOrderAndToldOf)
{
    EXPECT_EQ(corsa({u"Avanti piano"_s, u"Foto"_s, u"Stop"_s}),
              (QList<QByteArray>{piano, foto, fermo}));
    EXPECT_EQ(console.pannello, (QStringList{u"Comando 1 ricevuto!"_s, u"Comando 2 ricevuto!"_s,
                                             u"Comando 3 ricevuto!"_s}));
    EXPECT_EQ(console.attese, (QList<int>{1600, 1600, 1600}));
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
    EXPECT_EQ(lista.ListIndex(), 2);
    EXPECT_EQ(editor.pulEsegui.Tag(), u"2"_s);
}

TEST_F(EsecuzioneTest, AStartSelectsNothingAndWaitsForOneMillisecond)
{
    riempi({u"Foto"_s, u"Stop"_s});
    lista.setListIndex(1);
    seriale.apri();
    editor.pulEsegui.click();
    EXPECT_EQ(lista.ListIndex(), -1);
    EXPECT_EQ(timer.Interval(), 1);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"STOP"_s);
    aspettaFine();
    EXPECT_EQ(mandati(), (QList<QByteArray>{foto, fermo}));
}

TEST_F(EsecuzioneTest, AnEmptyListDoesNotStart)
{
    seriale.apri();
    clicca(editor.pulEsegui);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EsecuzioneTest, WithoutARobotNothingStarts)
{
    const RispondiMessaggi messaggi;
    riempi({u"Foto"_s});
    clicca(editor.pulEsegui);
    ASSERT_EQ(messaggi.testi(), QStringList{u"Il robot non è collegato"_s});
    EXPECT_EQ(messaggi.visti()[0].icona, QMessageBox::Information);
    EXPECT_EQ(messaggi.visti()[0].titolo, u"Lumbra"_s);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EsecuzioneTest, EnterStartsAndStops)
{
    console.accelera = false;
    riempi({u"Pausa 60000"_s, u"Foto"_s});
    seriale.apri();
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_TRUE(timer.Enabled());
    aspettaRighe(1);
    QTest::keyClick(&lista, Qt::Key_Return);
    EXPECT_FALSE(timer.Enabled());
}

TEST_F(EsecuzioneTest, TheLastLineHasItsWaitBeforeTheRunEnds)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s});
    aspettaRighe(1);
    gira(20);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(timer.Interval(), 60000);
    timer.setInterval(1);
    aspettaFine();
    EXPECT_EQ(console.pannello.size(), 1);
    EXPECT_TRUE(seriale.porta.scritti().isEmpty());
}

TEST_F(EsecuzioneTest, APauseTellsItsTime)
{
    corsa({u"Foto"_s, u"Foto"_s, u"Foto"_s, u"Foto"_s, u"Pausa 1000"_s});
    EXPECT_EQ(console.pannello.last(), u"Comando 5: pausa di 1000 millisecondi"_s);
    EXPECT_EQ(console.attese.last(), 1000);
}

TEST_F(EsecuzioneTest, AWaitThatTheTimerRefusesIsTheDefault)
{
    corsa({u"Pausa 65535"_s, u"Pausa 65536"_s, u"Pausa 60000000"_s, u"Pausa -1"_s,
           u"Pausa 99999999999"_s, u"Testa su 41"_s});
    EXPECT_EQ(console.attese, (QList<int>{65535, 1600, 1600, 1600, 1600, 1600}));
    EXPECT_EQ(console.pannello[1], u"Comando 2: pausa di 1600 millisecondi"_s);
    EXPECT_EQ(console.pannello[2], u"Comando 3: pausa di 1600 millisecondi"_s);
    EXPECT_EQ(console.pannello[4], u"Comando 5: pausa di 1600 millisecondi"_s);
}

TEST_F(EsecuzioneTest, EachKindOfLineHasItsWait)
{
    corsa({u"Testa su 1"_s, u"Testa giu 3"_s, u"Mex 1 play"_s, u"Mex 1 registra"_s,
           u"Testa su 82"_s, u"Ciao"_s});
    EXPECT_EQ(console.attese, (QList<int>{1500, 2400, 500, 16000, 64, 1600}));
}

TEST_F(EsecuzioneTest, AHeadLedIsSwitchedWithoutAWord)
{
    const auto mandate = corsa({u"Testa LED Vs on"_s, u"Testa LED tutti off"_s, u"Pausa 5"_s});
    EXPECT_EQ(mandate.first(), b({19, 37, 8}));
    EXPECT_EQ(mandate.size(), 9);
    EXPECT_TRUE(console.istanti.contains(Istante{0, 600, u"0"_s, u"-1"_s}));
    EXPECT_TRUE(console.istanti.contains(Istante{1, 1600, u"0"_s, u"-1"_s}));
    EXPECT_EQ(console.pannello, QStringList{u"Comando 3: pausa di 5 millisecondi"_s});
}

TEST_F(EsecuzioneTest, AnUnknownLineSendsNothingAndIsToldOf)
{
    EXPECT_EQ(corsa({u"Ciao"_s, u""_s, u"Stop"_s}), QList<QByteArray>{fermo});
    EXPECT_EQ(console.pannello, (QStringList{u"Comando 1 ricevuto!"_s, u"Comando 2 ricevuto!"_s,
                                             u"Comando 3 ricevuto!"_s}));
}

TEST_F(EsecuzioneTest, AWaitOfZeroStopsTheTicksAndNotTheRun)
{
    avvia({u"Pausa 0"_s, u"Foto"_s});
    aspettaRighe(1);
    gira(500);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(timer.Interval(), 0);
    EXPECT_EQ(editor.pulEsegui.Caption(), u"STOP"_s);
    EXPECT_TRUE(seriale.porta.scritti().isEmpty());
    clicca(editor.pulEsegui);
    EXPECT_FALSE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EsecuzioneTest, AHeadMoveWithoutANumberStopsTheTicks)
{
    avvia({u"Testa su"_s, u"Foto"_s});
    aspettaRighe(1);
    gira(500);
    EXPECT_EQ(mandati(), QList<QByteArray>{b({19, 33, 0})});
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(timer.Interval(), 0);
}

TEST_F(EsecuzioneTest, ALineWhoseNumberDoesNotFitCostsOnlyItself)
{
    EXPECT_EQ(corsa({u"Frase 99999"_s, u"Mex 300 cancella"_s, u"Stop"_s}),
              QList<QByteArray>{fermo});
    EXPECT_EQ(console.pannello.size(), 3);
}

TEST_F(EsecuzioneTest, AFailedWriteDoesNotStopTheRun)
{
    riempi({u"Foto"_s, u"Stop"_s});
    seriale.apri();
    seriale.porta.fallisciAlla(1);
    corri();
    EXPECT_EQ(mandati(), QList<QByteArray>{fermo});
    EXPECT_EQ(console.pannello.size(), 2);
}

TEST_F(EsecuzioneTest, APortThatClosesStopsTheRunSilently)
{
    const RispondiMessaggi messaggi;
    console.dopo = [this] { seriale.COM.setPortOpen(false); };
    EXPECT_EQ(corsa({u"Foto"_s, u"Stop"_s}), QList<QByteArray>{foto});
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EsecuzioneTest, StoppingSendsNothing)
{
    console.accelera = false;
    avvia({u"Avanti piano"_s, u"Stop"_s});
    aspettaRighe(1);
    clicca(editor.pulEsegui);
    gira(50);
    EXPECT_EQ(mandati(), QList<QByteArray>{piano});
}

TEST_F(EsecuzioneTest, TheVideoWindowIsShown)
{
    EXPECT_TRUE(corsa({u"Camera"_s}).isEmpty());
    EXPECT_EQ(console.camere, 1);
    EXPECT_EQ(console.pannello, QStringList{u"Comando 1 ricevuto!"_s});
}

TEST_F(EsecuzioneTest, AProgramIsStartedAndNotWaitedFor)
{
    const QString programma = programmaDiProva(cartella, u"il mio programma.exe"_s);
    cartella.scrivi(u"attendi"_s, "");
    corsa({u"Programma "_s + programma});
    EXPECT_EQ(console.pannello, QStringList{u"Comando 1 ricevuto!"_s});
    EXPECT_FALSE(cartella.contiene(u"esito.txt"_s));
    // Now it may go on.
    QFile::remove(u"attendi"_s);
    EXPECT_TRUE(aspetta([this] { return programmaFinito(cartella); }));
}

TEST_F(EsecuzioneTest, AProgramThatCannotBeStartedSaysNothing)
{
    const RispondiMessaggi messaggi;
    EXPECT_EQ(corsa({u"Programma /non/c'è.exe"_s, u"Programma"_s, u"Stop"_s}),
              QList<QByteArray>{fermo});
    EXPECT_TRUE(messaggi.visti().isEmpty());
    EXPECT_EQ(console.pannello.size(), 3);
}

TEST_F(EsecuzioneTest, ALoopRunsItsBlockOnceMoreThanItSays)
{
    EXPECT_EQ(corsa({u"Foto"_s, u"Stop"_s, u"Avanti piano"_s, u"Ripeti 2 volte"_s}),
              (QList<QByteArray>{foto, fermo, piano, foto, fermo, piano, foto, fermo, piano}));
    EXPECT_EQ(editor.mnuInsRipeti.Tag(), u"-1"_s);
    EXPECT_EQ(timer.Tag(), u"0"_s);
}

TEST_F(EsecuzioneTest, ALoopGoesBackInAHundredMillisecondsAndLeavesInOne)
{
    corsa({u"Pausa 5"_s, u"Ripeti 1 volta"_s, u"Foto"_s});
    const auto indietro = console.istanti.indexOf(Istante{-1, 100, u"201"_s, u"-1"_s});
    const auto fuori = console.istanti.indexOf(Istante{1, 1, u"0"_s, u"1"_s});
    EXPECT_GE(indietro, 0);
    EXPECT_GT(fuori, indietro);
}

TEST_F(EsecuzioneTest, ALoopCountsItsRounds)
{
    corsa({u"Pausa 5"_s, u"Ripeti 3 volte"_s});
    QStringList conteggi;
    for (const Istante &istante : console.istanti) {
        if (conteggi.isEmpty() || conteggi.last() != istante.contatore)
            conteggi += istante.contatore;
    }
    EXPECT_EQ(conteggi, (QStringList{u"0"_s, u"1"_s, u"2"_s, u"201"_s, u"0"_s}));
}

TEST_F(EsecuzioneTest, TwoLoopsAreTwoBlocksOneAfterTheOther)
{
    EXPECT_EQ(corsa({u"Foto"_s, u"Ripeti 1 volta"_s, u"Stop"_s, u"Ripeti 1 volta"_s}),
              (QList<QByteArray>{foto, foto, fermo, fermo}));
}

TEST_F(EsecuzioneTest, ALoopWithoutEndRunsUntilItIsStopped)
{
    avvia({u"Foto"_s, u"Ripeti all'infinito"_s});
    aspettaRighe(5);
    EXPECT_EQ(timer.Tag(), u"0"_s);
    EXPECT_TRUE(timer.Enabled());
    clicca(editor.pulEsegui);
    EXPECT_FALSE(timer.Enabled());
}

TEST_F(EsecuzioneTest, ACountThatDoesNotFitRepeatsWithoutEnd)
{
    avvia({u"Foto"_s, u"Ripeti 300 volte"_s});
    aspettaRighe(3);
    EXPECT_EQ(timer.Tag(), u"0"_s);
    clicca(editor.pulEsegui);
}

TEST_F(EsecuzioneTest, ALoopThatIsStoppedStartsAnew)
{
    console.dopo = [this] {
        if (timer.Tag() != u"2")
            return;
        EXPECT_EQ(editor.mnuInsRipeti.Tag(), u"1"_s);
        editor.pulEsegui.click();
    };
    corsa({u"Stop"_s, u"Ripeti 1 volta"_s, u"Foto"_s, u"Ripeti 5 volte"_s});
    EXPECT_EQ(timer.Tag(), u"0"_s);
    EXPECT_EQ(editor.mnuInsRipeti.Tag(), u"-1"_s);
}

TEST_F(EsecuzioneTest, ALoopWhoseReturnPointWasDeletedGoesOnBehindItself)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s, u"Ripeti 1 volta"_s, u"Foto"_s});
    aspettaRighe(1);
    editor.mnuInsRipeti.setTag(u"9"_s);
    timer.setInterval(1);
    EXPECT_TRUE(aspetta([this] { return lista.ListIndex() == 2; }));
    EXPECT_EQ(mandati(), QList<QByteArray>{foto});
}

TEST_F(EsecuzioneTest, TheMouseCannotMoveTheSelectionOfARun)
{
    console.accelera = false;
    avvia({u"Pausa 1"_s, u"Pausa 60000"_s, u"Foto"_s, u"Stop"_s});
    aspettaRighe(2);
    ASSERT_EQ(lista.ListIndex(), 1);
    QTest::mousePress(editor.windowHandle(), Qt::LeftButton, {}, posto(3));
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_TRUE(editor.pulEsegui.hasFocus());
    QTest::mouseMove(editor.windowHandle(), posto(2));
    gira(20);
    QTest::mouseRelease(editor.windowHandle(), Qt::LeftButton, {}, posto(2));
    EXPECT_EQ(lista.ListIndex(), 1);
    QTest::mouseDClick(editor.windowHandle(), Qt::LeftButton, {}, posto(3));
    EXPECT_EQ(lista.ListIndex(), 1);
    // The second press would have brought the focus back, and the keyboard would move the run.
    EXPECT_TRUE(editor.pulEsegui.hasFocus());
}

TEST_F(EsecuzioneTest, AtRestTheMouseMovesTheSelection)
{
    riempi({u"Foto"_s, u"Stop"_s});
    QTest::mouseClick(editor.windowHandle(), Qt::LeftButton, {}, posto(1));
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_FALSE(editor.pulEsegui.hasFocus());
}

TEST_F(EsecuzioneTest, AClickInARunWhoseLineIsGoneDoesNoHarm)
{
    console.accelera = false;
    avvia({u"Pausa 1"_s, u"Pausa 60000"_s});
    aspettaRighe(2);
    clicca(editor.pulCanc);
    ASSERT_EQ(lista.ListCount(), 1);
    QTest::mouseClick(editor.windowHandle(), Qt::LeftButton, {}, posto(0));
    EXPECT_EQ(lista.ListCount(), 1);
    EXPECT_TRUE(timer.Enabled());
}

TEST_F(EsecuzioneTest, TheArrowKeysMoveTheRun)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s, u"Foto"_s, u"Stop"_s, u"Pausa 60000"_s});
    aspettaRighe(1);
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Down);
    ASSERT_EQ(lista.ListIndex(), 1);
    timer.setInterval(1);
    aspettaRighe(2);
    EXPECT_EQ(mandati(), QList<QByteArray>{fermo});
}

TEST_F(EsecuzioneTest, LinesInsertedIntoARunAreRun)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s, u"Pausa 60000"_s});
    aspettaRighe(1);
    editor.documento.inserisci(u"Foto"_s);
    // The new line is the selected one: the run goes on behind it.
    editor.documento.inserisci(u"Avanti piano"_s);
    lista.setListIndex(0);
    timer.setInterval(1);
    aspettaRighe(2);
    EXPECT_EQ(mandati(), QList<QByteArray>{foto});
}

TEST_F(EsecuzioneTest, MovingLinesDuringARunIsTaken)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s, u"Foto"_s, u"Stop"_s});
    aspettaRighe(1);
    clicca(editor.pulGiu);
    EXPECT_EQ(lista.ListIndex(), 1);
    console.accelera = true;
    timer.setInterval(1);
    aspettaFine();
    EXPECT_EQ(mandati(), QList<QByteArray>{fermo});
}

TEST_F(EsecuzioneTest, ADoublePressInTheRunningListLeavesTheRunAlone)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s, u"Foto"_s, u"Stop"_s});
    aspettaRighe(1);
    const QWidget &vista = *lista.viewport();
    const QPoint sottoLeRighe(vista.width() / 2, vista.height() - 3);
    for (const Qt::MouseButton pulsante : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        for (const QPoint dove : {lista.visualItemRect(lista.item(2)).center(),
                                  lista.visualItemRect(lista.item(0)).center(), sottoLeRighe}) {
            editor.opzInsComandi.setFocus();
            cliccaDueVolte(*lista.viewport(), dove, pulsante);
            EXPECT_EQ(lista.ListIndex(), 0) << pulsante;
            EXPECT_TRUE(editor.pulEsegui.hasFocus()) << pulsante;
            QTest::keyClick(editor.windowHandle(), Qt::Key_Down);
            EXPECT_EQ(lista.ListIndex(), 0) << pulsante;
        }
    }
    EXPECT_TRUE(timer.Enabled());
}

TEST_F(EsecuzioneTest, ADoubleClickInAListAtRestKeepsTheFocusThere)
{
    riempi({u"Foto"_s, u"Stop"_s});
    cliccaDueVolte(*lista.viewport(), lista.visualItemRect(lista.item(1)).center());
    EXPECT_EQ(lista.ListIndex(), 1);
    EXPECT_TRUE(lista.hasFocus());
}

TEST_F(EsecuzioneTest, DeletingAllLinesLeavesTheRunStuckUntilOneComes)
{
    console.accelera = false;
    avvia({u"Pausa 60000"_s});
    aspettaRighe(1);
    clicca(editor.pulCanc);
    ASSERT_EQ(lista.ListCount(), 0);
    timer.setInterval(1);
    gira(2000);
    EXPECT_TRUE(timer.Enabled());
    EXPECT_EQ(editor.pulEsegui.Caption(), u"STOP"_s);
    clicca(editor.pulEsegui);
    EXPECT_TRUE(timer.Enabled());
    editor.documento.inserisci(u"Foto"_s);
    aspettaFine();
    EXPECT_EQ(editor.pulEsegui.Caption(), u"ESEGUI"_s);
}

TEST_F(EsecuzioneTest, AClickOnStopInsideATickEndsTheRun)
{
    console.dopo = [this] { editor.pulEsegui.click(); };
    EXPECT_EQ(corsa({u"Foto"_s, u"Stop"_s}), QList<QByteArray>{foto});
}

TEST_F(EsecuzioneTest, ClosingTheWindowInsideATickEndsTheRun)
{
    console.dopo = [this] { editor.Scarica(); };
    EXPECT_EQ(corsa({u"Foto"_s, u"Stop"_s}), QList<QByteArray>{foto});
    EXPECT_FALSE(editor.Visible());
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST_F(EsecuzioneTest, AHiddenWindowGoesOnRunning)
{
    riempi({u"Foto"_s, u"Stop"_s});
    seriale.apri();
    editor.pulEsegui.click();
    editor.Nascondi();
    aspettaFine();
    EXPECT_EQ(mandati(), (QList<QByteArray>{foto, fermo}));
}

TEST_F(EsecuzioneTest, ABareNameStartsTheProgramInTheProgramsFolder)
{
    programmaDiProva(cartella, u"gioco.exe"_s);
    EXPECT_EQ(corsa({u"Programma gioco.exe"_s, u"Stop"_s}), QList<QByteArray>{fermo});
    EXPECT_TRUE(aspetta([&] { return programmaFinito(cartella); }));
}
