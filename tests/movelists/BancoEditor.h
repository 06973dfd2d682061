// The editor on a bench: what it needs of others is stood in for, and notes what it was asked.
#pragma once

#include "movelists/frmEditor.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

#include <QFileDialog>
#include <QTest>
#include <optional>

// The console as the editor needs it: a place on the screen, and the texts of panel 3.
class ConsoleFinta
{
public:
    ConsoleFinta();

    // Shows nothing. Logical pixels on the screen.
    void metti(int x, int y, int larghezza);
    // Writes down what the run of this editor says and how it stands.
    void ascolta(frmEditor &editor, PortaFinta *porta = nullptr);

    Finestra finestra{u"frmConsole"_s, u"Console"_s};

    // What panel 3 was to show, and the timer's interval at that moment.
    QStringList pannello;
    QList<int> attese;
    // Cuts the wait after each line short once it has been noted.
    bool accelera = true;
    std::function<void()> dopo;
    int camere = 0;

    // How the run stood each time it asked whether the port is open. Every tick does that first: so
    // this is what the tick before has left.
    struct Istante
    {
        int riga;
        int attesa;
        QString contatore;
        QString ritorno;
        bool operator==(const Istante &) const = default;
    };
    QList<Istante> istanti;

private:
    void nota(frmEditor &editor, const QString &testo);
};

// While it lives, file dialogs are answered: with a name typed and Enter, or by cancelling.
class RispondiFile : public QObject
{
    Q_OBJECT

public:
    explicit RispondiFile(std::optional<QString> nome);

    int visti = 0;
    QStringList filtri;
    QString titolo;

private:
    QTimer m_timer;
    bool m_dentro = false;
};

class Banco
{
public:
    Banco();

    // Shows the window, active.
    void mostra();
    void riempi(const QStringList &righe);
    QStringList righe() const;
    // A click of the mouse on a control, through the window.
    void clicca(QWidget &controllo, std::optional<QPoint> dove = {});
    // Two presses so close together that the second one comes as a double click.
    void cliccaDueVolte(QWidget &controllo, std::optional<QPoint> dove = {},
                        Qt::MouseButton pulsante = Qt::LeftButton);
    void muovi(QWidget &controllo, std::optional<QPoint> dove = {});
    // Where a row of the list lies, in its window.
    QPoint posto(int riga) const;
    // Runs the list that is there to its end.
    void corri();
    void aspettaFine();
    QList<QByteArray> mandati() const;

    CartellaDiProva cartella;
    SerialeFinto seriale;
    ConsoleFinta console;
    frmEditor editor{console.finestra, seriale.COM, cartella.percorso()};
    // The run, button by button.
    Temporizzatore &timer = editor.tmrEseguiMosse;
    Elenco &lista = editor.lstMosse;
};
