// Tests if a value is one of several.
#pragma once

// True if valore equals one of the others; false for an empty list.
template <class Valore, class... Lista>
bool ContieneValore(const Valore &valore, const Lista &...lista)
{
    return ((valore == lista) || ...);
}
