#include "conditional/OraDiLista.h"

#include "base/Numeri.h"

bool oraDiLista(QStringView condizione, QStringView adesso)
{
    bool numero = false;
    const double ore = condizione.left(2).trimmed().toDouble(&numero);
    if (!numero || ore != Numeri::Valore(adesso.left(2)))
        return false;
    for (const qsizetype posto : {3, 6}) {
        if (Numeri::Valore(condizione.mid(posto, 2)) != Numeri::Valore(adesso.mid(posto, 2)))
            return false;
    }
    return true;
}
