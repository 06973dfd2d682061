// Searching in texts.
#pragma once

#include <QString>

// Searches lettera (one or more characters, case-sensitive) from the right. Returns the position of
// its first character, counted from the right end (1 is the last character), or 0 if it is not
// found. With avvisa, a text that is not found is reported in a message box, and the program ends.
qint32 InStrDx(const QString &testo, const QString &lettera, bool avvisa = false);
