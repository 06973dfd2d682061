// The head's LEDs as the console shows them: sides, rows of the colour lists, the hover arrows.
#pragma once

#include "console/Azione.h"

#include <array>

// lato is "destro", "sinistro" or empty, the side of the robot under the mouse.
namespace LedTesta {

// The head faces the user, so the robot's right lies on the picture's left half; the middle counts
// as the right half.
QString lato(double x, double larghezza);

// "Vs", "Vd" ... "Bd": the colour of a list's row (0 to 3), then the side; "s" for any side that is
// not "destro". Without the colour for any other row.
QString nome(int riga, const QString &lato);

// One LED, on or off.
Azione azione(int riga, const QString &lato, bool acceso);
// What panel 3 shows while the mouse is over a row; empty for a row that is not there.
QString suggerimento(int riga, const QString &lato, bool acceso);
Azione tutti(bool acceso);

// The row at a height in a list, both in layout units; -1 and below, or beyond the last row,
// outside of it.
int rigaSotto(double y, double altezzaRiga);

// The next step of the hover arrows: 0, 30 ... 210, then 0 again.
quint8 passoSeguente(quint8 passo);

// Layout units on the head's picture.
struct Punto
{
    double Left;
    double Top;
};
// Where arrows 0 to 3 stand at a step.
std::array<Punto, 4> frecce(quint8 passo, const QString &lato, double larghezza);

} // namespace LedTesta
