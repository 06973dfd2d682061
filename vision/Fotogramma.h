// One frame, row by row as it comes from the robot.
#pragma once

#include "vision/Matrice.h"

#include <QByteArrayView>

class Fotogramma
{
public:
    static constexpr int Colonne = 80;
    static constexpr int Righe = 60;

    // Rows taken so far.
    quint8 Riga = 0;
    Matrice Pixel{Colonne, Righe};

    // Takes the next row, scala times 8 pixels of two bytes; more bytes are ignored. True where
    // the frame's scala times 6 rows are complete now. Riga stands at the new row also where that
    // fails: Errore::ChiamataNonValida for a row that is too short, Matrice::FuoriIntervallo for
    // one that has no place in the frame, Errore::Overflow beyond row 255.
    bool aggiungi(QByteArrayView riga, int scala);
};
