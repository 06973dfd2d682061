// Colours: red + green times 256 + blue times 65536, each 0 to 255.
#pragma once

#include <QByteArrayView>
#include <QRgb>

// The colour of a pixel from its two bytes in wire order, 5 bits red, 6 green, 5 blue. What stands
// behind them is not read; fewer than two bytes are Errore::ChiamataNonValida.
qint32 ColorePixel(QByteArrayView byte);

// The same colour as the window system writes it, opaque; bits beyond the three channels are
// dropped.
constexpr QRgb rgb(qint32 colore)
{
    return qRgb(colore & 255, (colore >> 8) & 255, (colore >> 16) & 255);
}
