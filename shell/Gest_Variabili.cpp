#include "shell/Gest_Variabili.h"

#include "base/Errore.h"

#include <limits>

qint32 Proporzione(quint8 a, qint32 b, qint32 c)
{
    if (b == 0)
        throw Errore(Errore::DivisionePerZero);
    const qint64 risultato = qint64{a} * c / b;
    if (risultato < std::numeric_limits<qint32>::min() ||
        risultato > std::numeric_limits<qint32>::max())
        throw Errore(Errore::Overflow);
    return static_cast<qint32>(risultato);
}

quint8 ModuloByte(quint8 a, quint8 b)
{
    if (b == 0)
        throw Errore(Errore::DivisionePerZero);
    return static_cast<quint8>(a % b);
}

qint32 BitAlti(quint8 a, quint8 b)
{
    return a >> (8 - qMin<int>(b, 8));
}
