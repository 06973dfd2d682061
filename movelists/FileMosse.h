// The list file: a count, then the lines.
#pragma once

#include "base/Errore.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

namespace FileMosse {

// Index and count have 16 bits.
inline constexpr int righeMassime = 32767;
// Errore::Overflow, with a text for the user.
Errore listaPiena();

// The file's bytes: the number of the last line between two blanks, then every line as it stands;
// CR LF behind each. A character that Windows-1252 lacks becomes "?".
QByteArray scritto(const QStringList &righe);

// Reads from the file that is open under that number, by fields, which is unlike the writing: a
// comma parts a line in two, blanks in front of it and quotes around it go. What was read before a
// failure has been given away by then: Errore::FineDelFile if the file is shorter than its count,
// Errore::Overflow if the count does not fit 16 bits, listaPiena for a line beyond righeMassime.
void leggi(int numero, const std::function<void(const QString &)> &aggiungi);

} // namespace FileMosse
