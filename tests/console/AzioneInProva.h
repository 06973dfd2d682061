// What an action does on a line without a system.
#pragma once

#include "Azione.h"
#include "PortaFinta.h"
#include "Scritte.h"

inline QByteArray byteDi(const Azione &azione)
{
    SerialeFinto seriale;
    seriale.apri();
    azione.comando(seriale.COM);
    return seriale.porta.scritti();
}
