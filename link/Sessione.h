// The connection: opening the port, waiting for the robot, keeping the line alive, disconnecting.
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

// What the session needs from the windows of higher folders.
class FinestreSessione
{
public:
    virtual ~FinestreSessione() = default;
    // These two unload a window that needs the connection, if it is visible.
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
    enum class Stato {
        Scollegata,
        // A connection attempt is running.
        InTentativo,
        Collegata,
        // Connected, but the robot has sent nothing for a while.
        InRicerca,
    };

    Sessione(ControlloSeriale &COM, const ControlliSessione &controlli,
             const ControlliTelemetria &telemetria, MotoreRicezione &motore,
             frmSchermataIniziale &splash, frmImpostaPorta &impostaPorta,
             FinestreSessione &finestre);
    ~Sessione() override;
    Q_DISABLE_COPY_MOVE(Sessione)

    Stato stato() const { return m_stato; }
    // True if connected and the port is open. An attempt whose port could not be opened ends as
    // Collegata as well, until the keep-alive notices it; it does not count here.
    bool collegato() const
    {
        return (m_stato == Stato::Collegata || m_stato == Stato::InRicerca) && COM.PortOpen();
    }
    bool staTentando() const { return m_stato == Stato::InTentativo; }

    // Makes a connection attempt and returns collegato() after it has succeeded or failed; timers
    // and clicks are handled meanwhile. Ignores errors, statement by statement. Does nothing during
    // another attempt or if connected; a connection without a port is ended first.
    bool Collega();
    // Disconnects; does nothing during an attempt. Ignores errors.
    void Scollega();
    // Waits until the number of bytes at the port changes, which means that the robot has reacted
    // to the last command, and shows the text in panel 3. After as many rounds of the pump as
    // BarraCaricamento counts (100000, about 4 s), shows "Nessuna risposta.". Does nothing if the
    // port is closed.
    void MostraInvio(const QString &testo, const Abbandono &abbandono = {}) override;
    void mostraMessaggio(const QString &testo) override;

private:
    // The number of a connection, counted from the start of its attempt.
    using Turno = int;
    enum class Sondaggio { Sensori, StatoA, StatoB };

    // The only place where the state changes. Returns false and changes nothing if the step is not
    // allowed in the present state.
    bool passa(Stato nuovo);
    // True if this connection still exists. While a handler waits, it may end, and another one may
    // begin.
    bool dura(Turno turno) const;
    // Sends a request. A closed port is reported to the user once for each connection.
    void sonda(Sondaggio quale);

    // Sets the number of the port from the file "Porta COM" (docs/formats.md) and opens the port if
    // it is closed. If the file is missing, asks the user for the number; shows any other error.
    void ApriPortaSalvata();
    // Asks the user for the number of the port and writes the file.
    void ChiediPorta();
    // True when the robot has sent two bytes, or if the port is closed; false if the time is over
    // or the user gives up.
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
