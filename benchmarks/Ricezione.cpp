// The speed of the receive engine: bytes from the pseudo-terminal to the console's controls, and
// the time for one telegram with few and with many bytes waiting after it.
#include "base/Pompa.h"
#include "benchmarks/Terminale.h"
#include "console/frmPrincipale.h"
#include "serial/PortaAsio.h"

#include <benchmark/benchmark.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

enum class Video { Spento, Acceso };

// Temperature, batteries and sensors, with or without rows of a running camera between them. The
// values change from telegram to telegram, so that every control is set again.
QByteArray telegrammi(qsizetype almeno, Video video)
{
    QByteArray misti;
    for (int i = 0; misti.size() < almeno; ++i) {
        misti += char(31);
        misti += char(i % 50);
        misti += char(32);
        misti += char(i % 256);
        misti += char((i * 7) % 256);
        misti += char(33);
        misti += char(i & 1);
        misti += char(i & 2);
        misti += char(i & 4);
        if (video == Video::Acceso)
            misti += char(13) + QByteArray(160, char(i));
    }
    return misti;
}

struct Banco
{
    Terminale terminale;
    frmPrincipale console{{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}}};

    Banco()
    {
        QDir::setCurrent(terminale.cartella());
        console.Mostra();
        terminale.scrivi("\x1f\x15\x1f\x15");
        console.Collega();
    }
    bool fermo()
    {
        return console.tmrElabInput.accumulatore.vuoto() && console.COM.conteggio() == 0;
    }
};

void linea(benchmark::State &stato, Video video)
{
    Banco banco;
    const QByteArray byte = telegrammi(stato.range(0), video) + '\x1f' + char(49);
    for (auto _ : stato) {
        banco.console.lblTemperatura.setCaption({});
        std::thread robot([&] { banco.terminale.scrivi(byte); });
        while (banco.console.lblTemperatura.Caption() != u"49°"_s || !banco.fermo())
            pompa();
        robot.join();
        // Discards what the console sent meanwhile, so that it does not fill the line's buffer.
        ::tcflush(banco.terminale.capo(), TCIFLUSH);
    }
    stato.SetBytesProcessed(stato.iterations() * byte.size());
}

void Linea(benchmark::State &stato)
{
    linea(stato, Video::Acceso);
}

// Only telegrams of two to four bytes: the time for parsing, without that for moving video rows.
void LineaSoloSensori(benchmark::State &stato)
{
    linea(stato, Video::Spento);
}

// Cuts one telegram from the front of an accumulator that holds many more.
void UnTelegramma(benchmark::State &stato)
{
    Accumulatore accumulatore;
    accumulatore.aggiungi(telegrammi(stato.range(0), Video::Acceso));
    const QByteArray uno = QByteArrayLiteral("\x1f\x15");
    for (auto _ : stato) {
        accumulatore.aggiungi(uno);
        benchmark::DoNotOptimize(accumulatore.byte(1));
        benchmark::DoNotOptimize(accumulatore.byte(2));
        accumulatore.taglia(uno.size());
    }
}

} // namespace

BENCHMARK(Linea)->Arg(1 << 20)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LineaSoloSensori)->Arg(1 << 16)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(UnTelegramma)->Arg(1000)->Arg(1 << 20)->Arg(4 << 20);
