// A session with its windows, without the console.
#pragma once

#include "tests/link/BancoLink.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/Modali.h"
#include "tests/support/Scritte.h"

#include <QTimer>

// The windows that need the connection; they record the calls.
struct FinestreFinte : FinestreSessione
{
    QStringList registro;
    bool vigilio = false;
    std::function<void(PulsanteBarra &)> premuto;

    void scaricaCamera() override { registro << QStringLiteral("scaricaCamera"); }
    void scaricaEsploraFile() override { registro << QStringLiteral("scaricaEsploraFile"); }
    bool vigilioAvviato() const override { return vigilio; }
    void stoppaVigilio() override { registro << QStringLiteral("stoppaVigilio"); }
    void RidaiFuoco() override { registro << QStringLiteral("RidaiFuoco"); }
    void BarraPulsanti_ButtonClick(PulsanteBarra &pulsante) override
    {
        registro << QStringLiteral("ButtonClick");
        if (premuto)
            premuto(pulsante);
    }
};

// While an object of this class exists, calls a function about every millisecond: what happens
// during a call that waits.
class Durante
{
public:
    explicit Durante(std::function<void()> funzione)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(funzione));
        m_timer.start(1);
    }

private:
    QTimer m_timer;
};

// A session over the given line. The file "Porta COM" contains 1. The button of the toolbar
// connects and disconnects as in the console.
class BancoSessione
{
public:
    explicit BancoSessione(std::unique_ptr<Porta> porta)
        : banco(std::move(porta), cartella.percorso()),
          motore(banco.COM, banco.tmrElabInput, banco.telemetria()),
          sessione(banco.COM, banco.sessione(), banco.telemetria(), motore, splash, impostaPorta,
                   finestre)
    {
        cartella.scrivi(QStringLiteral("Porta COM"), "1\r\n");
        motore.ascoltaTelemetria(&telemetria);
        const auto premi = [this](PulsanteBarra &pulsante) {
            if (pulsante.Image() == 1)
                sessione.Collega();
            else if (pulsante.Image() == 6)
                sessione.Scollega();
        };
        finestre.premuto = premi;
        banco.BarraPulsanti.ButtonClick.collega(premi);
    }

    PulsanteBarra &pulsante() { return banco.BarraPulsanti.Buttons(1); }
    QString pannello(int numero) const { return banco.BarraStato.Panels(numero); }
    bool collegato() const
    {
        return banco.tmrElabInput.Enabled() && banco.tmrSensori.Enabled() &&
               banco.tmrControllaConn.Enabled();
    }
    bool fermo() const
    {
        return !banco.tmrElabInput.Enabled() && !banco.tmrSensori.Enabled() &&
               !banco.tmrControllaConn.Enabled();
    }

    CartellaDiProva cartella;
    RispondiMessaggi messaggi;
    TelemetriaFinta telemetria;
    FinestreFinte finestre;
    frmSchermataIniziale splash;
    frmImpostaPorta impostaPorta;
    Banco banco;
    MotoreRicezione motore;
    Sessione sessione;
};
