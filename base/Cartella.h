// The folder of the program's files, and small functions for paths.
#pragma once

#include <QString>

// Returns the folder of the executable if it is writable, else the user's data folder for the
// program, which is created if it is missing. An installed program (there is a folder
// ../share/lumbra/liste) always uses the user's folder. Copies the sample lists into the folder:
// those of share/lumbra/liste, or of the folder liste next to the executable. Called once, at the
// start.
QString trovaCartellaProgramma();

// The same for an executable in the folder accanto and a user whose data folder is utente.
QString trovaCartellaProgramma(const QString &accanto, const QString &utente);

// Copies the samples (*.sqm and prog.dat) of the folder esempi into the program's folder, only
// once: the file .esempi marks that it was done, so that a sample that the user deletes does not
// come back. A file that is there already is kept, whatever the case of its name. Throws nothing;
// if a copy fails, the next call tries again.
void portaEsempi(const QString &esempi, const QString &cartella);

// The part of a path after its last "\" or "/"; the whole text if it has none.
QString nomeDelFile(const QString &percorso);

// The folder with a "/" at its end, unless it has a separator there already, as "/" and "C:\" do.
QString conSeparatore(const QString &cartella);
