#include "simulator/line/Riproduttore.h"
#include <algorithm>

inline namespace tessaro_sim {
Riproduttore::Riproduttore()
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { scaduto(); });
}

bool Riproduttore::carica(const QString &file, bool tempiOriginali)
{
    QList<Registrazione::Tratto> tratti;
    if (!Registrazione::leggi(file, tratti, m_errore))
        return false;
    ferma();
    const auto console =
        std::find_if(tratti.cbegin(), tratti.cend(), [](const auto &t) { return t.versoRobot; });
    m_base = console == tratti.cend() ? 0 : console->ms;
    m_tratti.clear();
    std::copy_if(tratti.cbegin(), tratti.cend(), std::back_inserter(m_tratti),
                 [](const auto &t) { return !t.versoRobot; });
    m_prossimo = 0;
    m_tempi = tempiOriginali;
    m_attivo = true;
    m_scattato = false;
    // A recording of the robot alone waits for nobody.
    if (console == tratti.cend())
        scatta();
    return true;
}

void Riproduttore::scatta()
{
    if (!m_attivo || m_scattato)
        return;
    m_scattato = true;
    m_orologio.start();
    programma();
}

void Riproduttore::ferma()
{
    m_attivo = false;
    m_timer.stop();
}

void Riproduttore::avanti()
{
    if (m_attivo && m_scattato && !m_tempi && !m_timer.isActive())
        m_timer.start(0);
}

void Riproduttore::programma()
{
    if (!m_tempi || m_prossimo >= m_tratti.size()) {
        m_timer.start(0);
        return;
    }
    const qint64 attesa = m_tratti.at(m_prossimo).ms - m_base - m_orologio.elapsed();
    m_timer.start(static_cast<int>(std::clamp<qint64>(attesa, 0, 1000000000)));
}

void Riproduttore::scaduto()
{
    if (!m_attivo)
        return;
    if (m_prossimo >= m_tratti.size()) {
        m_attivo = false;
        if (suFine)
            suFine();
        return;
    }
    const QByteArray byte = m_tratti.at(m_prossimo++).byte;
    // Without original times the queue asks for more by avanti().
    if (m_tempi || m_prossimo >= m_tratti.size())
        programma();
    if (suByte)
        suByte(byte);
}
} // namespace tessaro_sim
