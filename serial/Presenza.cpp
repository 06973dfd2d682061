#include "serial/Presenza.h"

#include "base/Errore.h"

void Presenza::perdi()
{
    m_persa = true;
    if (perduta)
        perduta();
}

void Presenza::scrivi(const std::function<Scrittura()> &scrittura)
{
    if (m_persa)
        throw Errore(Errore::LineaPersa);
    switch (scrittura()) {
    case Scrittura::Presa:
        return;
    case Scrittura::SenzaPosto:
        break;
    case Scrittura::Mancata:
        perdi();
        break;
    }
    throw Errore(Errore::LineaPersa);
}
