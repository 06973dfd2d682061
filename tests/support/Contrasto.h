// How well text can be read.
#pragma once

#include <QColor>
#include <QStringList>

class QWidget;

// Of two colours, 1 to 21, as the accessibility guidelines of the web reckon it.
double contrasto(const QColor &uno, const QColor &altro);

// The visible controls of a window whose text stands out from the ground painted beneath it by less
// than 4.5 : 1, each with its name, its colours and its contrast. Disabled controls count as well.
QStringList pocoLeggibili(QWidget &finestra);
