#include "simulator/Segnali.h"
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {
std::array<int, 2> tubo{-1, -1};

// Only what is allowed inside a signal handler: one byte, taken up by the event loop.
void alSegnale(int)
{
    const char c = 0;
    [[maybe_unused]] const auto n = ::write(tubo[1], &c, 1);
}
} // namespace

void ascoltaChiusura(const std::function<void()> &allaChiusura)
{
    if (::pipe2(tubo.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *nota = new QSocketNotifier(tubo[0], QSocketNotifier::Read, qApp);
    QObject::connect(nota, &QSocketNotifier::activated, nota, [nota, allaChiusura] {
        nota->setEnabled(false);
        allaChiusura();
    });
    for (const int segnale : {SIGTERM, SIGINT, SIGHUP})
        std::signal(segnale, alSegnale);
    // Whoever read our output may leave; the robot stays.
    std::signal(SIGPIPE, SIG_IGN);
}
#else
void ascoltaChiusura(const std::function<void()> &) {}
#endif
