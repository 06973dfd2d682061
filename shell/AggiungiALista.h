// Fills a list box or a combo box.
#pragma once

#include <QString>

// Adds the entries at the end, in their order. The control can be any that has AddItem.
template <class Lista, class Voci>
void AggiungiVoci(Lista &lista, const Voci &voci)
{
    for (const QString &voce : voci)
        lista.AddItem(voce);
}
