#include "simulator/line/Uscita.h"
#include "simulator/line/Linea.h"
#include <utility>

inline namespace tessaro_sim {
Uscita::Uscita(Linea &linea) : m_linea(linea)
{
    m_orologio.start();
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { spedisci(); });
}

qsizetype Uscita::accoda(const QByteArray &byte)
{
    const qsizetype posto = qMin(byte.size(), massimo - m_coda.size());
    m_coda += byte.left(posto);
    if (!m_coda.isEmpty() && !m_timer.isActive()) {
        // The pace starts now, not when the timer first comes round.
        m_ritmo.permessi(m_orologio.elapsed(), m_coda.size());
        m_timer.start(m_ritmo.baud() > 0 ? 4 : 0);
    }
    return byte.size() - posto;
}

qsizetype Uscita::accodaRiga(const QByteArray &byte)
{
    if (m_coda.isEmpty())
        m_riga = byte.size();
    return accoda(byte);
}

void Uscita::interrompi()
{
    m_scartati += m_riga;
    m_coda.remove(0, std::exchange(m_riga, 0));
}

void Uscita::svuota()
{
    m_scartati += m_coda.size();
    m_coda.clear();
    m_riga = 0;
    m_ritmo.riposa();
    m_timer.stop();
}

void Uscita::spedisci()
{
    const qsizetype quanti = m_ritmo.permessi(m_orologio.elapsed(), m_coda.size());
    if (quanti > 0) {
        const QByteArray pezzo = m_coda.left(quanti);
        m_scartati = 0;
        const qsizetype presi = m_perduta ? quanti : m_linea.scrivi(pezzo);
        // Writing can bring a reading, and that can empty the queue or stop the row.
        const qsizetype restano = qMax(presi - m_scartati, qsizetype{0});
        m_coda.remove(0, restano);
        m_riga = qMax(m_riga - restano, qsizetype{0});
        m_ritmo.usciti(presi);
        if (presi < quanti)
            m_ritmo.riposa(); // nobody reads: no burst afterwards
        m_timer.setInterval(presi < quanti ? 10 : m_ritmo.baud() > 0 ? 4 : 0);
        if (suInvio && presi > 0)
            suInvio(pezzo.left(presi));
    }
    if (suFame)
        suFame();
    if (m_coda.isEmpty()) {
        m_ritmo.riposa();
        m_timer.stop();
    }
}
} // namespace tessaro_sim
