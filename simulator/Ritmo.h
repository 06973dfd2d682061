#pragma once
#include <QByteArray>
#include <QtGlobal>

inline namespace tessaro_sim {
/// How many bytes a line of a given speed has carried by now: the pace of what goes out.
class Ritmo
{
public:
    /// Bits a second at 10 bits a byte; 0 without limit.
    void impostaBaud(int baud)
    {
        baud_ = baud;
        attivo_ = false;
    }
    int baud() const { return baud_; }

    /// How many bytes may go out now, `ms` being any monotonic clock and `inCoda` what waits.
    qsizetype permessi(qint64 ms, qsizetype inCoda);
    /// That many bytes went out.
    void usciti(qsizetype quanti) { usciti_ += quanti; }
    /// Nothing waits any more: a pause does not save up bytes for later.
    void riposa() { attivo_ = false; }

private:
    int baud_ = 9600;
    bool attivo_ = false;
    qint64 inizio_ = 0;
    qint64 usciti_ = 0;
};
} // namespace tessaro_sim
