// Any bytes for the receive engine, in pieces of any length. The engine must consume all of them,
// and after enough zeros it must understand the next telegram.
#include "base/Pompa.h"
#include "fuzz/SenzaSchermo.h"
#include "tests/link/BancoLink.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

#include <QTemporaryDir>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct BancoFuzz
{
    std::unique_ptr<PortaFinta> nuova = std::make_unique<PortaFinta>();
    PortaFinta &porta = *nuova;
    QTemporaryDir cartella;
    Banco banco{std::move(nuova), cartella.path()};
    MotoreRicezione motore{banco.COM, banco.tmrElabInput, banco.telemetria()};
    VideoFinto video;
    FileFinto file;
    TelemetriaFinta telemetria;

    BancoFuzz()
    {
        motore.ascoltaVideo(&video);
        motore.ascoltaFile(&file);
        motore.ascoltaTelemetria(&telemetria);
        banco.COM.setPortOpen(true);
    }

    // The robot sends, and the timer ticks until the engine has read all bytes.
    void lavora(const QByteArray &byte)
    {
        porta.arriva(byte);
        for (int giri = 0; porta.inArrivo() > 0 || giri < 2; ++giri) {
            scatto();
            if (giri > 200'000)
                std::abort();
        }
    }
    void scatto()
    {
        // A tick that waits for a byte is resumed by the notice of the port, otherwise the timer
        // ticks.
        if (porta.sorvegliata()) {
            if (porta.arrivo)
                porta.arrivo();
        } else {
            banco.tmrElabInput.Timer();
        }
    }
};

void pretendi(bool condizione)
{
    if (!condizione)
        std::abort();
}

} // namespace

// First byte: bit 0 opens the camera, bit 1 the file browser. Second byte modulo 16: how many bytes
// are skipped.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *dati, size_t quanti)
{
    conApplicazione();
    if (quanti < 3)
        return 0;
    BancoFuzz p;
    p.video.aperta = (dati[0] & 1) != 0;
    p.file.inVista = (dati[0] & 2) != 0;
    const auto *inizio = reinterpret_cast<const char *>(dati);

    // The byte before each piece is its length minus 1.
    size_t posto = 2 + qMin<size_t>(dati[1] % 16, quanti - 3);
    while (posto < quanti) {
        const size_t pezzo = qMin<size_t>(dati[posto] + size_t{1}, quanti - posto - 1);
        p.lavora(QByteArray(inizio + posto + 1, static_cast<qsizetype>(pezzo)));
        posto += pezzo + 1;
    }

    // A telegram that is incomplete now ends within the length of the longest one; the zeros give
    // it the bytes that it lacks.
    for (int zeri = 0; zeri < 5 || !p.banco.tmrElabInput.accumulatore.vuoto();) {
        const int altri = zeri < 5 ? 5 : 512;
        p.lavora(QByteArray(altri, '\0'));
        zeri += altri;
        pretendi(zeri < 65535 + 2 * 512);
    }
    p.telemetria.testi.clear();
    p.lavora(b({31, 17}));
    pretendi(p.banco.lblTemperatura.Caption() == u"17°"_s);
    pretendi(p.telemetria.testi == QStringList{u"Temperatura:17"_s});
    // The length of a block has two bytes.
    for (const QByteArray &corpo : std::as_const(p.file.corpi))
        pretendi(corpo.size() <= 65535);
    return 0;
}
