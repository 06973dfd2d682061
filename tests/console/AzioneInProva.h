// What an action does on a line without a system.
#pragma once

#include "console/Azione.h"
#include "tests/support/PortaFinta.h"
#include "tests/support/Scritte.h"

inline QByteArray byteDi(const Azione &azione)
{
    SerialeFinto seriale;
    seriale.apri();
    azione.comando(seriale.COM);
    return seriale.porta.scritti();
}
