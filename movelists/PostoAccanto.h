// Where a window opens beside another one. Logical pixels of the whole desktop; windows are
// reckoned with their frames.
#pragma once

#include <QList>
#include <QRect>

struct Accanto
{
    int distanza = 0;
    // How much higher than the other one's upper edge.
    int piuInAlto = 0;
};

// To the right of the other window; to the left of it if there is no room to the right; if there is
// none on either side, at the right edge of the screen on which the other window is. Always wholly
// on one of the screens, and no larger than that.
QRect postoAccanto(const QRect &altra, QSize misura, Accanto accanto, const QList<QRect> &schermi);

// The same window if every bit of it is on a screen, else moved, and made smaller if need be, so
// that it is wholly on the nearest one.
QRect riportata(const QRect &finestra, const QList<QRect> &schermi);
