#include "Ritmo.h"
#include <algorithm>

inline namespace tessaro_sim {
qsizetype Ritmo::permessi(qint64 ms, qsizetype inCoda)
{
    if (baud_ <= 0)
        return inCoda;
    if (!attivo_) {
        attivo_ = true;
        inizio_ = ms;
        usciti_ = 0;
    }
    const qint64 portati = (ms - inizio_) * baud_ / 10 / 1000;
    return static_cast<qsizetype>(std::clamp<qint64>(portati - usciti_, 0, inCoda));
}
} // namespace tessaro_sim
