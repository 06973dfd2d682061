#include "console/Targa.h"

namespace {

constexpr double profondita = 50;

} // namespace

Targa::Targa(Etichetta &etichetta, Forma &forma, double left, double top)
    : m_etichetta(etichetta), m_forma(forma), m_left(left), m_top(top)
{
    m_etichetta.MouseDown.collega([this](int, int, double, double) { premi(); });
    m_etichetta.MouseUp.collega([this](int, int, double, double) { rilascia(); });
}

void Targa::premi()
{
    m_premuta = true;
    m_forma.Move(m_forma.Left() + profondita, m_forma.Top() + profondita);
    m_etichetta.Move(m_forma.Left(), m_forma.Top());
}

void Targa::rilascia()
{
    m_premuta = false;
    m_forma.Move(m_left, m_top);
    m_etichetta.Move(m_left, m_top);
}
