// The receive engine on a line in memory, in a temporary folder.
#pragma once

#include "tests/link/BancoLink.h"
#include "tests/support/Attesa.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

// The port is open and the receive timer runs from the start.
class BancoRicezione
{
public:
    BancoRicezione() : BancoRicezione(std::make_unique<PortaFinta>()) {}

    // Sends the bytes and waits until the engine has read them all from the port.
    [[nodiscard]] bool arriva(const QByteArray &byte)
    {
        porta.arriva(byte);
        return presi();
    }
    // The same, one byte at a time; the engine waits for each.
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
    // Waits until all telegrams are handled and the accumulator is empty.
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
