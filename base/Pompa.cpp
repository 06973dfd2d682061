#include "base/Pompa.h"

#include "base/Sonno.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <chrono>

using namespace std::chrono_literals;

namespace {

// The waits of the program allow 100000 idle rounds for about 4 seconds.
constexpr auto durataGiro = 40us;
// One pause is made for this many rounds (1 ms): waking up from a sleep costs the system about 40
// microseconds itself.
constexpr int giriPerPausa = 25;
// A round stops after this many passes even if events are left, so that a flood of events cannot
// hold it for ever.
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
