// The charge of a battery as a level and as a word.
#pragma once

#include <QString>

// The level of a battery byte: 0 up to 50, 1 up to 100, 2 up to 150, 3 up to 200, 4 up to 255.
int LivelloBatteria(quint8 b);

// The word for the level of a battery byte, "(Scarichissima)" to "(Carichissima)", with brackets.
QString DescriviBatteria(quint8 b);
