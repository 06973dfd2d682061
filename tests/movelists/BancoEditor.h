// The editor on a bench: what it needs of others is stood in for, and notes what it was asked.
#pragma once

#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"
#include "movelists/frmEditor.h"

#include <QFileDialog>
#include <QTest>
#include <optional>

class ConsoleFinta : public ConsoleEditor
{
public:
    explicit ConsoleFinta(ControlloSeriale &seriale) : m_seriale(seriale) {}

    ControlloSeriale &COM() override;
    Posto posto() const override { return dove; }
    void mostraMessaggio(const QString &testo) override { nota(testo); }
    void MostraInvio(const QString &testo) override { nota(testo); }
    void AggiungiMossa(const QString &riga) override;

    Posto dove{1500, 3000, 4500};
    Elenco *lstMosse = nullptr;
    Temporizzatore *tmrEseguiMosse = nullptr;

    // What stood in panel 3, and the timer's interval at that moment.
    QStringList pannello;
    QList<int> attese;
    // Cuts the wait behind each line short once it has been noted.
    bool accelera = true;
    std::function<void()> dopo;

    // How the run stood at each moment that the editor asked for the port, which every tick does
    // first of all: what the tick before has left.
    struct Istante
    {
        int riga;
        int attesa;
        QString contatore;
        QString ritorno;
        bool operator==(const Istante &) const = default;
    };
    QList<Istante> istanti;
    VoceMenu *mnuInsRipeti = nullptr;

private:
    void nota(const QString &testo);

    ControlloSeriale &m_seriale;
};

class VigilioFinto : public VigilioEditor
{
public:
    struct Riga
    {
        QString file;
        QString condizione;
        bool selezionata = false;
    };

    void mostra() override { ++mostrato; }
    bool avviato() const override { return attivo; }
    void Stoppa() override;
    int ListCount() const override { return static_cast<int>(righe.size()); }
    QString File(int riga) const override { return righe.at(riga).file; }
    QString condizione(int riga) const override { return righe.at(riga).condizione; }
    bool Selected(int riga) const override { return righe.at(riga).selezionata; }
    void setSelected(int riga, bool valore) override { righe[riga].selezionata = valore; }
    void setListIndex(int riga) override { scelta = riga; }
    void lstFile_DblClick() override { dialoghi += scelta; }
    bool deselezionaEseguite() const override { return deseleziona; }

    QList<Riga> righe;
    bool attivo = false;
    bool deseleziona = false;
    int mostrato = 0;
    int fermato = 0;
    int scelta = -1;
    // The row selected at each opening of the condition dialog.
    QList<int> dialoghi;
};

class CameraFinta : public CameraEditor
{
public:
    void mostra() override { ++mostrata; }
    int mostrata = 0;
};

class OrologioFermo : public Orologio
{
public:
    QTime adesso() const override { return ora; }
    QTime ora{12, 0, 0};
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
    ConsoleFinta console{seriale.COM};
    VigilioFinto vigilio;
    CameraFinta camera;
    OrologioFermo orologio;
    frmEditor editor{console, orologio, cartella.percorso()};
    // The run, button by button.
    Temporizzatore &timer = editor.tmrEseguiMosse;
    Elenco &lista = editor.lstMosse;
};
