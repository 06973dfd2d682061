// Texts into numbers, numbers into the integers of the design, truth values.
#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace Numeri {

// The lenient scan: blanks are skipped wherever they stand, the longest leading decimal number
// (sign, digits, point, digits) is taken; a text without one gives 0. Never fails.
double Valore(QStringView testo);
double Valore(QByteArrayView testo);

// Fractions are rounded half to even; a value out of range is Errore::Overflow.
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

// "True", "False" in any case, or a whole number text, true when not 0; any other text is
// Errore::TipoNonCorrispondente.
bool Logico(QStringView testo);

// "True" or "False", the text form that Logico reads back.
QString TestoLogico(bool valore);

} // namespace Numeri
