#include "conditional/Vigilio.h"

using namespace Qt::StringLiterals;

namespace {

const QString testoAvviato = u"AVVIATO"_s;
const QString testoChiuso = u"Annulla"_s;

} // namespace

Vigilio::Avvio::Avvio(Vigilio &vigilio) : m_vigilio(vigilio)
{
    if (m_vigilio.m_stato == Stato::InAvvio)
        return;
    m_vigilio.m_prima = m_vigilio.m_stato;
    m_vigilio.passa(Stato::InAvvio);
    m_numero = m_vigilio.m_cambi;
}

Vigilio::Avvio::~Avvio()
{
    if (valido())
        m_vigilio.passa(m_vigilio.m_prima);
}

bool Vigilio::Avvio::valido() const
{
    return m_vigilio.m_cambi == m_numero && m_vigilio.m_stato == Stato::InAvvio;
}

void Vigilio::accendi()
{
    passa(Stato::Avviato);
}

void Vigilio::spegni()
{
    m_testo.clear();
    passa(Stato::Spento);
}

void Vigilio::chiudi()
{
    m_testo = testoChiuso;
    passa(Stato::Spento);
}

QString Vigilio::testo() const
{
    return avviato() ? testoAvviato : m_testo;
}

void Vigilio::scrivi(const QString &testo)
{
    if (testo == testoAvviato) {
        accendi();
    } else {
        m_testo = testo;
        passa(Stato::Spento);
    }
}

void Vigilio::passa(Stato stato)
{
    m_stato = stato;
    ++m_cambi;
}
