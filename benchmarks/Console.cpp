// The time for a mouse move over the head and over a list of colours, and for a step of the arrows'
// animation.
#include "benchmarks/Terminale.h"
#include "console/frmPrincipale.h"
#include "serial/PortaAsio.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

namespace {

struct Banco
{
    Terminale terminale;
    frmPrincipale console{{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}}};

    Banco()
    {
        QDir::setCurrent(terminale.cartella());
        console.Mostra();
    }
    // One move and everything that it causes, including the painting.
    static void muovi(QWidget &su, QPoint dove)
    {
        QMouseEvent mossa(QEvent::MouseMove, dove, su.mapToGlobal(dove), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&su, &mossa);
        QApplication::processEvents();
    }
};

void MossaSullaTesta(benchmark::State &stato)
{
    Banco banco;
    int i = 0;
    for (auto _ : stato) {
        ++i;
        Banco::muovi(banco.console.ImgTesta, {10 + (i * 7) % 140, 60 + i % 80});
    }
}

void MossaSullaLista(benchmark::State &stato)
{
    Banco banco;
    for (QWidget *parte : std::initializer_list<QWidget *>{
             &banco.console.shCappelloOn, &banco.console.lblOn, &banco.console.mnuComparsaOn})
        parte->show();
    QWidget &lista = *banco.console.mnuComparsaOn.viewport();
    int i = 0;
    for (auto _ : stato)
        Banco::muovi(lista, {20, (i++ * 5) % lista.height()});
}

// One tick of the timer, which ticks ten times a second.
void PassoDelleFrecce(benchmark::State &stato)
{
    Banco banco;
    Banco::muovi(banco.console.ImgTesta, {30, 90});
    banco.console.tmrAnimazFrecce.setEnabled(false);
    for (auto _ : stato) {
        banco.console.tmrAnimazFrecce.Timer();
        QApplication::processEvents();
    }
}

} // namespace

BENCHMARK(MossaSullaTesta)->Unit(benchmark::kMicrosecond);
BENCHMARK(MossaSullaLista)->Unit(benchmark::kMicrosecond);
BENCHMARK(PassoDelleFrecce)->Unit(benchmark::kMicrosecond);
