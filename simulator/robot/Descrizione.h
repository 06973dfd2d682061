#pragma once
#include "simulator/robot/Riconoscitore.h"

inline namespace tessaro_sim {
// Turns the bytes of one whole command into its meaning. `byte` must be one that the recogniser
// cut out: the first byte and the length are taken as right.
Comando descrivi(const QByteArray &byte);

// The name of a head LED, as "Vs", from its single bit; "?" for anything else.
QString nomeLed(int maschera);
} // namespace tessaro_sim
