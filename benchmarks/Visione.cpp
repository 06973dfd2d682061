// The video window: decoding, searching, painting, and frames at the full speed of a
// pseudo-terminal.
#include "base/Pompa.h"
#include "benchmarks/Terminale.h"
#include "console/frmPrincipale.h"
#include "serial/PortaAsio.h"
#include "vision/Ricerca.h"
#include "vision/frmCamera.h"

#include <QApplication>
#include <QTimer>
#include <atomic>
#include <benchmark/benchmark.h>
#include <chrono>
#include <poll.h>
#include <random>
#include <sys/resource.h>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

// The size of the picture that is searched for.
constexpr int W = 20;
constexpr int H = 15;

QByteArray righeACaso(quint32 seme)
{
    std::mt19937 caso(seme);
    QByteArray byte(60 * 160, Qt::Uninitialized);
    for (char &c : byte)
        c = static_cast<char>(caso());
    return byte;
}

Fotogramma fotogrammaACaso(quint32 seme)
{
    Fotogramma fotogramma;
    const QByteArray righe = righeACaso(seme);
    for (int riga = 0; riga < 60; ++riga)
        fotogramma.aggiungi(righe.sliced(riga * 160, 160), 10);
    return fotogramma;
}

// A frame that resembles a real scene: light from above, a few surfaces. The search finds more
// partial matches here than in noise.
Fotogramma scena()
{
    Fotogramma fotogramma;
    for (int riga = 1; riga <= 60; ++riga) {
        for (int colonna = 1; colonna <= 80; ++colonna) {
            const bool palla = (colonna - 50) * (colonna - 50) + (riga - 35) * (riga - 35) < 90;
            const int luce = 255 - 2 * riga - colonna / 2;
            fotogramma.Pixel(colonna, riga) =
                palla ? luce + 40 * 256 + 40 * 65536 : luce + luce * 256 + (luce / 8 * 8) * 65536;
        }
    }
    return fotogramma;
}

Matrice ritaglio(const Matrice &pixel, int colonna, int riga)
{
    Matrice modello(80, 60);
    for (int r = 1; r <= H; ++r)
        for (int c = 1; c <= W; ++c)
            modello(c, r) = pixel(colonna + c - 1, riga + r - 1);
    return modello;
}

void Decodifica(benchmark::State &stato)
{
    const QByteArray righe = righeACaso(1);
    Fotogramma fotogramma;
    for (auto _ : stato) {
        fotogramma.Riga = 0;
        for (int riga = 0; riga < 60; ++riga)
            fotogramma.aggiungi(QByteArrayView(righe).sliced(riga * 160, 160), 10);
        benchmark::DoNotOptimize(fotogramma.Pixel);
    }
}

// The picture is not in the frame, so all places are compared. Argument: 0 for noise, 1 for a
// scene.
void CercaUnImmagine(benchmark::State &stato)
{
    const Fotogramma fotogramma = stato.range(0) == 0 ? fotogrammaACaso(1) : scena();
    Matrice modello = ritaglio(fotogramma.Pixel, 40, 28);
    modello(W, H) = 99999999;
    for (auto _ : stato) {
        Ricerca ricerca(fotogramma.Pixel);
        benchmark::DoNotOptimize(ricerca.cerca(modello, W, H));
    }
}

// The same places with the plain sum of absolute differences, for comparison.
void SommaDifferenze(benchmark::State &stato)
{
    const Fotogramma fotogramma = stato.range(0) == 0 ? fotogrammaACaso(1) : scena();
    const Matrice modello = ritaglio(fotogrammaACaso(2).Pixel, 40, 28);
    for (auto _ : stato) {
        qint64 minima = -1;
        for (int a = 1; a <= 60 - H; ++a) {
            for (int b = 1; b <= 80 - W; ++b) {
                qint64 somma = 0;
                for (int r = 1; r <= H; ++r)
                    for (int c = 1; c <= W; ++c)
                        somma += std::abs(fotogramma.Pixel(b + c - 1, a + r - 1) - modello(c, r));
                if (minima < 0 || somma < minima)
                    minima = somma;
            }
        }
        benchmark::DoNotOptimize(minima);
    }
}

QByteArray record(int numero)
{
    const Fotogramma fotogramma = fotogrammaACaso(static_cast<quint32>(100 + numero));
    QByteArray testo = "\"Immagine" + QByteArray::number(numero) + "\",20,15";
    for (int r = 1; r <= H; ++r)
        for (int c = 1; c <= W; ++c)
            testo += ',' + QByteArray::number(fotogramma.Pixel(c, r));
    return testo;
}

// The console with the video window, connected, at a zoom of 10.
struct Banco
{
    Terminale terminale;
    std::unique_ptr<frmPrincipale> console;
    std::unique_ptr<frmImmaginiAcquisite> acquisite;
    std::unique_ptr<frmNomeImmagine> nome;
    std::unique_ptr<frmCamera> camera;
    std::atomic<bool> finito = false;
    // While true the robot does not answer: an answer in the middle of a row would spoil the row.
    std::atomic<bool> muto = false;
    std::thread robot;

