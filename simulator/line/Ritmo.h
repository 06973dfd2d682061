#pragma once
#include <QtGlobal>

inline namespace tessaro_sim {
// How many bytes a line of a given speed has carried by now: the pace of what goes out.
class Ritmo
{
public:
    // Bits a second at 10 bits a byte; 0 without limit.
    void impostaBaud(int baud)
    {
        m_baud = baud;
        m_attivo = false;
    }
    int baud() const { return m_baud; }

    // How many bytes may go out now, `ms` being any monotonic clock and `inCoda` what waits.
    qsizetype permessi(qint64 ms, qsizetype inCoda);
    // That many bytes went out.
    void usciti(qsizetype quanti) { m_usciti += quanti; }
    // Nothing waits any more: a pause does not save up bytes for later.
    void riposa() { m_attivo = false; }

private:
    int m_baud = 9600;
    bool m_attivo = false;
    qint64 m_inizio = 0;
    qint64 m_usciti = 0;
};
} // namespace tessaro_sim
