#include "simulator/line/Ritmo.h"
#include <algorithm>

inline namespace tessaro_sim {
qsizetype Ritmo::permessi(qint64 ms, qsizetype inCoda)
{
    if (m_baud <= 0)
        return inCoda;
    if (!m_attivo) {
        m_attivo = true;
        m_inizio = ms;
        m_usciti = 0;
    }
    const qint64 portati = (ms - m_inizio) * m_baud / 10 / 1000;
    return static_cast<qsizetype>(std::clamp<qint64>(portati - m_usciti, 0, inCoda));
}
} // namespace tessaro_sim
