// The default condition, in "Prog.dat". Errors are those of reading and writing a file.
#pragma once

#include <QString>

namespace ProgDat {

// condizionePredefinita where the file holds none. A file without a semicolon is all condition.
QString leggiCondizione();

// Keeps the field before the condition, or gives it the value "1" where it is empty. A file that
// cannot be read is left alone.
void scriviCondizione(const QString &condizione);

} // namespace ProgDat