    explicit Banco(int attive)
    {
        QDir::setCurrent(terminale.cartella());
        QFile file(QStringLiteral("Immagini.dat"));
        if (file.open(QIODevice::WriteOnly)) {
            QByteArrayList righe;
            for (int i = 0; i < 20; ++i)
                righe << record(i);
            file.write(righe.join('\r'));
            file.close();
        }
        console = std::make_unique<frmPrincipale>(
            AmbienteConsole{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}});
        acquisite = std::make_unique<frmImmaginiAcquisite>(console->lstImgCamera);
        nome = std::make_unique<frmNomeImmagine>(*acquisite);
        camera = std::make_unique<frmCamera>(
            ControlliVideo{console->COM, console->BarraPulsanti, console->BarraStato,
                           console->tmrElabInput, console->lstImgCamera, console->esitoVideo()},
            *nome);
        console->motore.ascoltaVideo(camera.get());
        console->Mostra();
        // Answers whatever is written.
        robot = std::thread([this] { rispondi(); });
        console->Collega();
        for (int i = 0; i < console->lstImgCamera.ListCount(); ++i)
            console->lstImgCamera.setItemData(i, i < attive ? 1 : 0);
        console->BarraPulsanti.setTag(u"Camera"_s);
        camera->Mostra();
        camera->resize(810, 610);
        pompa();
    }
    ~Banco()
    {
        finito = true;
        robot.join();
        console->motore.ascoltaVideo(nullptr);
    }

    void rispondi()
    {
        while (!finito) {
            pollfd attesa{terminale.capo(), POLLIN, 0};
            char byte[256];
            if (::poll(&attesa, 1, 5) > 0 && ::read(terminale.capo(), byte, sizeof byte) > 0 &&
                !muto)
                terminale.scrivi("\x1f\x15\x1f\x15");
        }
    }
};

// The time from the last row of a frame until the frame is on the screen.
void UltimaRiga(benchmark::State &stato)
{
    Banco banco(static_cast<int>(stato.range(0)));
    if (banco.camera->Schermo.Tag() != u"10"_s) {
        stato.SkipWithError("no zoom of 10");
        return;
    }
    const QByteArray righe[] = {righeACaso(1), righeACaso(2)};
    int quale = 0;
    for (auto _ : stato) {
        stato.PauseTiming();
        const QByteArray &fotogramma = righe[quale ^= 1];
        banco.camera->ricominciaFotogramma();
        for (int riga = 0; riga < 59; ++riga)
            banco.camera->CalcolaRiga(fotogramma.sliced(riga * 160, 160));
        stato.ResumeTiming();
        banco.camera->CalcolaRiga(fotogramma.sliced(59 * 160, 160));
        banco.camera->Schermo.repaint();
    }
}

// Frames at the full speed of the pseudo-terminal. A timer of 10 ms measures how long a user would
// wait.
void PienaVelocita(benchmark::State &stato)
{
    Banco banco(1);
    banco.muto = true;
    const QByteArray righe[] = {righeACaso(1), righeACaso(2)};
    QByteArray telegrammi;
    for (const QByteArray &fotogramma : righe)
        for (int riga = 0; riga < 60; ++riga)
            telegrammi += '\x0d' + fotogramma.sliced(riga * 160, 160);
    const QByteArray fine = QByteArrayLiteral("\x1f\x2a");

    using Orologio = std::chrono::steady_clock;
    double attesaMassima = 0;
    auto ultimo = Orologio::now();
    QTimer dito;
    QObject::connect(&dito, &QTimer::timeout, &dito, [&] {
        const auto ora = Orologio::now();
        attesaMassima = std::max(attesaMassima,
                                 std::chrono::duration<double, std::milli>(ora - ultimo).count());
        ultimo = ora;
    });
    dito.start(10);
    constexpr int doppi = 50;
    for (auto _ : stato) {
        banco.console->lblTemperatura.setCaption({});
        std::thread invio([&] {
            for (int i = 0; i < doppi; ++i)
                banco.terminale.scrivi(telegrammi);
            banco.terminale.scrivi(fine);
        });
        while (banco.console->lblTemperatura.Caption() != u"42°"_s)
            pompa();
        invio.join();
    }
    stato.counters["frames/s"] = benchmark::Counter(
        static_cast<double>(2 * doppi * stato.iterations()), benchmark::Counter::kIsRate);
    stato.counters["longest wait ms"] = attesaMassima;
}

// Frames at the speed of the line: the processor time that they use.
void VelocitaDellaLinea(benchmark::State &stato)
{
    Banco banco(1);
    banco.muto = true;
    const QByteArray righe = righeACaso(1);
    const auto consumo = [] {
        rusage uso{};
        ::getrusage(RUSAGE_THREAD, &uso);
        return double(uso.ru_utime.tv_sec + uso.ru_stime.tv_sec) +
               double(uso.ru_utime.tv_usec + uso.ru_stime.tv_usec) / 1e6;
    };
    double usato = 0;
    for (auto _ : stato) {
        const double da = consumo();
        std::atomic<bool> spedito = false;
        std::thread invio([&] {
            // 960 bytes a second for 20 seconds: two frames.
            auto quando = std::chrono::steady_clock::now();
            for (int riga = 0; riga < 120; ++riga) {
                const QByteArray byte = '\x0d' + righe.sliced((riga % 60) * 160, 160);
                for (qsizetype i = 0; i < byte.size(); i += 7) {
                    const QByteArray pezzo = byte.mid(i, 7);
                    banco.terminale.scrivi(pezzo);
                    quando += std::chrono::microseconds(pezzo.size() * 10'000'000 / 9600);
                    std::this_thread::sleep_until(quando);
                }
            }
            spedito = true;
        });
        while (!spedito)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        invio.join();
        usato += consumo() - da;
    }
    stato.counters["core s"] = usato;
}

} // namespace

BENCHMARK(Decodifica)->Unit(benchmark::kMicrosecond);
BENCHMARK(CercaUnImmagine)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(SommaDifferenze)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(UltimaRiga)->Arg(0)->Arg(20)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PienaVelocita)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(VelocitaDellaLinea)->Unit(benchmark::kSecond)->UseRealTime()->Iterations(1);
