// A label that looks like a button, on the shape that is its plate: both sink while it is pressed.
#pragma once

#include "controls/Grafica.h"

class Targa
{
public:
    // Where both rest after a press, in layout units.
    Targa(Etichetta &etichetta, Forma &forma, double left, double top);

    void premi();
    void rilascia();
    bool premuta() const { return m_premuta; }

private:
    Etichetta &m_etichetta;
    Forma &m_forma;
    double m_left;
    double m_top;
    bool m_premuta = false;
};
