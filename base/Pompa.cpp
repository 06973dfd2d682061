#include "base/Pompa.h"

#include "base/Sonno.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <chrono>

using namespace std::chrono_literals;

namespace {

// 100000 idle rounds are to take about 4 seconds.
constexpr auto durataGiro = 40us;
// The pauses of so many rounds are made as one: the system cannot sleep for 40 microseconds without
// spending as much again on waking up.
constexpr int giriPerPausa = 25;
// A round ends though there is still something to do, lest a flood of events holds it for ever.
constexpr int passateMassime = 100;

} // namespace

void pompa()
{
    static int giriAVuoto = 0;
    static std::chrono::steady_clock::time_point inizioVuoto;

    QAbstractEventDispatcher *smistatore = QThread::currentThread()->eventDispatcher();
    bool trovato = false;
    for (int i = 0; smistatore && i < passateMassime; ++i) {
        if (!smistatore->processEvents(QEventLoop::AllEvents))
            break;
        trovato = true;
    }
    if (trovato) {
        giriAVuoto = 0;
        return;
    }
    const auto adesso = std::chrono::steady_clock::now();
    if (giriAVuoto == 0)
        inizioVuoto = adesso;
    if (++giriAVuoto < giriPerPausa)
        return;
    giriAVuoto = 0;
    const auto dovuto = durataGiro * giriPerPausa - (adesso - inizioVuoto);
    if (dovuto.count() > 0)
        dormi(dovuto);
}
