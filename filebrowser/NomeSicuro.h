// Checks the names of the files that come from the robot.
#pragma once

#include <QString>

// Whether a fetched file may have that name. The file must be created in the program's folder: no
// separator, no "..", no control character, no name that a system reserves. It must not be one of
// the program's own files, in capitals or small letters. Lists and projects belong to the user, so
// the robot may send them.
bool nomeSicuro(const QString &nome);
