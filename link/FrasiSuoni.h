// The one vocabulary of what the robot can say and play, by number.
#pragma once

#include <QString>
#include <QStringList>

namespace FrasiSuoni {

inline constexpr int ultimaFrase = 140;
inline constexpr int ultimoSuono = 16;

// What is added to the number of a phrase or of a sound for the robot, which has one numbering for
// both.
inline constexpr int primaDelleFrasi = 66;
inline constexpr int primaDeiSuoni = 206;

// Empty for a number that is not in the table.
QString frase(int numero);
// As the console names sounds: the last two have no name there.
QString suonoConsole(int numero);
// As the value dialog names them: all of them have one.
QString suonoDialogo(int numero);

// In their order, number 1 first.
QStringList frasi();
QStringList suoniDialogo();

} // namespace FrasiSuoni
