// Packed colours: red + green * 256 + blue * 65536, each channel from 0 to 255.
#pragma once

#include <QByteArrayView>
#include <QRgb>

// The packed colour of a pixel from its two bytes in wire order: big-endian RGB with 5 bits for
// red, 6 for green, 5 for blue. Further bytes are ignored. Throws Errore::ChiamataNonValida if
// there are fewer than two.
qint32 ColorePixel(QByteArrayView byte);

// The same colour for Qt, opaque. Bits above the three channels are dropped.
constexpr QRgb rgb(qint32 colore)
{
    return qRgb(colore & 255, (colore >> 8) & 255, (colore >> 16) & 255);
}
