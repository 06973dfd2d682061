// Searching in texts.
#pragma once

#include <QString>

// Searches lettera (one character or more, exact comparison) from the right. Gives the position
// counted from the right end, 1 being the last character, or 0 where it is not found; with avvisa
// that is told in a message box instead, and the program halts.
qint32 InStrDx(const QString &testo, const QString &lettera, bool avvisa = false);
