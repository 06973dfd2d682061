// The file browser: the time from the last byte of a file until it is on the disk, the response of
// the program during a fetch at the speed of the line, and the time for the parts of a long
// listing.
#include "base/Pompa.h"
#include "benchmarks/Terminale.h"
#include "console/frmPrincipale.h"
#include "filebrowser/frmEsploraFile.h"
#include "serial/PortaAsio.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <poll.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Orologio = std::chrono::steady_clock;
using Millisecondi = std::chrono::duration<double, std::milli>;

// The telegram that reports channel 1 as open.
const QByteArray aperto("\x2a\x01\0", 3);
const QByteArray temperatura = QByteArrayLiteral("\x1f\x15");

struct Banco
{
    Terminale terminale;
    frmPrincipale console{{std::make_unique<PortaAsio>(), terminale.cartella(), [] {}}};
    frmEsploraFile esplora{console.COM, console.BarraStato, terminale.cartella()};

    Banco()
    {
        QDir::setCurrent(terminale.cartella());
        console.motore.ascoltaFile(&esplora.prelievo);
        console.Mostra();
        terminale.scrivi(temperatura + temperatura);
        console.Collega();
        // No polls of the console: only the file browser writes.
        console.tmrSensori.setEnabled(false);
        console.tmrControllaConn.setEnabled(false);
        esplora.Mostra();
        terminale.scrivi("\x2a\x01\xff");
        while (!esplora.Tag().isEmpty())
            pompa();
        esplora.lstFile.AddItem(u"misura.bin"_s);
        esplora.lstFile.setListIndex(0);
        scarta();
    }
    // Discards what the console wrote, so that it does not fill the line's buffer.
    void scarta() const { ::tcflush(terminale.capo(), TCIFLUSH); }
};

QByteArray blocco(qsizetype quanti)
{
    QByteArray byte = QByteArrayLiteral("\x2d\x01");
    byte += static_cast<char>(quanti & 255);
    byte += static_cast<char>(quanti >> 8);
    for (qsizetype i = 0; i < quanti; ++i)
        byte += static_cast<char>(i * 31);
    // The unused byte at the end, and one more telegram: a block is processed when a byte after it
    // has arrived.
    return byte + '\0' + temperatura;
}

void alPiuPresto(Banco &banco)
{
    constexpr int prove = 50;
    const QByteArray byte = blocco(65535);
    std::vector<double> tempi;
    for (int i = 0; i < prove; ++i) {
        banco.esplora.lstFile.DblClick();
        banco.terminale.scrivi(aperto);
        banco.scarta();
        std::atomic<Orologio::rep> ultimo = 0;
        std::thread robot([&] {
            banco.terminale.scrivi(byte);
            ultimo = Orologio::now().time_since_epoch().count();
        });
        while (!banco.esplora.Tag().isEmpty())
            pompa();
        const auto scritto = Orologio::now().time_since_epoch();
        robot.join();
        tempi.push_back(std::max(0.0, Millisecondi(scritto - Orologio::duration(ultimo)).count()));
    }
    std::sort(tempi.begin(), tempi.end());
    std::printf(
        "65535 bytes at once, last byte to disk, %d fetches: median %.1f ms, worst %.1f ms\n",
        prove, tempi[prove / 2], tempi.back());
}

void allaVelocitaDellaLinea(Banco &banco)
{
    constexpr auto passo = std::chrono::milliseconds(10);
    const QByteArray byte = blocco(5000);
    banco.esplora.lstFile.DblClick();
    banco.terminale.scrivi(aperto);
    banco.scarta();
    std::thread robot([&] {
        auto quando = Orologio::now();
        QByteArrayView resto = byte;
        while (!resto.isEmpty()) {
            // At 9600 baud a byte takes about 1 ms: 9 bytes for each step of 10 ms.
            const auto ora = std::min<qsizetype>(resto.size(), 96 / 10);
            banco.terminale.scrivi(resto.first(ora));
            resto = resto.sliced(ora);
            std::this_thread::sleep_until(quando += passo);
        }
    });
    QTimer battito;
    battito.setTimerType(Qt::PreciseTimer);
    auto prima = Orologio::now();
    double ritardo = 0;
    QObject::connect(&battito, &QTimer::timeout, &battito, [&] {
        const auto adesso = Orologio::now();
        ritardo = std::max(ritardo, Millisecondi(adesso - prima - passo).count());
        prima = adesso;
    });
    battito.start(passo);
    const auto inizio = Orologio::now();
    int immagini = 0;
    int mostrata = banco.esplora.imgAttesa.Picture();
    while (!banco.esplora.Tag().isEmpty()) {
        pompa();
        const int adesso = banco.esplora.imgAttesa.Picture();
        immagini += adesso != mostrata;
        mostrata = adesso;
    }
    const double durata = Millisecondi(Orologio::now() - inizio).count() / 1000;
    robot.join();
    std::printf("A fetch at 9600 baud, %.1f s: a timer of 10 ms was late by %.1f ms at most, the "
                "animation made %.0f steps a second\n",
                durata, ritardo, immagini / durata);
}

void elencoLungo(Banco &banco)
{
    constexpr int voci = 5000;
    constexpr int tratto = 500;
    constexpr char apri = 40;
    constexpr char leggi = 46;
    const auto risposta = [](int numero) {
        if (numero == voci)
            return QByteArrayLiteral("\x2a\x01\xff");
        const QByteArray nome = "file" + QByteArray::number(numero) + ".txt";
        return QByteArrayLiteral("\x2f\x01\x01") + static_cast<char>(nome.size()) + nome + '\0';
    };
    std::atomic<bool> finito = false;
    std::thread robot([&] {
        int date = 0;
        QByteArray richieste;
        while (!finito) {
            pollfd attesa{banco.terminale.capo(), POLLIN, 0};
            if (::poll(&attesa, 1, 10) <= 0)
                continue;
            char byte[64];
            const auto n = ::read(banco.terminale.capo(), byte, sizeof byte);
            richieste.append(byte, std::max<qsizetype>(n, 0));
            while (richieste.size() >= 2) {
                const char comando = richieste.at(0);
                // The opening with its empty path has three bytes; closing and reading have two.
                if (comando == apri && richieste.size() < 3)
                    break;
                richieste.remove(0, comando == apri ? 3 : 2);
                if (comando == apri)
                    banco.terminale.scrivi(QByteArray("\x2a\x01\x00", 3));
                if (comando == leggi)
                    banco.terminale.scrivi(risposta(date++));
            }
        }
    });
    banco.esplora.pulHome.click();
    std::vector<double> tratti;
    auto prima = Orologio::now();
    while (!banco.esplora.Tag().isEmpty()) {
        pompa();
        if (banco.esplora.lstFile.ListCount() >= static_cast<int>(tratti.size() + 1) * tratto) {
            const auto adesso = Orologio::now();
            tratti.push_back(Millisecondi(adesso - prima).count());
            prima = adesso;
        }
    }
    finito = true;
    robot.join();
    std::printf("A folder of %d entries, ms for each %d:", voci, tratto);
    for (const double ms : tratti)
        std::printf(" %.0f", ms);
    std::printf("\n");
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    Banco banco;
    alPiuPresto(banco);
    allaVelocitaDellaLinea(banco);
    elencoLungo(banco);
    return 0;
}
