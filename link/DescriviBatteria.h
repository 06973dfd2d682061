// A battery byte as a level.
#pragma once

#include <QString>

// 0 (0 to 50), 1 (to 100), 2 (to 150), 3 (to 200), 4 (to 255).
int LivelloBatteria(quint8 b);

// The word for the level, in brackets: "(Scarichissima)" to "(Carichissima)".
QString DescriviBatteria(quint8 b);
