// Pictures made large: each pixel a box.
#pragma once

#include "vision/Matrice.h"

#include <QImage>

// The upper left part of a table of colours, colonne by righe of it, each pixel a box of lato by
// lato. A null image where there is nothing to draw. An area beyond the table is the error
// Matrice::FuoriIntervallo.
QImage mosaico(const Matrice &colori, int colonne, int righe, int lato);
