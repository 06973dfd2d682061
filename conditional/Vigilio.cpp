#include "conditional/Vigilio.h"

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
    passa(Stato::Spento);
}

void Vigilio::passa(Stato stato)
{
    m_stato = stato;
    ++m_cambi;
}
