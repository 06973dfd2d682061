// A thousand conditional lists: a telemetry text compared with all their conditions, the start with
// its check for conflicts, and the time from the last byte of a temperature telegram to the first
// byte of the list that it starts.
#include "base/Pompa.h"
#include "benchmarks/Terminale.h"
#include "conditional/Orologio.h"
#include "conditional/frmProcessor.h"
#include "console/frmPrincipale.h"
#include "movelists/frmEditor.h"
#include "serial/PortaAsio.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <chrono>
#include <poll.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int quante = 1000;

class ConsoleVera : public ConsoleVigilio
{
public:
    explicit ConsoleVera(frmPrincipale &principale) : m_principale(principale) {}

    bool PortOpen() override { return m_principale.COM.PortOpen(); }
    bool collegato() override { return m_principale.collegato(); }
    bool staTentando() override { return m_principale.staTentando(); }
    void Collega() override {}

private:
    frmPrincipale &m_principale;
};

class OrologioFermo : public Orologio
{
public:
    QTime adesso() const override { return {12, 0}; }
};

// Connected, with a thousand lists, all selected. No two conditions are in conflict.
struct Banco
{
    Terminale terminale;
    frmPrincipale principale{{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}}};
    ConsoleVera console{principale};
    OrologioFermo orologio;
    frmEditor editor{principale, principale.COM, terminale.cartella()};
    frmProcessor processor{console, editor, orologio, terminale.cartella()};

    Banco()
    {
        QDir::setCurrent(terminale.cartella());
        for (int i = 0; i < quante; ++i) {
            QFile file(u"lista %1.sqm"_s.arg(i, 4, 10, QChar(u'0')));
            if (file.open(QIODevice::WriteOnly))
                file.write(" 0 \r\nTesta LED tutti on\r\n");
        }
        principale.motore.ascoltaTelemetria(&processor);
        principale.Mostra();
        terminale.scrivi("\x1f\x15\x1f\x15");
        principale.Collega();
        // Only the lists send.
        principale.tmrSensori.setEnabled(false);
        principale.tmrControllaConn.setEnabled(false);
        processor.Mostra();
        for (int i = 0; i < quante; ++i) {
            processor.lstCondizioni.setList(i, condizione(i));
            processor.lstFile.setSelected(i, true);
        }
        QApplication::processEvents();
    }
    // Each condition has its own time and its own sensors.
    static QString condizione(int i)
    {
        const QChar zero = u'0';
        return u"%1:%2:%3,%4,no,no,no"_s.arg(i / 3600, 2, 10, zero)
            .arg(i / 60 % 60, 2, 10, zero)
            .arg(i % 60, 2, 10, zero)
            .arg(i, 3, 10, zero);
    }
};

void TestoControMilleListe(benchmark::State &stato)
{
    Banco banco;
    // All five fields are set, and none is fulfilled.
    for (int i = 0; i < quante; ++i)
        banco.processor.lstCondizioni.setList(i, u"07:00:00,000,40,4,4"_s);
    const QString testi[] = {u"Ultrasuoni:111"_s, u"Temperatura:25"_s, u"Batterie:33"_s};
    for (auto _ : stato)
        banco.processor.VerificaCondizioni(testi[stato.range(0)]);
}

void AvvioDiMilleListe(benchmark::State &stato)
{
    Banco banco;
    for (auto _ : stato) {
        banco.processor.pulAvvia.click();
        if (!banco.processor.avviato())
            stato.SkipWithError("not started");
        stato.PauseTiming();
        banco.processor.Stoppa();
        stato.ResumeTiming();
    }
}

void DallaTemperaturaAllaLista(benchmark::State &stato)
{
    using Tempo = std::chrono::steady_clock;
    Banco banco;
    banco.processor.lstCondizioni.setList(quante - 1, u"no,no,25,no,no"_s);
    banco.processor.pulAvvia.click();
    if (!banco.processor.avviato())
        stato.SkipWithError("not started");
    // No condition depends on the clock here.
    banco.editor.tmrAttivaAut.setEnabled(false);
    const auto giaLa = [&] {
        pollfd capo{banco.terminale.capo(), POLLIN, 0};
        return ::poll(&capo, 1, 0) > 0;
    };
    for (auto _ : stato) {
        ::tcflush(banco.terminale.capo(), TCIFLUSH);
        banco.terminale.scrivi("\x1f\x19");
        const auto scritto = Tempo::now();
        while (!giaLa())
            pompa();
        stato.SetIterationTime(std::chrono::duration<double>(Tempo::now() - scritto).count());
        // Runs the list to its end without its waiting time.
        banco.editor.tmrEseguiMosse.setInterval(1);
        while (banco.editor.tmrEseguiMosse.Enabled())
            pompa();
    }
}

} // namespace

BENCHMARK(TestoControMilleListe)->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
BENCHMARK(AvvioDiMilleListe)->Unit(benchmark::kMillisecond);
BENCHMARK(DallaTemperaturaAllaLista)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(20)
    ->Repetitions(5)
    ->ReportAggregatesOnly();
