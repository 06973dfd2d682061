#include "filebrowser/ElencoCrescente.h"

#include <QTimerEvent>

namespace {

constexpr int pausa = 100; // ms

} // namespace

void ElencoCrescente::assesta()
{
    const int prima = std::exchange(m_prima, -1);
    if (prima >= 0)
        Elenco::rowsInserted({}, prima, count() - 1);
}

void ElencoCrescente::rowsInserted(const QModelIndex &sopra, int prima, int ultima)
{
    const bool inFondo = ultima == count() - 1;
    if (inFondo && m_pausa.isActive()) {
        if (m_prima < 0)
            m_prima = prima;
        return;
    }
    assesta();
    Elenco::rowsInserted(sopra, prima, ultima);
    m_pausa.start(pausa, this);
}

void ElencoCrescente::rowsAboutToBeRemoved(const QModelIndex &sopra, int prima, int ultima)
{
    assesta();
    Elenco::rowsAboutToBeRemoved(sopra, prima, ultima);
}

void ElencoCrescente::reset()
{
    m_prima = -1;
    Elenco::reset();
}

QModelIndex ElencoCrescente::moveCursor(CursorAction azione, Qt::KeyboardModifiers tasti)
{
    assesta();
    return Elenco::moveCursor(azione, tasti);
}

void ElencoCrescente::timerEvent(QTimerEvent *evento)
{
    if (evento->timerId() != m_pausa.timerId()) {
        Elenco::timerEvent(evento);
        return;
    }
    if (m_prima < 0)
        m_pausa.stop();
    assesta();
}
