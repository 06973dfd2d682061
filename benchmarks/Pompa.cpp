// How long idle rounds of the message pump take, and how much processor time they use: 100000
// rounds should take 3 to 6 seconds and use less than a quarter of one core.
#include "base/Pompa.h"
#include "controls/Barre.h"
#include "controls/Temporizzatore.h"

#include <benchmark/benchmark.h>
#include <ctime>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int giri = 100000;

// The processor time of this process in seconds.
double processore()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Measures 100000 rounds. intervalli: the timers that run meanwhile, in milliseconds. conBarra:
// each round also sets a progress bar.
void attesa(benchmark::State &stato, const std::vector<int> &intervalli, bool conBarra)
{
    std::vector<std::unique_ptr<Temporizzatore>> timer;
    long scatti = 0;
    for (const int intervallo : intervalli) {
        timer.push_back(std::make_unique<Temporizzatore>(u"tmr"_s, nullptr));
        timer.back()->Timer.collega([&] { ++scatti; });
        timer.back()->setInterval(intervallo);
        timer.back()->setEnabled(true);
    }
    QWidget finestra;
    BarraDiCaricamento barra(u"BarraCaricamento"_s, &finestra, 1, giri);
    finestra.show();
    for (int i = 0; i < 1000; ++i)
        pompa();

    const double prima = processore();
    double secondi = 0;
    for (auto _ : stato) {
        const auto inizio = std::chrono::steady_clock::now();
        for (int i = 1; i <= giri; ++i) {
            pompa();
            if (conBarra)
                barra.setValore(i);
        }
        const std::chrono::duration<double> durata = std::chrono::steady_clock::now() - inizio;
        stato.SetIterationTime(durata.count());
        secondi += durata.count();
    }
    stato.counters["core%"] = 100 * (processore() - prima) / secondi;
    stato.counters["ticks"] = static_cast<double>(scatti);
}

void GiriAVuoto(benchmark::State &stato)
{
    attesa(stato, {}, false);
}
void GiriConITimerDellaSessione(benchmark::State &stato)
{
    attesa(stato, {1, 300, 5000}, false);
}
void GiriConLaBarra(benchmark::State &stato)
{
    attesa(stato, {1, 300, 5000}, true);
}

BENCHMARK(GiriAVuoto)->UseManualTime()->Unit(benchmark::kSecond)->Iterations(1)->Repetitions(3);
BENCHMARK(GiriConITimerDellaSessione)->UseManualTime()->Unit(benchmark::kSecond)->Iterations(1);
BENCHMARK(GiriConLaBarra)->UseManualTime()->Unit(benchmark::kSecond)->Iterations(1);

} // namespace
