// Conversion between bytes and text: Windows-1252 on every system, for the wire and for files.
#pragma once

#include <QByteArray>
#include <QString>

namespace Codifica {

// One character for each byte. The five bytes without a character in the code page (129, 141, 143,
// 144, 157) become the control characters of the same number, so that inByte gives back all 256.
QString daByte(QByteArrayView byte);

// One byte for each UTF-16 unit; a character outside the code page becomes "?".
QByteArray inByte(QStringView testo);

} // namespace Codifica
