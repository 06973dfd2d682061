// The mark that shows where the keyboard points on the picture: a small square.
#pragma once

#include "vision/InPixel.h"

class Mirino : public FormaInPixel
{
    Q_OBJECT

public:
    Mirino(const QString &nome, QWidget *superficie);

    // The centre of the mark, in pixels of the surface; null before the first sposta().
    QPoint posto() const { return m_posto; }
    // Moves the mark by so many pixels and shows it. The first move starts from the middle of the
    // surface. The centre of the mark stays inside the surface.
    void sposta(QPoint di);
    // Hides the mark. The next sposta() starts from the middle again.
    void azzera();

private:
    QPoint m_posto;
};
