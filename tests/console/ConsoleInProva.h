// The console on the screen, the simulated robot on a real line, stand-ins for the other windows.
#pragma once

#include "console/frmPrincipale.h"
#include "simulator/Simulatore.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTest>
#include <QWindow>
#include <optional>

// A window that only shows itself.
class FinestraFinta : public Finestra
{
    Q_OBJECT

public:
    explicit FinestraFinta(const QString &nome) : Finestra(nome, nome) {}
    int caricamenti = 0;

protected:
    void Load() override { ++caricamenti; }
};

// The editor, as far as the console knows it.
class EditorFinto : public Finestra
{
    Q_OBJECT

public:
    EditorFinto();

    CasellaSpunta opzInsComandi{u"opzInsComandi"_s, this, u"Inserisci"_s};
    Elenco lstMosse{u"lstMosse"_s, this};
    ListaMosse documento{lstMosse};
    // What QueryUnload answers.
    bool rifiuta = false;
    int scaricamenti = 0;

    QStringList mosse() const;

protected:
    void QueryUnload(bool &Cancel, Chiusura) override;
};

class ConsoleInProva
{
public:
    // The folder holds "Porta COM" for the robot's line; "prog.dat" says not to connect.
    ConsoleInProva();

    // Shows the window; false where it does not connect though it is asked to.
    void mostra();
    [[nodiscard]] bool mostraCollegata();

    // Whether actions become lines: opens the editor with its box ticked, or closes it.
    void attivaLista(bool attiva);

    // Real events, through the window to the control that lies there; positions in the control,
    // in logical pixels, the middle by default.
    void premi(QWidget &controllo, Qt::MouseButton pulsante = Qt::LeftButton,
               std::optional<QPoint> dove = {});
    void lascia(QWidget &controllo, Qt::MouseButton pulsante = Qt::LeftButton,
                std::optional<QPoint> dove = {});
    void clicca(QWidget &controllo, Qt::MouseButton pulsante = Qt::LeftButton,
                std::optional<QPoint> dove = {});
    // Twice, as fast as a double click is.
    void cliccaDoppio(QWidget &controllo, std::optional<QPoint> dove = {});
    void muovi(QWidget &controllo, std::optional<QPoint> dove = {});
    void premiTasto(Qt::Key tasto);
    void lasciaTasto(Qt::Key tasto);
    void tasto(Qt::Key tasto);
    // Another program comes to the front, and goes again.
    void vaiAltrove();
    void torna();

    // The robot obeys and answers nothing more, and the next wait for its reaction begins at rest.
    void taci();

    // The commands that the robot has understood since the last call, polls left out.
    QList<QByteArray> mandati();
    QByteArray byteMandati() { return mandati().join(); }

    QString pannello(int numero = 3) const { return finestra.BarraStato.Panels(numero); }
    void scriviPannello(const QString &testo) { finestra.BarraStato.setPanels(3, testo); }
    bool fuocoACasa() const { return QApplication::focusWidget() == &finestra.ImgTesta; }

    CartellaDiProva cartella;
    Simulatore robot;
    EditorFinto frmEditor;
    FinestraFinta frmCamera{u"frmCamera"_s};
    FinestraFinta frmProcessor{u"frmProcessor"_s};
    FinestraFinta frmEsploraFile{u"frmEsploraFile"_s};
    FinestraFinta frmImmaginiAcquisite{u"frmImmaginiAcquisite"_s};
    // How many times the program would have ended.
    int fini = 0;
    frmPrincipale finestra;
    QWindow altroProgramma;

private:
    QPoint nellaFinestra(QWidget &controllo, std::optional<QPoint> dove) const;
};
