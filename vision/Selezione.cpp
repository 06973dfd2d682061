#include "vision/Selezione.h"

void Selezione::premi(bool disegna, bool nominando)
{
    m_vana = nominando;
    // A finished selection keeps waiting for its frame while a new one is drawn.
    if (disegna && !nominando && m_stato == Stato::Nessuna)
        m_stato = Stato::Tracciata;
}

void Selezione::rilascia(bool nominando)
{
    if (nominando || m_vana) {
        m_vana = false;
        interrompi();
        return;
    }
    finisci();
}

void Selezione::nomina()
{
    m_vana = true;
}

void Selezione::interrompi()
{
    if (m_stato == Stato::Tracciata)
        m_stato = Stato::Nessuna;
}

void Selezione::finisci()
{
    m_usata = true;
    m_stato = Stato::Finita;
}

void Selezione::lascia()
{
    m_usata = true;
    m_stato = Stato::Nessuna;
}
