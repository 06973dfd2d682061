#include "Riproduttore.h"
#include <algorithm>

inline namespace tessaro_sim {
Riproduttore::Riproduttore()
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { scaduto(); });
}

bool Riproduttore::carica(const QString &file, bool tempiOriginali)
{
    QList<Registrazione::Tratto> tratti;
    if (!Registrazione::leggi(file, tratti, errore_))
        return false;
    ferma();
    const auto console =
        std::find_if(tratti.cbegin(), tratti.cend(), [](const auto &t) { return t.versoRobot; });
    base_ = console == tratti.cend() ? 0 : console->ms;
    tratti_.clear();
    std::copy_if(tratti.cbegin(), tratti.cend(), std::back_inserter(tratti_),
                 [](const auto &t) { return !t.versoRobot; });
    prossimo_ = 0;
    tempi_ = tempiOriginali;
    attivo_ = true;
    scattato_ = false;
    // A recording of the robot alone waits for nobody.
    if (console == tratti.cend())
        scatta();
    return true;
}

void Riproduttore::scatta()
{
    if (!attivo_ || scattato_)
        return;
    scattato_ = true;
    orologio_.start();
    programma();
}

void Riproduttore::ferma()
{
    attivo_ = false;
    timer_.stop();
}

void Riproduttore::avanti()
{
    if (attivo_ && scattato_ && !tempi_ && !timer_.isActive())
        timer_.start(0);
}

void Riproduttore::programma()
{
    if (!tempi_ || prossimo_ >= tratti_.size()) {
        timer_.start(0);
        return;
    }
    const qint64 attesa = tratti_.at(prossimo_).ms - base_ - orologio_.elapsed();
    timer_.start(static_cast<int>(std::clamp<qint64>(attesa, 0, 1000000000)));
}

void Riproduttore::scaduto()
{
    if (!attivo_)
        return;
    if (prossimo_ >= tratti_.size()) {
        attivo_ = false;
        if (suFine)
            suFine();
        return;
    }
    const QByteArray byte = tratti_.at(prossimo_++).byte;
    // Without original times the queue asks for more by avanti().
    if (tempi_ || prossimo_ >= tratti_.size())
        programma();
    if (suByte)
        suByte(byte);
}
} // namespace tessaro_sim
