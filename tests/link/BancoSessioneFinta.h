// A session on a line without a system.
#pragma once

#include "tests/link/BancoSessione.h"
#include "tests/support/PortaFinta.h"

// Built before the session that takes the line over.
struct ConPortaFinta
{
    std::unique_ptr<PortaFinta> nuova = std::make_unique<PortaFinta>();
    PortaFinta &porta = *nuova;
};

class BancoSessioneFinta : private ConPortaFinta, public BancoSessione
{
public:
    BancoSessioneFinta() : BancoSessione(std::move(nuova)) {}

    using ConPortaFinta::porta;

    // A robot that answers the opening with two bytes of a telegram, and nothing else.
    void rispondiAllApertura()
    {
        porta.scritto = [this](const QByteArray &) {
            if (porta.scritti().endsWith(b({3, 1, 1})))
                porta.arriva(b({31, 20}));
        };
    }
    // Connected, with an idle engine and nothing written yet; the timers that poll tick only where
    // a test asks for it.
    void collega()
    {
        rispondiAllApertura();
        banco.tmrSensori.setInterval(0);
        banco.tmrControllaConn.setInterval(0);
        sessione.Collega();
        porta.scritto = nullptr;
        static_cast<void>(aspetta([&] { return banco.tmrElabInput.accumulatore.vuoto(); }));
        porta.scritture.clear();
        finestre.registro.clear();
        telemetria.testi.clear();
    }
};
