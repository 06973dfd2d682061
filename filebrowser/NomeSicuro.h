// Names that the robot may give a fetched file.
#pragma once

#include <QString>

// Whether a fetched file may have that name: it lies in the folder and nowhere else (no separator,
// no "..", no control character, no name that a system reserves), and it is none of the program's
// own files, whatever the case of its letters. Lists and projects are the user's, not the
// program's: the robot may send them like any other file.
bool nomeSicuro(const QString &nome);
