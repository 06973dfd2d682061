// The life of a connection: opening the port, waiting for the robot, keeping the line alive,
// ending.
#pragma once

#include "Barre.h"
#include "ComandiTessaro.h"
#include "MotoreRicezione.h"
#include "frmImpostaPorta.h"
#include "frmSchermataIniziale.h"

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
    Sessione(ControlloSeriale &COM, const ControlliSessione &controlli,
             const ControlliTelemetria &telemetria, MotoreRicezione &motore,
             frmSchermataIniziale &splash, frmImpostaPorta &impostaPorta,
             FinestreSessione &finestre);

    // The whole connection attempt; returns when it has succeeded or failed, timers and clicks
    // being served meanwhile. Passes over errors, statement by statement.
    void Collega();
    // The orderly disconnection. Passes over errors.
    void Scollega();
    // Waits, up to 100000 rounds of the pump, until the robot reacts to the command just sent, and
    // shows the text in panel 3, or "Nessuna risposta."; nothing where the port is closed.
    void MostraInvio(const QString &testo, const Abbandono &abbandono = {}) override;
    void mostraMessaggio(const QString &testo) override;

private:
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

    bool m_sollecitato = false;
    bool m_mancato = false;
    qint16 UltimoConteggio = 0;
};
