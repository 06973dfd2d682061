// The search for stored pictures in one frame.
#pragma once

#include "vision/Matrice.h"

// One run through the stored pictures: make it anew for each frame. An attempt that is under way
// when the scan for one picture ends is carried into the scan for the next.
class Ricerca
{
public:
    // How far two colours may lie apart, as plain numbers, and count as equal.
    static constexpr qint32 Tolleranza = 10000;

    explicit Ricerca(const Matrice &pixel) : m_pixel(pixel) {}

    // Scans the frame for a picture of W by H; true where it is found, its first pixel being at
    // (colonna(), riga()). A picture as wide or as high as the frame is never found; a larger one
    // is Errore::Overflow; a scan that runs out of the frame or the picture is
    // Matrice::FuoriIntervallo.
    bool cerca(const Matrice &Modello, qint32 W, qint32 H);

    int colonna() const { return m_colonna; }
    int riga() const { return m_riga; }

private:
    const Matrice &m_pixel;
    // The attempt: whether one is under way, and where it began.
    bool m_tentativo = false;
    int m_colonna = 0;
    int m_riga = 0;
};
