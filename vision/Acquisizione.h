// The copying of a selected area out of a frame, a slice at a time.
#pragma once

#include "vision/Matrice.h"

#include <functional>

class Acquisizione
{
public:
    // Begins anew; all in pixels of the frame, which is kept.
    void inizia(const Matrice &pixel, quint8 left, quint8 top, quint8 width, quint8 height);

    // Copies up to two rows, at least one pixel: the pixel at (column + left, row + top) for each
    // column and row counted from 1, so that the area lies one pixel to the right of and below
    // left and top. True when the copy is complete. Where a pixel lies outside the frame:
    // Matrice::FuoriIntervallo.
    bool prosegui(const std::function<void(int colonna, int riga, qint32 colore)> &copiato);

    bool finita() const { return m_finita; }

private:
    Matrice m_pixel{0, 0};
    int m_colonna = 1;
    int m_riga = 1;
    int m_left = 0;
    int m_top = 0;
    int m_width = 0;
    int m_height = 0;
    bool m_finita = true;
};
