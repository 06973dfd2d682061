// Turns the names of the robot's folders into paths for the robot.
#pragma once

#include <QString>

// The path that opens the folder shown under that name. On the top level "disk" is the empty path,
// "mmc" is "../mmc" and "usb" is "../usb"; any other name is its own path.
QString percorsoCartella(const QString &nome);

// The prefix for the names of the files in that folder: the name followed by "/", empty for "disk"
// and ".".
QString prefissoCartella(const QString &nome);
