// One frame of the robot's video, filled row by row.
#pragma once

#include "vision/Matrice.h"

#include <QByteArrayView>

class Fotogramma
{
public:
    static constexpr int Colonne = 80;
    static constexpr int Righe = 60;

    // The number of rows received so far.
    quint8 Riga = 0;
    Matrice Pixel{Colonne, Righe};

    // Takes the next row: scala * 8 pixels of two bytes each, further bytes are ignored. Returns
    // true if the frame now has its scala * 6 rows. The row is counted before it is read, so it
    // also counts if this throws: Errore::ChiamataNonValida if the row is too short,
    // Matrice::FuoriIntervallo if its pixels are outside Pixel. At 255 rows the count stays, and
    // Errore::Overflow is thrown.
    bool aggiungi(QByteArrayView riga, int scala);
};
