// The phrases and sounds of the robot, by number from 1.
#pragma once

#include <QString>
#include <QStringList>

namespace FrasiSuoni {

inline constexpr int ultimaFrase = 140;
inline constexpr int ultimoSuono = 16;

// The robot numbers phrases and sounds together: these are added to the number of a phrase (67 to
// 206 on the wire) or of a sound (207 to 222).
inline constexpr int primaDelleFrasi = 66;
inline constexpr int primaDeiSuoni = 206;

// The text of a phrase. This function and the next two return an empty text for a number that does
// not exist.
QString frase(int numero);
// The name of a sound in the console, where the last two have none.
QString suonoConsole(int numero);
// The name of a sound in the value dialog, where all have one.
QString suonoDialogo(int numero);

// All of them, number 1 first.
QStringList frasi();
QStringList suoniDialogo();

} // namespace FrasiSuoni
