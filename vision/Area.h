// Converts a rectangle on the video surface to pixels of the frame.
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

// rettangolo: in logical pixels of the surface. zoom: logical pixels for each pixel of the frame.
// The result is cut to the frame of 80 by 60 pixels. left and top are at least 1, width and height
// may be 0. Throws Errore::DivisionePerZero if zoom is 0, and Errore::Overflow if the rectangle
// begins outside the frame or a value divided by zoom is not in the range of a byte (0 to 255).
Area areaInFotogramma(const QRectF &rettangolo, int zoom);
