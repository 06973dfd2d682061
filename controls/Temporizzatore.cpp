#include "controls/Temporizzatore.h"

#include "base/Errore.h"

#include <QSet>

namespace {

QSet<Temporizzatore *> vivi;

} // namespace

Temporizzatore::Temporizzatore(const QString &nome, QObject *finestra) : QObject(finestra)
{
    setObjectName(nome);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Temporizzatore::scatta);
    vivi.insert(this);
}

Temporizzatore::~Temporizzatore()
{
    vivi.remove(this);
}

void Temporizzatore::fermaTutti()
{
    for (Temporizzatore *timer : std::as_const(vivi))
        timer->setEnabled(false);
}

void Temporizzatore::setInterval(int millisecondi)
{
    if (millisecondi < 0 || millisecondi > 65535)
        throw Errore(Errore::ProprietaNonValida);
    m_intervallo = millisecondi;
    riparti();
}

void Temporizzatore::setEnabled(bool attivo)
{
    m_attivo = attivo;
    riparti();
}

void Temporizzatore::riparti()
{
    if (m_attivo && m_intervallo > 0)
        m_timer.start(m_intervallo);
    else
        m_timer.stop();
}

void Temporizzatore::scatta()
{
    if (m_aperti > 0) {
        // A suspended tick may last for hours: no wake-ups until it closes.
        m_timer.stop();
        return;
    }
    const ScattoAperto scatto(*this);
    Timer();
}

Temporizzatore::ScattoAperto::ScattoAperto(Temporizzatore &timer) : m_timer(timer)
{
    ++m_timer.m_aperti;
}

Temporizzatore::ScattoAperto::~ScattoAperto()
{
    if (--m_timer.m_aperti == 0 && !m_timer.m_timer.isActive())
        m_timer.riparti();
}
