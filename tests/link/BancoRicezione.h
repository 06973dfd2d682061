// The receive engine on a line without a system, in a folder of its own.
#pragma once

#include "tests/support/Attesa.h"
#include "tests/link/BancoLink.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

// Connected from the start: the port is open, the receive timer runs.
class BancoRicezione
{
public:
    BancoRicezione() : BancoRicezione(std::make_unique<PortaFinta>()) {}

    // Lets the bytes come and the engine work until it has taken them all.
    [[nodiscard]] bool arriva(const QByteArray &byte)
    {
        porta.arriva(byte);
        return presi();
    }
    // The same one byte after the other, each one met by a waiting engine.
    [[nodiscard]] bool arrivaUnoAlla(const QByteArray &byte)
    {
        for (const char uno : byte) {
            if (!arriva(QByteArray(1, uno)))
                return false;
        }
        return true;
    }
    [[nodiscard]] bool presi()
    {
        const bool tutti = aspetta([&] { return porta.inArrivo() == 0; });
        gira(3);
        return tutti;
    }
    // Until all telegrams are cut off and nothing is left.
    [[nodiscard]] bool digeriti()
    {
        return aspetta(
            [&] { return porta.inArrivo() == 0 && tmrElabInput().accumulatore.vuoto(); });
    }
    [[nodiscard]] bool digerisci(const QByteArray &byte)
    {
        porta.arriva(byte);
        return digeriti();
    }

    QString pannello(int numero) const { return banco.BarraStato.Panels(numero); }
    TemporizzatoreIngresso &tmrElabInput() { return banco.tmrElabInput; }
    Accumulatore &accumulatore() { return banco.tmrElabInput.accumulatore; }

private:
    explicit BancoRicezione(std::unique_ptr<PortaFinta> nuova)
        : porta(*nuova),
          banco(std::move(nuova), cartella.percorso()),
          motore(banco.COM, banco.tmrElabInput, banco.telemetria())
    {
        motore.ascoltaVideo(&video);
        motore.ascoltaFile(&file);
        motore.ascoltaTelemetria(&telemetria);
        banco.COM.setPortOpen(true);
        banco.tmrElabInput.setEnabled(true);
    }

public:
    CartellaDiProva cartella;
    VideoFinto video;
    FileFinto file;
    TelemetriaFinta telemetria;
    PortaFinta &porta;
    Banco banco;
    MotoreRicezione motore;
};
