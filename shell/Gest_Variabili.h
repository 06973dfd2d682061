// Small sums on bytes.
#pragma once

#include <QtGlobal>

// a times c, divided by b and rounded toward zero: a is a value, b its full scale, c the length
// wanted. A b of 0 is Errore::DivisionePerZero, a result beyond 32 bits Errore::Overflow.
qint32 Proporzione(quint8 a, qint32 b, qint32 c);

// The remainder of a divided by b; a b of 0 is Errore::DivisionePerZero.
quint8 ModuloByte(quint8 a, quint8 b);

// The b high bits of a, b from 0 to 8: a divided by 2 to the power of 8 minus b.
qint32 BitAlti(quint8 a, quint8 b);
