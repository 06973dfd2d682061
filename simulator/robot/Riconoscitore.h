#pragma once
#include <QByteArray>
#include <QString>
#include <functional>

inline namespace tessaro_sim {
// One command of the byte tables, as it was recognised.
struct Comando
{
    enum class Tipo {
        ApriSessione,
        Sollecito,
        ChiudiSessione,
        ImpostaVideo,
        PartenzaVideo,
        FermaVideo,
        TestaSu,
        TestaGiu,
        TestaDestra,
        TestaSinistra,
        LedTesta,
        BaseAvanti,
        BaseIndietro,
        BaseDestra,
        BaseSinistra,
        BaseStop,
        Braccio,
        Bacino,
        Pinza,
        Tool,
        LedPosizione,
        ScattaFoto,
        Riproduci,
        MexPlay,
        MexRegistra,
        MexCancella,
        MexStop,
        ProgInterno,
        RichiediSensori,
        RichiediStatoA,
        RichiediStatoB,
        ApriPercorso,
        ChiudiCanale,
        LeggiBlocco,
        LeggiElenco
    };
    Tipo tipo = Tipo::Sollecito;
    int a = 0;            // first argument, in the terms of the command (v, n, c, mask, arm)
    int b = 0;            // second argument (on/off, value)
    QByteArray percorso;  // ApriPercorso only, bytes as they came
    QByteArray byte;      // the whole command on the wire
    QString testo;        // name and arguments, as "BaseAvanti v=1"
    bool previsto = true; // false: the value is none that the tables give
};

// Cuts the console's bytes into commands. A byte that cannot start or continue a command is
// handed on as not understood, and reading goes on with the byte after it.
class Riconoscitore
{
public:
    // Called with each command, and with each byte that was not understood, in the order of the
    // wire.
    std::function<void(const Comando &)> suComando;
    std::function<void(char)> suIgnoto;

    // Bytes cut anywhere; what is incomplete waits for the next call.
    void ricevi(const QByteArray &byte);

private:
    QByteArray m_coda;
};
} // namespace tessaro_sim
