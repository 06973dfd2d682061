// Move lists: loading and showing the longest one, scrolling it, recognising its lines, and running
// short pauses.
#include "base/Archivio.h"
#include "benchmarks/Terminale.h"
#include "movelists/FileMosse.h"
#include "movelists/Mossa.h"
#include "movelists/frmEditor.h"
#include "serial/ControlloSeriale.h"
#include "serial/PortaAsio.h"

#include <QApplication>
#include <QScrollBar>
#include <benchmark/benchmark.h>

namespace {

struct Banco
{
    Terminale terminale;
    Finestra console{QStringLiteral("frmConsole"), QStringLiteral("Console")};
    ControlloSeriale COM{QStringLiteral("COM"), nullptr, std::make_unique<PortaAsio>(),
                         terminale.cartella()};
    frmEditor editor{console, COM, terminale.cartella()};
    QString nome;

    Banco(int righe, const QString &riga)
        : nome(terminale.cartella() + QStringLiteral("/lista.sqm"))
    {
        COM.setCommPort(1);
        COM.setPortOpen(true);
        Archivio::apri(1, nome, Archivio::Modo::Scrittura);
        Archivio::stampa(1, FileMosse::scritto(QStringList(righe, riga)));
        Archivio::chiudi();
        editor.Mostra();
        QApplication::processEvents();
    }
};

void CaricaEMostra(benchmark::State &stato)
{
    Banco banco(32767, QStringLiteral("Testa su 2"));
    for (auto _ : stato) {
        banco.editor.ApriLista(banco.nome);
        QApplication::processEvents();
    }
}

void ScorriUnaPagina(benchmark::State &stato)
{
    Banco banco(32767, QStringLiteral("Testa su 2"));
    banco.editor.ApriLista(banco.nome);
    QScrollBar &barra = *banco.editor.lstMosse.verticalScrollBar();
    for (auto _ : stato) {
        barra.setValue(barra.value() >= barra.maximum() ? 0 : barra.value() + barra.pageStep());
        QApplication::processEvents();
    }
}

void LeggiUnaRiga(benchmark::State &stato)
{
    const QString righe[] = {QStringLiteral("Avanti veloce"), QStringLiteral("Frase 140"),
                             QStringLiteral("Testa LED Vs on"), QStringLiteral("Ripeti 5 volte"),
                             QStringLiteral("Ciao")};
    size_t i = 0;
    for (auto _ : stato)
        benchmark::DoNotOptimize(leggiMossa(righe[i++ % 5]));
}

// The intervals of the run add up to 1001 ms.
void CorsaDiMillePause(benchmark::State &stato)
{
    Banco banco(1000, QStringLiteral("Pausa 1"));
    banco.editor.ApriLista(banco.nome);
    for (auto _ : stato) {
        banco.editor.pulEsegui.click();
        while (banco.editor.tmrEseguiMosse.Enabled())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

} // namespace

BENCHMARK(CaricaEMostra)->Unit(benchmark::kMillisecond);
BENCHMARK(ScorriUnaPagina)->Unit(benchmark::kMillisecond);
BENCHMARK(LeggiUnaRiga);
BENCHMARK(CorsaDiMillePause)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
