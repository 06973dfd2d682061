#include "NumeroPorta.h"

#include "Messaggi.h"
#include "Numeri.h"

using namespace Qt::StringLiterals;

NumeroPorta::NumeroPorta(Finestra &finestra, CasellaTesto &testo, SuGiu &suGiu)
    : m_finestra(finestra), txtPorta(testo), m_suGiu(suGiu)
{
    txtPorta.KeyPress.collega(soloCifre);
    txtPorta.LostFocus.collega(this, &NumeroPorta::txtPorta_LostFocus);
    m_suGiu.conFrecce(txtPorta);
    m_suGiu.Change.collega([this] { txtPorta.setText(QString::number(m_suGiu.Value())); });
}

void NumeroPorta::txtPorta_LostFocus()
{
    if (txtPorta.Text().isEmpty()) {
        messaggio(u"Devi impostare un numero di porta!"_s);
        passaErrori([&] { txtPorta.SetFocus(); });
        m_finestra.setTag(u"Errore"_s);
        return;
    }
    const double numero = Numeri::Valore(txtPorta.Text());
    if (numero > m_suGiu.Max())
        txtPorta.setText(QString::number(m_suGiu.Max()));
    else if (numero < m_suGiu.Min()) // 0, or pasted text that is no number
        txtPorta.setText(QString::number(m_suGiu.Min()));
    m_suGiu.setValue(Numeri::Intero(txtPorta.Text()));
}
