// The life of a connection: opening the port, waiting for the robot, keeping the line alive,
// ending.
#pragma once

#include "controls/Barre.h"
#include "link/ComandiTessaro.h"
#include "link/MotoreRicezione.h"
#include "link/frmImpostaPorta.h"
#include "shell/frmSchermataIniziale.h"

// The controls of the console that the session reads and sets.
struct ControlliSessione
{
    BarraDiStato &BarraStato;
    BarraDiPulsanti &BarraPulsanti;
    BarraDiCaricamento &BarraCaricamento;
    Temporizzatore &tmrChiusuraAutomatica;
    Temporizzatore &tmrControllaConn;
    Temporizzatore &tmrSensori;
    TemporizzatoreIngresso &tmrElabInput;
};

// What the session needs of the windows above it.
class FinestreSessione
{
public:
    virtual ~FinestreSessione() = default;
    // Unloads the windows that live from the connection, where they are visible.
    virtual void scaricaCamera() = 0;
    virtual void scaricaEsploraFile() = 0;
    virtual bool vigilioAvviato() const = 0;
    virtual void stoppaVigilio() = 0;
    virtual void RidaiFuoco() = 0;
    virtual void BarraPulsanti_ButtonClick(PulsanteBarra &Button) = 0;
};

class Sessione : public EsitoVideo
{
public:
    // Where the connection stands.
    enum class Stato {
        Scollegata,
        // An attempt is under way, from its first step until it has succeeded or failed.
        InTentativo,
        Collegata,
        // Connected, but the robot has been silent for a while.
        InRicerca,
    };

    Sessione(ControlloSeriale &COM, const ControlliSessione &controlli,
             const ControlliTelemetria &telemetria, MotoreRicezione &motore,
             frmSchermataIniziale &splash, frmImpostaPorta &impostaPorta,
             FinestreSessione &finestre);
    ~Sessione() override;
    Q_DISABLE_COPY_MOVE(Sessione)

    Stato stato() const { return m_stato; }
    // A connection stands and its port is open. An attempt on a port that could not be opened is
    // carried on as a success, but it has connected nothing.
    bool collegato() const
    {
        return (m_stato == Stato::Collegata || m_stato == Stato::InRicerca) && COM.PortOpen();
    }
    bool staTentando() const { return m_stato == Stato::InTentativo; }

    // The whole connection attempt; returns when it has succeeded or failed, timers and clicks
    // being served meanwhile. Passes over errors, statement by statement. True if the robot is
    // connected now. There is one attempt at a time: whoever asks during it is refused. Over a
    // connection that stands nothing happens; one without a port is ended before the attempt.
    bool Collega();
    // The orderly disconnection; refused during an attempt. Passes over errors.
    void Scollega();
    // Waits, up to 100000 rounds of the pump, until the robot reacts to the command just sent, and
    // shows the text in panel 3, or "Nessuna risposta."; nothing where the port is closed.
    void MostraInvio(const QString &testo, const Abbandono &abbandono = {}) override;
    void mostraMessaggio(const QString &testo) override;

private:
    // A connection, from the start of its attempt to its end.
    using Turno = int;
    enum class Sondaggio { Sensori, StatoA, StatoB };

    // The one place where the state changes. False, and nothing changes, if that step makes no
    // sense in the present state.
    bool passa(Stato nuovo);
    // Whether that connection still stands. A handler that waits may come back to none, or to
    // another one.
    bool dura(Turno turno) const;
    // Sends a poll. The first poll on a closed port reports it, for the whole attempt.
    void sonda(Sondaggio quale);

    // Sets the port from the file "Porta COM" and opens it where it is closed. A missing file asks
    // the user; any other failure is shown to him.
    void ApriPortaSalvata();
    void ChiediPorta();
    bool aspettaRobot();
    void connesso();
    void nonRiuscito();

    void tmrChiusuraAutomatica_Timer();
    void tmrControllaConn_Timer();
    void tmrSensori_Timer();

    ControlloSeriale &COM;
    ControlliSessione c;
    ControlliTelemetria t;
    MotoreRicezione &m_motore;
    frmSchermataIniziale &m_splash;
    frmImpostaPorta &m_impostaPorta;
    FinestreSessione &m_finestre;

    Stato m_stato = Stato::Scollegata;
    Turno m_turno = 0;
    bool m_portaChiusaRiferita = false;
    bool m_sollecitato = false;
    bool m_mancato = false;
    qint16 UltimoConteggio = 0;
};
