// The conversation with the robot's storage: from the request to its last telegram.
#pragma once

#include "link/Ascoltatori.h"
#include "controls/Barre.h"
#include "serial/ControlloSeriale.h"

#include <optional>

class frmEsploraFile;

// One request at a time: a listing or a fetch. The robot answers in the order in which it is asked,
// and opens a channel for each request, which is closed when the request ends or is given up.
class Prelievo : public AscoltatoreFile
{
public:
    enum class Attesa { Niente, Elenco, File };

    // cartella: where fetched files go. The window shows what comes, and its Tag what is awaited.
    Prelievo(ControlloSeriale &COM, BarraDiStato &BarraStato, const QString &cartella,
             frmEsploraFile &finestra);

    // Begins a request; nome is that of the file, without a path. False if one is running: nothing
    // has been done then.
    [[nodiscard]] bool comincia(Attesa attesa, const QString &nome = {});
    // Sends the request that was begun. False if it was given up while the command was telling the
    // user of its failure.
    [[nodiscard]] bool apri(const QByteArray &percorso);
    // Whether a request is running.
    bool inCorso() const;
    // Tells in panel 3 that a file cannot be read.
    void segnalaErrore();
    // Gives up what is running and closes its channel.
    void lascia();
    // The Tag was written from outside: nothing is sent, and from now on this is awaited, on any
    // channel. The next request is free.
    void imposta(Attesa attesa);

    // AscoltatoreFile.
    bool visibile() const override;
    void stato(quint8 k, quint8 x) override;
    void bloccoInArrivo() override;
    void blocco(quint8 k, const QByteArray &contenuto) override;
    void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) override;
    void byteGettati() override;

private:
    enum class Fase {
        Ferma,       // nothing is asked; what is awaited may have stayed after an error, or come
                     // from outside
        Apertura,    // the opening is asked
        Lettura,     // the channel is open, the next entry or the block is asked
        Salvataggio, // the block is being written and shown
    };

    // Whether what comes on that channel is what is awaited.
    bool attesoDa(quint8 k, Attesa attesa) const;
    void attendi(Attesa attesa, Fase fase);
    void aperto(quint8 k);
    // The running request reads that channel.
    void leggi(quint8 k);
    void finito(quint8 k);
    void fallito();
    // False if the request was given up meanwhile.
    bool mostraFoto(const QString &percorso);
    // Nothing is awaited any more, and the window is the user's again; closes the channel, or all
    // of them if it is not known.
    void termina(std::optional<quint8> canale);
    void chiudi(std::optional<quint8> canale);

    ControlloSeriale &COM;
    BarraDiStato &BarraStato;
    QString m_cartella;
    frmEsploraFile &m_finestra;

    Attesa m_attesa = Attesa::Niente;
    Fase m_fase = Fase::Ferma;
    // The channel of the running request, once it is known.
    std::optional<quint8> m_canale;
    // The file's name; null if the Tag was written from outside.
    QString m_nome;
    // Requests are counted: whoever let other events in knows by the number whether it is still
    // his.
    quint64 m_numero = 0;
    // A request was given up before its answer: it may still come, before that of the next one.
    bool m_rispostaDovuta = false;
};
