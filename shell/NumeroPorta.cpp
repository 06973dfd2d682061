#include "shell/NumeroPorta.h"

#include "base/Numeri.h"
#include "controls/Messaggi.h"

#include <QGuiApplication>
#include <utility>

using namespace Qt::StringLiterals;

NumeroPorta::NumeroPorta(Finestra &finestra, CasellaTesto &testo, SuGiu &suGiu)
    : m_finestra(finestra), txtPorta(testo), m_suGiu(suGiu)
{
    txtPorta.KeyPress.collega(soloCifre);
    txtPorta.LostFocus.collega(this, &NumeroPorta::txtPorta_LostFocus);
    m_suGiu.conFrecce(txtPorta);
    m_suGiu.Change.collega([this] { txtPorta.setText(QString::number(m_suGiu.Value())); });
}

void NumeroPorta::conOK(Pulsante &pulsante)
{
    pulsante.MouseDown.collega(this, &NumeroPorta::pulOK_MouseDown);
}

void NumeroPorta::pulOK_MouseDown()
{
    // If the box is empty, this press took the focus from it, and the message was shown. If the
    // mouse button was released over the message, this press gives no click: then the next click on
    // OK must show the message again.
    m_dettoAlClick =
        m_finestra.Tag() == u"Errore"_s && (QGuiApplication::mouseButtons() & Qt::LeftButton);
}

NumeroPorta::Conferma NumeroPorta::conferma()
{
    // The flag may be older than the number that is in the box now.
    const bool giaDetto = std::exchange(m_dettoAlClick, false) && txtPorta.Text().isEmpty();
    m_finestra.setTag({});
    if (giaDetto)
        return Conferma::GiaDetto;
    txtPorta_LostFocus();
    const bool vuoto = m_finestra.Tag() == u"Errore"_s;
    m_finestra.setTag({});
    return vuoto ? Conferma::Vuoto : Conferma::Valido;
}

void NumeroPorta::inizia()
{
    passaErrori([&] { txtPorta.SetFocus(); });
    txtPorta.selectAll();
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
    else if (numero < m_suGiu.Min()) // 0, or pasted text that is not a number
        txtPorta.setText(QString::number(m_suGiu.Min()));
    m_suGiu.setValue(Numeri::Intero(txtPorta.Text()));
}
