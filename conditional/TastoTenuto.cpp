#include "conditional/TastoTenuto.h"

#include "controls/CasellaTesto.h"
#include "controls/Combo.h"
#include "controls/Tasti.h"

#include <QKeyEvent>
#include <utility>

void TastoTenuto::segui(CasellaTesto &casella)
{
    casella.installEventFilter(this);
}

void TastoTenuto::segui(Combo &combo)
{
    combo.installEventFilter(this);
}

bool TastoTenuto::trattiene(const QWidget *controllo)
{
    if (!controllo || m_dove != controllo)
        return false;
    m_dovuto = m_dopo == Dopo::Passa;
    return true;
}

void TastoTenuto::premuto(QWidget &controllo, const QKeyEvent &tasto)
{
    const int codice = Tasti::codice(tasto);
    const bool verticale = codice == Tasti::Su || codice == Tasti::Giu;
    if (!tasto.isAutoRepeat())
        finito();
    if (qobject_cast<CasellaTesto *>(&controllo)) {
        // All other keys type, or leave the box.
        m_dove = verticale ? &controllo : nullptr;
        m_dopo = Dopo::Resta;
    } else if (tasto.key() != Qt::Key_Tab && tasto.key() != Qt::Key_Backtab) {
        m_dove = &controllo;
        m_dopo = tasto.text().isEmpty() ? Dopo::Passa : Dopo::Resta;
    }
}

void TastoTenuto::finito()
{
    m_dove = nullptr;
    m_dovuto = false;
}

bool TastoTenuto::eventFilter(QObject *oggetto, QEvent *evento)
{
    auto *controllo = qobject_cast<QWidget *>(oggetto);
    switch (evento->type()) {
    case QEvent::KeyPress:
        premuto(*controllo, *static_cast<QKeyEvent *>(evento));
        break;
    case QEvent::KeyRelease:
        if (!static_cast<QKeyEvent *>(evento)->isAutoRepeat()) {
            const bool dovuto = m_dovuto;
            finito();
            if (dovuto && lasciato)
                lasciato();
        }
        break;
    case QEvent::FocusOut:
        finito();
        break;
    default:
        break;
    }
    return false;
}
