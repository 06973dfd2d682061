// The contrast of texts.
#pragma once

#include <QColor>
#include <QStringList>

class QWidget;

// The contrast of two colours, from 1 to 21, by the formula of the WCAG.
double contrasto(const QColor &uno, const QColor &altro);

// The visible controls of a window whose text has a contrast below 4.5 : 1 with the ground that is
// painted under it. Each is given with its name, its colours and its contrast. Disabled controls
// are included.
QStringList pocoLeggibili(QWidget &finestra);
