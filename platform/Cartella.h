// Where the program's files are.
#pragma once

#include <QString>

// The folder of the executable where it can be written to, else the user's data folder for the
// program, which is made where it is missing. Asked once, at the start.
QString trovaCartellaProgramma();

// The name behind the last backslash or "/" of a path, or the whole text.
QString nomeDelFile(const QString &percorso);

// The folder with the separator behind it, unless it ends in one already, as a root does.
QString conSeparatore(const QString &cartella);
