// Where the program's files are.
#pragma once

#include <QString>

// The folder of the executable where it can be written to, else the user's data folder for the
// program, which is made where it is missing. An installed program, with its share/lumbra beside
// its bin, always takes the user's folder. The folder gets the sample lists: those of share/lumbra,
// or of the folder liste beside the executable. Asked once, at the start.
QString trovaCartellaProgramma();

// The same for an executable in the folder accanto and a user with the data folder utente.
QString trovaCartellaProgramma(const QString &accanto, const QString &utente);

// Copies the lists of the folder esempi into the program's folder, once: what the user has of the
// same name, in any case, stays, and what he deletes later does not come back. Failures are passed
// over; what failed is tried again at the next call.
void portaEsempi(const QString &esempi, const QString &cartella);

// The name behind the last backslash or "/" of a path, or the whole text.
QString nomeDelFile(const QString &percorso);

// The folder with the separator behind it, unless it ends in one already, as a root does.
QString conSeparatore(const QString &cartella);
