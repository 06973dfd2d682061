// The picture by keyboard: what a mouse that presses, drags and lets go does on it.
#include "Numeri.h"
#include "Tasti.h"
#include "frmCamera.h"

#include <QKeyEvent>

namespace {

constexpr int passoLungo = 10;

} // namespace

void frmCamera::keyPressEvent(QKeyEvent *evento)
{
    bool suo = false;
    eseguiGestore([&] { suo = tasto(*evento); });
    if (!suo)
        Finestra::keyPressEvent(evento);
}

// Whether the picture takes the key.
bool frmCamera::tasto(const QKeyEvent &evento)
{
    const int passo = evento.modifiers().testFlag(Qt::ControlModifier) ? passoLungo : 1;
    switch (Tasti::codice(evento)) {
    case Tasti::Sinistra:
        muoviMirino(-passo, 0);
        break;
    case Tasti::Destra:
        muoviMirino(passo, 0);
        break;
    case Tasti::Su:
        muoviMirino(0, -passo);
        break;
    case Tasti::Giu:
        muoviMirino(0, passo);
        break;
    case Tasti::Spazio:
        if (!evento.isAutoRepeat())
            spazio();
        break;
    case Tasti::Esc:
        if (m_traccia)
            shpSelezione.hide();
        lasciaMirino();
        break;
    case Tasti::F5:
        if (!evento.isAutoRepeat())
            Schermo_DblClick();
        break;
    default:
        return false;
    }
    return true;
}

// In pixels of the frame; the first move begins at the middle.
void frmCamera::muoviMirino(int colonne, int righe)
{
    if (m_mirino.isNull())
        m_mirino = Schermo.rect().center();
    const int s = qMax(1, zoom());
    m_mirino += QPoint(colonne * s, righe * s);
    mostraMirino();
    if (m_traccia)
        Schermo_MouseMove(1, 0, m_mirino.x(), m_mirino.y());
}

void frmCamera::mostraMirino()
{
    // The window may have become smaller.
    m_mirino = {qBound(1, m_mirino.x(), Schermo.width() - 1),
                qBound(1, m_mirino.y(), Schermo.height() - 1)};
    shpMirino.Move(m_mirino.x() - shpMirino.width() / 2, m_mirino.y() - shpMirino.height() / 2);
    shpMirino.raise();
    shpMirino.show();
}

void frmCamera::spazio()
{
    if (m_traccia) {
        lasciaMirino();
        Schermo_MouseUp();
        return;
    }
    if (m_mirino.isNull())
        m_mirino = Schermo.rect().center();
    Schermo_MouseDown(1, 0, m_mirino.x(), m_mirino.y());
    m_traccia = shpSelezione.Visible();
    mostraMirino();
}

void frmCamera::lasciaMirino()
{
    m_traccia = false;
    shpMirino.hide();
}
