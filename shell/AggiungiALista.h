// Fills a list control.
#pragma once

#include <QString>

// Adds the entries at the end, in their order. The control is any that has AddItem.
template <class Lista, class Voci>
void AggiungiVoci(Lista &lista, const Voci &voci)
{
    for (const QString &voce : voci)
        lista.AddItem(voce);
}
