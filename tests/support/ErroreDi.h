// Failures of statements, as tests look at them.
#pragma once

#include "base/Errore.h"

#include <functional>

// The number of the error that the statement fails with, 0 where it does not fail.
inline int erroreDi(const std::function<void()> &istruzione)
{
    try {
        istruzione();
        return 0;
    } catch (const Errore &errore) {
        return errore.numero();
    }
}
