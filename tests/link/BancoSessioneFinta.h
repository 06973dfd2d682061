// A session on a line in memory.
#pragma once

#include "tests/link/BancoSessione.h"
#include "tests/support/PortaFinta.h"

// A base class, so that the line exists before the session that takes it.
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

    // From now on the robot answers only the opening of a session, with a telegram of two bytes.
    void rispondiAllApertura()
    {
        porta.scritto = [this](const QByteArray &) {
            if (porta.scritti().endsWith(b({3, 1, 1})))
                porta.arriva(b({31, 20}));
        };
    }
    // Connects, and then clears all records. The timers of telemetry and keep-alive do not tick; a
    // test starts them if it needs them.
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
