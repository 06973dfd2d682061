// Is a value one of several?
#pragma once

// False for an empty list.
template <class Valore, class... Lista>
bool ContieneValore(const Valore &valore, const Lista &...lista)
{
    return ((valore == lista) || ...);
}
