// The border between bytes and characters: Windows-1252 on every system.
#pragma once

#include <QByteArray>
#include <QString>

namespace Codifica {

// One character for each byte. The five bytes that the code page leaves open (129, 141, 143, 144,
// 157) become the control characters of the same number, so that all 256 survive the round trip.
QString daByte(QByteArrayView byte);

// The way back; a character outside the code page becomes "?".
QByteArray inByte(QStringView testo);

} // namespace Codifica
