#include "controls/Controllo.h"

int numeroPulsante(Qt::MouseButton pulsante)
{
    return numeroPulsanti(pulsante);
}

int numeroPulsanti(Qt::MouseButtons pulsanti)
{
    return (pulsanti.testFlag(Qt::LeftButton) ? 1 : 0) +
           (pulsanti.testFlag(Qt::RightButton) ? 2 : 0) +
           (pulsanti.testFlag(Qt::MiddleButton) ? 4 : 0);
}

int numeroMaiuscole(Qt::KeyboardModifiers tasti)
{
    return (tasti.testFlag(Qt::ShiftModifier) ? 1 : 0) +
           (tasti.testFlag(Qt::ControlModifier) ? 2 : 0) +
           (tasti.testFlag(Qt::AltModifier) ? 4 : 0);
}
