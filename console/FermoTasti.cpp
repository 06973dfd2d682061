#include "console/FermoTasti.h"

namespace {

constexpr QStringView premuto = u"Tasto premuto";
constexpr QStringView rilasciato = u"Tasto rilasciato";

} // namespace

bool FermoTasti::accetta(const Pressione &p)
{
    const bool nuova = !p.ripetuta && !m_giu.contains(p.tasto);
    if (!p.ripetuta)
        m_giu.insert(p.tasto);
    if (m_stato == Stato::Tenuto && !(nuova && p.stopNellAttesa))
        return false;
    return p.inLista || (m_giu.contains(p.tasto) && !m_inAttesa.contains(p.tasto));
}

FermoTasti::Comando FermoTasti::comincia(int tasto)
{
    m_inAttesa.insert(tasto);
    return {tasto, m_giro};
}

void FermoTasti::finitoInLista(const Comando &comando)
{
    if (comando.giro == m_giro)
        m_inAttesa.remove(comando.tasto);
}

void FermoTasti::finito(const Comando &comando)
{
    if (comando.giro != m_giro)
        return;
    m_inAttesa.remove(comando.tasto);
    m_stato = Stato::Tenuto;
}

void FermoTasti::lascia(int tasto)
{
    m_giu.remove(tasto);
    m_inAttesa.remove(tasto);
    m_stato = Stato::Rilasciato;
}

bool FermoTasti::lasciaTutto()
{
    if (m_stato != Stato::Tenuto && m_giu.isEmpty() && m_inAttesa.isEmpty())
        return false;
    m_giu.clear();
    m_inAttesa.clear();
    ++m_giro;
    m_stato = Stato::Rilasciato;
    return true;
}

QString FermoTasti::testo() const
{
    switch (m_stato) {
    case Stato::Tenuto:
        return premuto.toString();
    case Stato::Rilasciato:
        return rilasciato.toString();
    default:
        return {};
    }
}

void FermoTasti::scrivi(const QString &testo)
{
    if (testo == premuto)
        m_stato = Stato::Tenuto;
    else
        m_stato = testo.isEmpty() ? Stato::Iniziale : Stato::Rilasciato;
}
