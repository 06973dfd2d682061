// The conversation with the robot's storage: from the request to its last telegram.
#pragma once

#include "controls/Barre.h"
#include "link/Ascoltatori.h"
#include "serial/ControlloSeriale.h"

#include <optional>

class frmEsploraFile;

// Only one request runs at a time: a listing or a fetch. The robot answers requests in order. It
// opens a channel for each of them, and the channel is closed when the request ends or is given up.
class Prelievo : public AscoltatoreFile
{
public:
    enum class Attesa { Niente, Elenco, File };

    // cartella: the folder for the fetched files. The window shows what arrives.
    Prelievo(ControlloSeriale &COM, BarraDiStato &BarraStato, const QString &cartella,
             frmEsploraFile &finestra);

    // What is awaited from the robot.
    Attesa attesa() const { return m_attesa; }
    // Begins a request. nome: the name of the file to fetch, without a path. Returns false and does
    // nothing if a request is running.
    [[nodiscard]] bool comincia(Attesa attesa, const QString &nome = {});
    // Sends the request that was begun. percorso: at most 255 bytes. Returns false if the request
    // was given up meanwhile, while a box with an error was open.
    [[nodiscard]] bool apri(const QByteArray &percorso);
    // Whether a request is running.
    bool inCorso() const;
    // Shows in panel 3 of the status bar that a file cannot be read.
    void segnalaErrore();
    // Gives up the running request, if there is one, and closes its channel.
    void lascia();
    // For a Tag that is written from outside: from now on attesa is awaited, on any channel.
    // Nothing is sent, a running request is forgotten, and the next one can begin. Does nothing if
    // attesa is awaited already.
    void imposta(Attesa attesa);

    // From AscoltatoreFile.
    bool visibile() const override;
    void stato(quint8 k, quint8 x) override;
    void bloccoInArrivo() override;
    void blocco(quint8 k, const QByteArray &contenuto) override;
    void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) override;
    void byteGettati() override;

private:
    enum class Fase {
        Ferma,       // no request is running; something may still be awaited after an error, or
                     // because the Tag was written from outside
        Apertura,    // the opening of the path was sent
        Lettura,     // the channel is open, the next entry or the block was requested
        Salvataggio, // the block is being written and shown
    };

    // Whether attesa is awaited, and on that channel.
    bool attesoDa(quint8 k, Attesa attesa) const;
    void attendi(Attesa attesa, Fase fase);
    void aperto(quint8 k);
    // The running request uses that channel from now on.
    void leggi(quint8 k);
    void finito(quint8 k);
    void fallito();
    // Returns false if the request was given up meanwhile.
    bool mostraFoto(const QString &percorso);
    // Ends the request: nothing is awaited any more, the window can be used again, and the channel
    // is closed.
    void termina(std::optional<quint8> canale);
    // Closes the channel, or channels 1 to 9 if it is not known.
    void chiudi(std::optional<quint8> canale);

    ControlloSeriale &COM;
    BarraDiStato &BarraStato;
    QString m_cartella;
    frmEsploraFile &m_finestra;

    Attesa m_attesa = Attesa::Niente;
    Fase m_fase = Fase::Ferma;
    // The channel of the running request, as soon as it is known.
    std::optional<quint8> m_canale;
    // The name of the file to fetch; null if the Tag was written from outside.
    QString m_nome;
    // The number of the request. Code that has let other events in compares it, to see whether its
    // request is still running.
    quint64 m_numero = 0;
    // A request was given up before its answer: the answer can still arrive, before that of the
    // next one.
    bool m_rispostaDovuta = false;
};
