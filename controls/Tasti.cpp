#include "controls/Tasti.h"

#include <QKeyEvent>

int Tasti::codice(const QKeyEvent &evento)
{
    switch (const int tasto = evento.key()) {
    case Qt::Key_Backspace:
        return Backspace;
    case Qt::Key_Tab:
        return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Invio;
    case Qt::Key_Shift:
        return 16;
    case Qt::Key_Control:
        return 17;
    case Qt::Key_Alt:
        return 18;
    case Qt::Key_Escape:
        return Esc;
    case Qt::Key_PageUp:
        return 33;
    case Qt::Key_PageDown:
        return 34;
    case Qt::Key_End:
        return 35;
    case Qt::Key_Home:
        return 36;
    case Qt::Key_Left:
        return Sinistra;
    case Qt::Key_Up:
        return Su;
    case Qt::Key_Right:
        return Destra;
    case Qt::Key_Down:
        return Giu;
    case Qt::Key_Delete:
        return Canc;
    case Qt::Key_Menu:
        return Menu;
    default:
        if (tasto == Qt::Key_Space || (tasto >= Qt::Key_0 && tasto <= Qt::Key_9) ||
            (tasto >= Qt::Key_A && tasto <= Qt::Key_Z))
            return tasto;
        if (tasto >= Qt::Key_F1 && tasto <= Qt::Key_F24)
            return 112 + (tasto - Qt::Key_F1);
        return 255;
    }
}
