#include "base/Codifica.h"

#include <array>

namespace {

// Bytes 128 to 159 of Windows-1252; all other bytes are the character of the same number.
constexpr std::array<char16_t, 32> alti = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char inByte(char16_t carattere)
{
    if (carattere < 128 || (carattere >= 160 && carattere < 256))
        return static_cast<char>(carattere);
    for (size_t i = 0; i < alti.size(); ++i) {
        if (alti[i] == carattere)
            return static_cast<char>(128 + i);
    }
    return '?';
}

} // namespace

namespace Codifica {

QString daByte(QByteArrayView byte)
{
    QString testo(byte.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < byte.size(); ++i) {
        const auto b = static_cast<unsigned char>(byte[i]);
        testo[i] = QChar(b >= 128 && b < 160 ? alti[b - 128u] : char16_t(b));
    }
    return testo;
}

QByteArray inByte(QStringView testo)
{
    QByteArray byte(testo.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < testo.size(); ++i)
        byte[i] = ::inByte(testo[i].unicode());
    return byte;
}

} // namespace Codifica
