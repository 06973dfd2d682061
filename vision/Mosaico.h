// Enlarges pictures: each pixel becomes a square.
#pragma once

#include "vision/Matrice.h"

#include <QImage>

// Draws the upper left part of a table of packed colours: colonne by righe pixels, each as a square
// of lato by lato pixels. Returns a null image if one of the three numbers is 0 or negative. Throws
// Matrice::FuoriIntervallo if the part is larger than the table.
QImage mosaico(const Matrice &colori, int colonne, int righe, int lato);
