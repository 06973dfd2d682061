#include "tests/console/ConsoleInProva.h"

#include "serial/PortaAsio.h"
#include "simulator/robot/Memoria.h"

#include <gtest/gtest.h>

EditorFinto::EditorFinto() : Finestra(u"frmEditor"_s, u"Editor"_s)
{
    resize(200, 200);
    lstMosse.setGeometry(0, 30, 200, 170);
}

QStringList EditorFinto::mosse() const
{
    QStringList mosse;
    for (int i = 0; i < lstMosse.ListCount(); ++i)
        mosse << lstMosse.List(i);
    return mosse;
}

void EditorFinto::QueryUnload(bool &Cancel, Chiusura)
{
    ++scaricamenti;
    Cancel = rifiuta;
}

ConsoleInProva::ConsoleInProva()
    : finestra({std::make_unique<PortaAsio>(), cartella.percorso(), [this] { ++fini; }})
{
    cartella.scrivi(u"Porta COM"_s, "1\r\n");
    cartella.scrivi(u"prog.dat"_s, "0;");
    robot.impostaBaud(0);
    robot.robot().memoria().impostaRadice(cartella.percorso());
    EXPECT_TRUE(robot.apri()) << robot.errore().toStdString();
    EXPECT_TRUE(robot.collegaPorta(cartella.percorso(), 1)) << robot.errore().toStdString();
    finestra.impostaFinestre({&frmCamera, &frmEditor, &frmEditor.opzInsComandi,
                              &frmEditor.documento, &frmProcessor, nullptr, &frmEsploraFile,
                              &frmImmaginiAcquisite});
}

void ConsoleInProva::mostra()
{
    finestra.Mostra();
    finestra.activateWindow();
    EXPECT_TRUE(aspetta([this] { return finestra.isActiveWindow(); }));
}

bool ConsoleInProva::mostraCollegata()
{
    cartella.scrivi(u"prog.dat"_s, "1;");
    mostra();
    if (!aspetta([this] { return robot.robot().stato().sessioneAperta; }))
        return false;
    mandati();
    return finestra.COM.PortOpen() && finestra.tmrControllaConn.Enabled();
}

void ConsoleInProva::attivaLista(bool attiva)
{
    frmEditor.opzInsComandi.setValue(attiva ? 1 : 0);
    if (attiva) {
        frmEditor.Mostra();
        EXPECT_TRUE(aspetta([this] { return frmEditor.isActiveWindow(); }));
    } else {
        frmEditor.Nascondi();
    }
    finestra.activateWindow();
    EXPECT_TRUE(aspetta([this] { return finestra.isActiveWindow(); }));
}

QPoint ConsoleInProva::nellaFinestra(QWidget &controllo, std::optional<QPoint> dove) const
{
    return controllo.mapTo(&finestra, dove.value_or(controllo.rect().center()));
}

void ConsoleInProva::premi(QWidget &controllo, Qt::MouseButton pulsante, std::optional<QPoint> dove)
{
    QTest::mousePress(finestra.windowHandle(), pulsante, {}, nellaFinestra(controllo, dove));
}

void ConsoleInProva::lascia(QWidget &controllo, Qt::MouseButton pulsante,
                            std::optional<QPoint> dove)
{
    QTest::mouseRelease(finestra.windowHandle(), pulsante, {}, nellaFinestra(controllo, dove));
}

void ConsoleInProva::clicca(QWidget &controllo, Qt::MouseButton pulsante,
                            std::optional<QPoint> dove)
{
    // The control may move when it is pressed: the mouse does not move along.
    const QPoint punto = nellaFinestra(controllo, dove);
    premi(finestra, pulsante, punto);
    lascia(finestra, pulsante, punto);
}

void ConsoleInProva::cliccaDoppio(QWidget &controllo, std::optional<QPoint> dove)
{
    QTest::mouseDClick(finestra.windowHandle(), Qt::LeftButton, {}, nellaFinestra(controllo, dove));
}

void ConsoleInProva::muovi(QWidget &controllo, std::optional<QPoint> dove)
{
    QTest::mouseMove(finestra.windowHandle(), nellaFinestra(controllo, dove));
}

void ConsoleInProva::premiTasto(Qt::Key tasto)
{
    QTest::keyPress(finestra.windowHandle(), tasto);
}

void ConsoleInProva::lasciaTasto(Qt::Key tasto)
{
    QTest::keyRelease(finestra.windowHandle(), tasto);
}

void ConsoleInProva::tasto(Qt::Key tasto)
{
    premiTasto(tasto);
    lasciaTasto(tasto);
}

void ConsoleInProva::vaiAltrove()
{
    altroProgramma.resize(100, 100);
    altroProgramma.show();
    altroProgramma.requestActivate();
    EXPECT_TRUE(aspetta([this] { return !finestra.isActiveWindow(); }));
}

void ConsoleInProva::torna()
{
    altroProgramma.hide();
    finestra.activateWindow();
    EXPECT_TRUE(aspetta([this] { return finestra.isActiveWindow(); }));
}

void ConsoleInProva::taci()
{
    robot.robot().impostaRisponde(false);
    finestra.tmrControllaConn.setEnabled(false);
    mandati();
    EXPECT_TRUE(aspetta([this] { return robot.inCoda() == 0; }));
    // Nobody else takes bytes now: what the first wait below finds is what the second finds gone,
    // so that it ends at rest, with nothing there.
    const MotoreRicezione::Fermo fermo(finestra.motore);
    finestra.tmrElabInput.setEnabled(false);
    robot.inviaGrezzo(QByteArray(7, '\xFF'));
    EXPECT_TRUE(aspetta([this] { return finestra.COM.InBufferCount() >= 7; }));
    finestra.MostraInvio({});
    finestra.COM.Input();
    finestra.MostraInvio({});
    finestra.tmrElabInput.setEnabled(true);
}

QList<QByteArray> ConsoleInProva::mandati()
{
    // A byte that starts no command goes last: when the robot has noted it, all before it is there.
    const QByteArray segno(1, '\xC8');
    Diario &diario = robot.diario();
    const auto arrivato = [&] {
        return !diario.voci().isEmpty() && diario.nonCapiti().contains(segno);
    };
    finestra.COM.Output(segno);
    EXPECT_TRUE(aspetta(arrivato));
    QList<QByteArray> comandi;
    for (const VoceDiario &voce : diario.voci()) {
        if (voce.tipo == VoceDiario::Tipo::Comando && !voce.testo.startsWith(u"Richiedi"_s))
            comandi << voce.byte;
    }
    diario.svuota();
    return comandi;
}
