#include "tests/support/Attesa.h"

#include "base/Pompa.h"

#include <QElapsedTimer>

bool aspetta(const std::function<bool()> &condizione)
{
    QElapsedTimer orologio;
    orologio.start();
    while (!condizione()) {
        if (orologio.hasExpired(60'000))
            return false;
        pompa();
    }
    return true;
}

void gira(int giri)
{
    for (int i = 0; i < giri; ++i)
        pompa();
}
