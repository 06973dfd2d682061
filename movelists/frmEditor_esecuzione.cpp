// The run: the selection walks down the list, one line a tick.
#include "movelists/frmEditor.h"

#include "movelists/AvvioProgramma.h"
#include "serial/ControlloSeriale.h"
#include "controls/Messaggi.h"
#include "movelists/Mossa.h"
#include "base/Numeri.h"
#include "movelists/OraDiLista.h"

namespace {

constexpr int attesaNormale = 1600;
constexpr int attesaAvvio = 1;
constexpr int attesaRitorno = 100;
constexpr int attesaUscita = 1;

// What the loop's counter holds when the loop has run often enough; no count reaches so far.
constexpr int cicloFinito = 201;

enum Stato { VigilioSpento = 1, VigilioInAttesa, ListaAvviata };

} // namespace

// Start and stop; nothing else stops a run.
void frmEditor::pulEsegui_Click()
{
    if (lstMosse.ListCount() == 0)
        return;
    if (!tmrEseguiMosse.Enabled()) {
        if (!m_console.COM().PortOpen()) {
            messaggio(u"Il robot non è collegato"_s, Icona::Informazione);
            return;
        }
        lstMosse.setListIndex(-1);
        tmrEseguiMosse.setInterval(attesaAvvio);
        tmrEseguiMosse.setEnabled(true);
        pulEsegui.setCaption(u"STOP"_s);
    } else {
        tmrEseguiMosse.setEnabled(false);
        tmrEseguiMosse.setTag(u"0"_s);
        mnuInsRipeti.setTag(u"-1"_s);
        pulEsegui.setCaption(u"ESEGUI"_s);
    }
    if (imgVigilio.Picture() != ListaAvviata || !m_vigilio)
        return;
    for (int i = 0; i < m_vigilio->ListCount(); ++i) {
        if (m_vigilio->Selected(i)) {
            imgVigilio.setPicture(VigilioInAttesa);
            return;
        }
    }
    m_vigilio->Stoppa();
}

void frmEditor::tmrEseguiMosse_Timer()
{
    if (!m_console.COM().PortOpen() || lstMosse.ListIndex() == lstMosse.ListCount() - 1) {
        passaErrori([this] { pulEsegui_Click(); });
        return;
    }
    passaErrori([this] { lstMosse.setListIndex(lstMosse.ListIndex() + 1); });
    pulEsegui.setTag(QString::number(lstMosse.ListIndex()));
    tmrEseguiMosse.setInterval(attesaNormale);

    const QString comando = u"Comando %1"_s.arg(lstMosse.ListIndex() + 1);
    const Mossa mossa = leggiMossa(lstMosse.Text());
    if (mossa.specie == Mossa::Specie::Ripeti) {
        passoCiclo(mossa.volte);
        return;
    }
    if (mossa.comando)
        mossa.comando(m_console.COM());
    if (mossa.specie == Mossa::Specie::Camera && m_camera)
        passaErrori([this] { m_camera->mostra(); });
    if (mossa.specie == Mossa::Specie::Programma)
        avviaProgramma(mossa.programma, m_cartella);
    // Refused, the default stands.
    if (mossa.attesa)
        passaErrori([&] { tmrEseguiMosse.setInterval(*mossa.attesa); });
    if (mossa.specie == Mossa::Specie::Pausa)
        m_console.mostraMessaggio(comando +
                                  u": pausa di %1 millisecondi"_s.arg(tmrEseguiMosse.Interval()));
    else if (mossa.specie != Mossa::Specie::Led)
        m_console.MostraInvio(comando + u" ricevuto!"_s);
}

void frmEditor::passoCiclo(quint8 volte)
{
    const double contati = Numeri::Valore(tmrEseguiMosse.Tag());
    if (contati == cicloFinito) {
        tmrEseguiMosse.setInterval(attesaUscita);
        mnuInsRipeti.setTag(QString::number(lstMosse.ListIndex()));
        tmrEseguiMosse.setTag(u"0"_s);
        return;
    }
    if (volte > 0) {
        const double ora = contati + 1;
        tmrEseguiMosse.setTag(QString::number(ora == volte ? cicloFinito : ora));
    }
    passaErrori([this] { lstMosse.setListIndex(Numeri::Intero(mnuInsRipeti.Tag())); });
    tmrEseguiMosse.setInterval(attesaRitorno);
}

void frmEditor::EseguiLista(qint16 riga)
{
    if (!m_vigilio)
        return;
    const QString nome = m_vigilio->File(riga);
    if (tmrEseguiMosse.Enabled() && nome.compare(Finestre.FileName(), Qt::CaseInsensitive) == 0)
        return;
    ApriLista(nome);
    if (m_vigilio->deselezionaEseguite())
        m_vigilio->setSelected(riga, false);
    m_vigilio->setListIndex(riga);
    Finestre.setFileName(nome);
    pulEsegui_Click();
    imgVigilio.setPicture(ListaAvviata);
}

void frmEditor::tmrAttivaAut_Timer()
{
    for (int i = 0; m_vigilio && i < m_vigilio->ListCount(); ++i) {
        const QString adesso = m_orologio.adesso().toString(u"hh:mm:ss"_s);
        if (oraDiLista(m_vigilio->condizione(i), adesso))
            EseguiLista(static_cast<qint16>(i));
    }
}
