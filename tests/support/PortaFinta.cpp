#include "tests/support/PortaFinta.h"

#include "base/Errore.h"

#include <utility>

using namespace Qt::StringLiterals;

PortaFinta::PortaFinta()
{
    QObject::connect(&m_avviso, &QTimer::timeout, &m_avviso, [this] {
        if (arrivo)
            arrivo();
    });
}

void PortaFinta::apri(const QString &percorso)
{
    ++aperture;
    percorsoAperto = percorso;
    if (apertura != 0)
        throw Errore(apertura, motivo);
    m_aperta = true;
    aggiorna();
}

void PortaFinta::chiudi()
{
    ++chiusure;
    m_aperta = false;
    aggiorna();
}

void PortaFinta::scrivi(QByteArrayView byte)
{
    if (m_fallisce > 0 && --m_fallisce == 0)
        throw Errore(Errore::LineaPersa);
    if (persa)
        throw Errore(Errore::LineaPersa);
    scritture << byte.toByteArray();
    if (scritto)
        scritto(scritture.last());
}

QByteArray PortaFinta::leggi(qsizetype massimo)
{
    const QByteArray letti = m_arrivati.first(qMin(massimo, m_arrivati.size()));
    m_arrivati.remove(0, letti.size());
    aggiorna();
    return letti;
}

void PortaFinta::sorveglia(bool attiva)
{
    m_sorvegliata = attiva;
    aggiorna();
}

void PortaFinta::arriva(const QByteArray &byte)
{
    m_arrivati += byte;
    aggiorna();
}

void PortaFinta::fallisciAlla(int numero)
{
    m_fallisce = numero;
}

void PortaFinta::aggiorna()
{
    if (!m_sorvegliata || !m_aperta || m_arrivati.isEmpty())
        m_avviso.stop();
    else if (!m_avviso.isActive())
        m_avviso.start(0);
}

SerialeFinto::SerialeFinto(const QString &cartella)
    : m_nuova(std::make_unique<PortaFinta>()),
      porta(*m_nuova),
      COM(u"COM"_s, nullptr, std::move(m_nuova), cartella)
{
}
