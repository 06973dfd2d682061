#include "vision/InPixel.h"

#include <QPainter>

void FormaInPixel::paintEvent(QPaintEvent *evento)
{
    InPixel::paintEvent(evento);
    constexpr double dentro = bordo + 0.5;
    const QRectF linea = QRectF(rect()).adjusted(dentro, dentro, -dentro, -dentro);
    if (linea.isEmpty())
        return;
    QPainter pittore(this);
    pittore.setPen(QColor(0x20, 0x24, 0x28));
    pittore.drawRect(linea);
}
