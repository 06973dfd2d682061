// The picture by keyboard: what a mouse that presses, drags and lets go does on it.
#include "Tasti.h"
#include "frmCamera.h"

#include <QKeyEvent>

namespace {

constexpr int passoLungo = 10;

} // namespace

void frmCamera::keyPressEvent(QKeyEvent *evento)
{
    const int codice = Tasti::codice(*evento);
    const int passo = evento->modifiers().testFlag(Qt::ControlModifier) ? passoLungo : 1;
    const bool ripetuto = evento->isAutoRepeat();
    switch (codice) {
    case Tasti::Sinistra:
        eseguiGestore([=, this] { muoviMirino(-passo, 0); });
        break;
    case Tasti::Destra:
        eseguiGestore([=, this] { muoviMirino(passo, 0); });
        break;
    case Tasti::Su:
        eseguiGestore([=, this] { muoviMirino(0, -passo); });
        break;
    case Tasti::Giu:
        eseguiGestore([=, this] { muoviMirino(0, passo); });
        break;
    case Tasti::Spazio:
        if (!ripetuto)
            eseguiGestore([this] { spazio(); });
        break;
    case Tasti::Esc:
        eseguiGestore([this] { lasciaSelezione(); });
        break;
    case Tasti::F5:
        if (!ripetuto)
            eseguiGestore([this] { Schermo_DblClick(); });
        break;
    default:
        Finestra::keyPressEvent(evento);
    }
}

// In pixels of the frame; the first move begins at the middle.
void frmCamera::muoviMirino(int colonne, int righe)
{
    if (nominando())
        return;
    if (m_mirino.isNull())
        m_mirino = Schermo.rect().center();
    const int s = qMax(1, m_video.zoom());
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
    if (nominando())
        return;
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

void frmCamera::lasciaSelezione()
{
    if (m_traccia) {
        shpSelezione.hide();
        m_selezione.interrompi();
    }
    lasciaMirino();
}

void frmCamera::lasciaMirino()
{
    m_traccia = false;
    shpMirino.hide();
}
