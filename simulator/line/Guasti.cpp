#include "simulator/line/Guasti.h"

inline namespace tessaro_sim {
bool FiltroGuasti::capita(double probabilita)
{
    if (probabilita <= 0.0)
        return false;
    return std::uniform_real_distribution<double>(0.0, 1.0)(m_caso) < probabilita;
}

QByteArray FiltroGuasti::telegramma(const QByteArray &intero, const Guasti &guasti)
{
    QByteArray byte = intero;
    if (byte.size() > 1 && capita(guasti.troncati))
        byte.truncate(std::uniform_int_distribution<qsizetype>(1, byte.size() - 1)(m_caso));
    return linea(byte, guasti);
}

QByteArray FiltroGuasti::linea(const QByteArray &byte, const Guasti &guasti)
{
    if (guasti.persi <= 0.0 && guasti.doppi <= 0.0 && guasti.sporchi <= 0.0)
        return byte;
    QByteArray uscita;
    uscita.reserve(byte.size() * 2);
    for (char c : byte) {
        if (capita(guasti.persi))
            continue;
        if (capita(guasti.sporchi)) {
            // Never the same byte again: a garbled byte is a different one.
            const int altro = std::uniform_int_distribution<int>(1, 255)(m_caso);
            c = static_cast<char>(static_cast<quint8>((static_cast<quint8>(c) + altro) & 255));
        }
        uscita += c;
        if (capita(guasti.doppi))
            uscita += c;
    }
    return uscita;
}
} // namespace tessaro_sim
