// The time from a key press to the first byte of its command at the other end of the
// pseudo-terminal, while the robot sends telemetry.
#include "base/Pompa.h"
#include "benchmarks/Terminale.h"
#include "console/frmPrincipale.h"
#include "serial/PortaAsio.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <poll.h>
#include <random>
#include <thread>
#include <vector>

using Orologio = std::chrono::steady_clock;

int main(int argc, char **argv)
{
    constexpr int prove = 2000;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Terminale terminale;
    QDir::setCurrent(terminale.cartella());
    frmPrincipale console({std::make_unique<PortaAsio>(), terminale.cartella(), [] {}});
    console.Mostra();
    terminale.scrivi("\x1f\x15\x1f\x15");
    console.Collega();

    // The robot: notes when the first byte of an actuator command (19) arrives, and answers it.
    std::atomic<bool> finito = false;
    std::atomic<Orologio::rep> arrivo = 0;
    std::thread robot([&] {
        auto telemetria = Orologio::now();
        while (!finito) {
            pollfd attesa{terminale.capo(), POLLIN, 0};
            if (::poll(&attesa, 1, 10) > 0) {
                char byte[64];
                const auto n = ::read(terminale.capo(), byte, sizeof byte);
                const auto adesso = Orologio::now();
                if (n > 0 && std::find(byte, byte + n, char(19)) != byte + n) {
                    arrivo = adesso.time_since_epoch().count();
                    terminale.scrivi("\x1f\x15");
                }
            }
            if (Orologio::now() - telemetria > std::chrono::milliseconds(300)) {
                telemetria = Orologio::now();
                terminale.scrivi("\x21\x01\x01\x01\x20\x50\x50");
            }
        }
    });

    std::mt19937 caso(1);
    std::uniform_int_distribution<int> pausa(1, 10);
    std::vector<double> tempi;
    for (int i = 0; i < prove; ++i) {
        // Between two presses the program is idle for a while, as with a user.
        const auto fine = Orologio::now() + std::chrono::milliseconds(pausa(caso));
        while (Orologio::now() < fine)
            QApplication::processEvents(QEventLoop::AllEvents, 1);
        arrivo = 0;
        console.imgFreccia(1).setTag({});
        QWidget *fuoco = &console.ImgTesta;
        const auto premuto = Orologio::now();
        QKeyEvent giu(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QApplication::sendEvent(fuoco, &giu);
        while (arrivo == 0)
            pompa();
        tempi.push_back(std::chrono::duration<double, std::milli>(Orologio::duration(arrivo) -
                                                                  premuto.time_since_epoch())
                            .count());
        QKeyEvent su(QEvent::KeyRelease, Qt::Key_Up, Qt::NoModifier);
        QApplication::sendEvent(fuoco, &su);
    }
    finito = true;
    robot.join();
    std::sort(tempi.begin(), tempi.end());
    std::printf("Key press to first byte, %d presses: median %.3f ms, 99th percentile %.3f ms\n",
                prove, tempi[prove / 2], tempi[prove * 99 / 100]);
    return 0;
}
