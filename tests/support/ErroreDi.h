// The errors of statements, for tests.
#pragma once

#include "base/Errore.h"

#include <functional>

// The number of the Errore that the statement throws; 0 if it throws none.
inline int erroreDi(const std::function<void()> &istruzione)
{
    try {
        istruzione();
        return 0;
    } catch (const Errore &errore) {
        return errore.numero();
    }
}
