// Small calculations with bytes.
#pragma once

#include <QtGlobal>

// a * c / b, rounded toward zero. a: a value; b: the value of the full scale; c: the length of the
// full scale. Throws Errore::DivisionePerZero if b is 0, Errore::Overflow if the result does not
// fit in 32 bits.
qint32 Proporzione(quint8 a, qint32 b, qint32 c);

// The remainder of a / b. Throws Errore::DivisionePerZero if b is 0.
quint8 ModuloByte(quint8 a, quint8 b);

// The b highest bits of a, as a number; b from 0 to 8, a larger one counts as 8.
qint32 BitAlti(quint8 a, quint8 b);
