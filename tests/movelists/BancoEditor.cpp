#include "tests/movelists/BancoEditor.h"

#include <QLineEdit>
#include <gtest/gtest.h>
#include <utility>

ConsoleFinta::ConsoleFinta()
{
    metti(100, 200, 300);
}

void ConsoleFinta::metti(int x, int y, int larghezza)
{
    finestra.setGeometry(x, y, larghezza, 400);
}

void ConsoleFinta::ascolta(frmEditor &editor, PortaFinta *porta)
{
    const auto annota = [this, &editor](const QString &testo) { nota(editor, testo); };
    editor.corsa.Messaggio.collega(annota);
    editor.corsa.Inviato.collega(annota);
    editor.corsa.CameraChiesta.collega([this] { ++camere; });
    if (!porta)
        return;
    porta->chiesta = [this, &editor] {
        istanti.append({editor.lstMosse.ListIndex(), editor.tmrEseguiMosse.Interval(),
                        editor.tmrEseguiMosse.Tag(), editor.mnuInsRipeti.Tag()});
    };
}

void ConsoleFinta::nota(frmEditor &editor, const QString &testo)
{
    pannello += testo;
    attese += editor.tmrEseguiMosse.Interval();
    if (accelera && editor.tmrEseguiMosse.Interval() > 1)
        editor.tmrEseguiMosse.setInterval(1);
    if (dopo)
        dopo();
}

RispondiFile::RispondiFile(std::optional<QString> nome)
{
    connect(&m_timer, &QTimer::timeout, this, [this, nome = std::move(nome)] {
        auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (m_dentro || !dialogo || !dialogo->isVisible())
            return;
        m_dentro = true;
        ++visti;
        filtri = dialogo->nameFilters();
        titolo = dialogo->windowTitle();
        auto *campo = dialogo->findChild<QLineEdit *>(u"fileNameEdit"_s);
        if (nome && campo) {
            campo->setText(*nome);
            QTest::keyClick(campo, Qt::Key_Return);
        } else {
            dialogo->reject();
        }
        m_dentro = false;
    });
    m_timer.start(1);
}

Banco::Banco()
{
    console.ascolta(editor, &seriale.porta);
}

void Banco::mostra()
{
    editor.Mostra();
    editor.activateWindow();
    EXPECT_TRUE(aspetta([this] { return editor.isActiveWindow(); }));
}

void Banco::riempi(const QStringList &righe)
{
    for (const QString &riga : righe)
        lista.AddItem(riga);
}

QStringList Banco::righe() const
{
    QStringList righe;
    for (int i = 0; i < lista.ListCount(); ++i)
        righe += lista.List(i);
    return righe;
}

void Banco::clicca(QWidget &controllo, std::optional<QPoint> dove)
{
    const QPoint punto = controllo.mapTo(&editor, dove.value_or(controllo.rect().center()));
    QTest::mousePress(editor.windowHandle(), Qt::LeftButton, {}, punto);
    QTest::mouseRelease(editor.windowHandle(), Qt::LeftButton, {}, punto);
}

void Banco::cliccaDueVolte(QWidget &controllo, std::optional<QPoint> dove, Qt::MouseButton pulsante)
{
    // Through the window, as the system gives it: the focus goes along.
    QTest::mouseDClick(editor.windowHandle(), pulsante, {},
                       controllo.mapTo(&editor, dove.value_or(controllo.rect().center())));
}

void Banco::muovi(QWidget &controllo, std::optional<QPoint> dove)
{
    QTest::mouseMove(editor.windowHandle(),
                     controllo.mapTo(&editor, dove.value_or(controllo.rect().center())));
    gira(5);
}

QPoint Banco::posto(int riga) const
{
    return lista.viewport()->mapTo(&editor, lista.visualItemRect(lista.item(riga)).center());
}

void Banco::corri()
{
    if (!seriale.COM.PortOpen())
        seriale.apri();
    editor.pulEsegui.click();
    EXPECT_TRUE(timer.Enabled());
    aspettaFine();
}

void Banco::aspettaFine()
{
    EXPECT_TRUE(aspetta([this] { return !timer.Enabled(); }));
}

QList<QByteArray> Banco::mandati() const
{
    // Every command of the tests is three writes of one byte.
    QList<QByteArray> comandi;
    const QByteArray tutti = seriale.porta.scritti();
    for (qsizetype i = 0; i < tutti.size(); i += 3)
        comandi += tutti.sliced(i, qMin<qsizetype>(3, tutti.size() - i));
    return comandi;
}
