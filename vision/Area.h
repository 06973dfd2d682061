// Which pixels of the frame lie under a rectangle on the screen.
#pragma once

#include <QRectF>

// In pixels of the frame.
struct Area
{
    quint8 left = 0;
    quint8 top = 0;
    quint8 width = 0;
    quint8 height = 0;
};

// The rectangle at a zoom of so many screen pixels, cut to the frame. It begins at column and row 1
// at least, and may be 0 wide or high. Errore::DivisionePerZero without a zoom, Errore::Overflow if
// it lies too far outside the frame.
Area areaInFotogramma(const QRectF &rettangolo, int zoom);
