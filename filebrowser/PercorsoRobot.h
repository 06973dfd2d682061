// The names of the robot's folders as paths that it understands.
#pragma once

#include <QString>

// The path that opens a folder shown under that name: "disk", "mmc" and "usb" are words for the
// places of the top level, any other name is its own path.
QString percorsoCartella(const QString &nome);

// What stands before the names of the files in that folder: the name with "/" behind it, nothing
// for "disk" and ".".
QString prefissoCartella(const QString &nome);
