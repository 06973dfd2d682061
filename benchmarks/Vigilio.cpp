// The Vigilio: a telemetry text against many lists, the check for clashes between them, and the
// road from a temperature on the wire to the run of its list.
#include "Pompa.h"
#include "PortaAsio.h"
#include "Terminale.h"
#include "VigilioVicino.h"
#include "frmEditor.h"
#include "frmPrincipale.h"
#include "frmProcessor.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using Cronometro = std::chrono::steady_clock;

constexpr int molte = 1000;

class ConsoleVicina : public ConsoleEditor, public ConsoleVigilio
{
public:
    explicit ConsoleVicina(frmPrincipale &principale) : m_principale(principale) {}
    ControlloSeriale &COM() override { return m_principale.COM; }
    Posto posto() const override { return {0, 1300, 0}; }
    void mostraMessaggio(const QString &) override {}
    void MostraInvio(const QString &) override {}
    void AggiungiMossa(const QString &) override {}
    bool PortOpen() override { return m_principale.COM.PortOpen(); }
    void Collega() override { m_principale.Collega(); }

private:
    frmPrincipale &m_principale;
};

class OrologioFermo : public Orologio
{
public:
    QTime adesso() const override { return {12, 0}; }
};

// The console, connected, with the editor, and the runner over so many lists.
struct Banco
{
    Terminale terminale;
    frmPrincipale principale{{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}}};
    ConsoleVicina console{principale};
    OrologioFermo orologio;
    frmEditor editor{console, orologio, terminale.cartella()};
    frmProcessor processor{console, editor, orologio, terminale.cartella()};
    VigilioVicino vigilio{processor};

    explicit Banco(int liste)
    {
        QDir::setCurrent(terminale.cartella());
        for (int i = 0; i < liste; ++i) {
            QFile file(u"%1/lista%2.sqm"_s.arg(terminale.cartella()).arg(i, 4, 10, QChar(u'0')));
            if (file.open(QIODevice::WriteOnly))
                file.write(" 0 \r\nPausa 60000\r\n");
        }
        editor.impostaVigilio(&vigilio);
        principale.motore.ascoltaTelemetria(&processor);
        principale.Mostra();
        manda(20);
        manda(20);
        principale.Collega();
        principale.tmrSensori.setEnabled(false);
        principale.tmrControllaConn.setEnabled(false);
        processor.Mostra();
    }
    void manda(int gradi) const { terminale.scrivi(QByteArray("\x1f") + static_cast<char>(gradi)); }
    void imposta(int riga, const QString &condizione)
    {
        processor.lstCondizioni.setList(riga, condizione);
        processor.lstFile.setSelected(riga, true);
    }
};

// Times of their own, and sensors, so that no two lists clash and no text starts one.
QString condizioneDiversa(int riga)
{
    return u"%1:%2:30,no,no,no,no"_s.arg(1 + riga / 60, 2, 10, QChar(u'0'))
        .arg(riga % 60, 2, 10, QChar(u'0'));
}

void TestoControMolteListe(benchmark::State &stato)
{
    Banco banco(molte);
    for (int i = 0; i < molte; ++i)
        banco.imposta(i, u"no,101,%1,no,4"_s.arg(i % 40));
    for (auto _ : stato) {
        banco.processor.VerificaCondizioni(u"Temperatura:99"_s);
    }
}

void ContrastoTraMolteListe(benchmark::State &stato)
{
    Banco banco(molte);
    for (int i = 0; i < molte; ++i)
        banco.imposta(i, condizioneDiversa(i));
    for (auto _ : stato) {
        banco.processor.pulAvvia.click();
        if (!banco.processor.avviato())
            stato.SkipWithError("the lists clash");
        banco.processor.Stoppa();
    }
}

void dallaTemperaturaAllaLista()
{
    constexpr int prove = 50;
    Banco banco(20);
    banco.imposta(7, u"no,no,33,no,no"_s);
    banco.processor.pulAvvia.click();
    std::vector<double> tempi;
    for (int i = 0; i < prove; ++i) {
        banco.manda(33);
        const auto inizio = Cronometro::now();
        while (!banco.editor.tmrEseguiMosse.Enabled())
            pompa();
        tempi.push_back(
            std::chrono::duration<double, std::milli>(Cronometro::now() - inizio).count());
        banco.editor.pulEsegui.click();
    }
    std::sort(tempi.begin(), tempi.end());
    std::printf("Temperature on the wire to its list running, %d times: median %.1f ms, worst "
                "%.1f ms\n",
                prove, tempi[prove / 2], tempi.back());
}

} // namespace

BENCHMARK(TestoControMolteListe)->Unit(benchmark::kMicrosecond);
BENCHMARK(ContrastoTraMolteListe)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    dallaTemperaturaAllaLista();
    return 0;
}
