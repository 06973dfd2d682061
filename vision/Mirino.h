// Where the keyboard points on the picture.
#pragma once

#include "vision/InPixel.h"

class Mirino : public FormaInPixel
{
    Q_OBJECT

public:
    Mirino(const QString &nome, QWidget *superficie);

    // In pixels of the surface.
    QPoint posto() const { return m_posto; }
    // From where it was last, at first the middle; it stays on the surface, and is seen.
    void sposta(QPoint di);
    // Seen no longer, and at the middle again the next time.
    void azzera();

private:
    QPoint m_posto;
};
