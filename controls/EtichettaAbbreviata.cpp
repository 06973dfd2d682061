#include "controls/EtichettaAbbreviata.h"

#include <QPainter>
#include <QStyle>

void EtichettaAbbreviata::paintEvent(QPaintEvent *)
{
    QPainter pittore(this);
    const QString testo = fontMetrics().elidedText(text(), Qt::ElideRight, width());
    style()->drawItemText(&pittore, rect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          testo, foregroundRole());
}
