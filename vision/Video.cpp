#include "vision/Video.h"

Video::Avvio Video::nuovo()
{
    m_stato = Stato::InAvvio;
    return Avvio(++m_avvio);
}

Video::Avvio Video::apri()
{
    ricomincia();
    return nuovo();
}

std::optional<Video::Avvio> Video::riavvia()
{
    if (m_stato != Stato::Attivo && m_stato != Stato::Fallito)
        return {};
    return nuovo();
}

bool Video::finisci(Avvio avvio, bool riuscito)
{
    if (abbandonato(avvio))
        return false;
    if (!riuscito)
        m_scala = 0;
    // The scale may have been set to 0 from outside while the start was waiting.
    m_stato = m_scala == 0 ? Stato::Fallito : Stato::Attivo;
    return true;
}

bool Video::chiudi()
{
    const bool inviava = m_scala != 0 || m_stato == Stato::InAvvio;
    m_stato = Stato::InChiusura;
    ++m_avvio;
    return inviava;
}

void Video::azzera()
{
    m_stato = Stato::Chiuso;
    ++m_avvio;
    m_scala = 0;
    m_zoom = 0;
}

void Video::impostaScala(quint8 scala)
{
    m_scala = scala;
    if (m_stato == Stato::Attivo && scala == 0)
        m_stato = Stato::Fallito;
    else if (m_stato == Stato::Fallito && scala != 0)
        m_stato = Stato::Attivo;
}

bool Video::misura(int larghezza)
{
    const int colonne = m_scala * 8;
    const int volte = colonne == 0 ? 0 : larghezza / colonne;
    const bool altro = volte != m_zoom;
    m_zoom = volte;
    return altro;
}
