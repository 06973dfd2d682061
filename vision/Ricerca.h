// Searches one frame for stored pictures.
#pragma once

#include "vision/Matrice.h"

// Make a new object for each frame, and use it for all pictures that are searched for. If the scan
// for one picture ends during an attempt (a part of the picture has matched), the scan for the next
// picture continues that attempt.
class Ricerca
{
public:
    // Two packed colours are equal if they differ by this at most. The numbers are compared, not
    // the channels, so a difference in red alone (255 at most) never counts.
    static constexpr qint32 Tolleranza = 10000;

    explicit Ricerca(const Matrice &pixel) : m_pixel(pixel) {}

    // Scans the frame for a picture of W by H pixels. Returns true if it is found; the attempt then
    // began at (colonna(), riga()), counted from 1. A picture as wide or as high as the frame is
    // never found. Throws Errore::Overflow if 60 - H or 80 - W is not in the range of a byte (0 to
    // 255), and Matrice::FuoriIntervallo if the scan leaves the frame or the picture.
    bool cerca(const Matrice &Modello, qint32 W, qint32 H);

    int colonna() const { return m_colonna; }
    int riga() const { return m_riga; }

private:
    const Matrice &m_pixel;
    // Whether an attempt is running, and where the last one began.
    bool m_tentativo = false;
    int m_colonna = 0;
    int m_riga = 0;
};
