// Conversions: texts to numbers, numbers to integers of 8, 16 and 32 bits, texts to truth values.
#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace Numeri {

// Reads the decimal number at the start of a text: sign, digits, point, digits, as long as it goes.
// Blanks, tabs and line ends are skipped everywhere, also inside the number. A text that begins
// with no number gives 0. Throws nothing.
double Valore(QStringView testo);
double Valore(QByteArrayView testo);

// Byte: 0 to 255. Intero: 16 bits with sign. Lungo: 32 bits with sign. A fraction is rounded to the
// nearest whole number, a half to the even one. A value out of range throws Errore::Overflow.
quint8 Byte(double valore);
qint16 Intero(double valore);
qint32 Lungo(double valore);

inline quint8 Byte(QStringView testo)
{
    return Byte(Valore(testo));
}
inline qint16 Intero(QStringView testo)
{
    return Intero(Valore(testo));
}
inline qint32 Lungo(QStringView testo)
{
    return Lungo(Valore(testo));
}

// Reads "True" or "False", in upper or lower case, or a number, which is true if it is not 0. The
// whole text must be one of these; any other text throws Errore::TipoNonCorrispondente.
bool Logico(QStringView testo);

// "True" or "False", as Logico reads it.
QString TestoLogico(bool valore);

} // namespace Numeri
