#include "movelists/Corsa.h"

#include "base/Numeri.h"
#include "controls/Messaggi.h"
#include "movelists/AvvioProgramma.h"
#include "movelists/Mossa.h"
#include "serial/ControlloSeriale.h"

using namespace Qt::StringLiterals;

namespace {

// Milliseconds until the next line.
constexpr int attesaNormale = 1600;
constexpr int attesaAvvio = 1;
constexpr int attesaRitorno = 100;
constexpr int attesaUscita = 1;

// The counter of a loop that has gone back often enough.
constexpr int cicloFinito = 201;

// Shows a number as a Tag; a text that is no number changes nothing.
template <class Controllo>
void mostraNumero(Controllo &controllo, int &numero)
{
    controllo.mostraTag(
        [&numero] { return QString::number(numero); },
        [&numero](const QString &testo) { passaErrori([&] { numero = Numeri::Intero(testo); }); });
}

} // namespace

Corsa::Corsa(const Controlli &controlli, ControlloSeriale &seriale, const QString &cartella)
    : c(controlli), COM(seriale), m_cartella(cartella)
{
    c.tmrEseguiMosse.Timer.collega(this, &Corsa::passo);
    mostraNumero(c.pulEsegui, m_ultima);
    mostraNumero(c.tmrEseguiMosse, m_giri);
    mostraNumero(c.mnuInsRipeti, m_ritorno);
}

Corsa::~Corsa()
{
    c.tmrEseguiMosse.Timer.collega({});
    c.pulEsegui.mostraTag({}, {});
    c.tmrEseguiMosse.mostraTag({}, {});
    c.mnuInsRipeti.mostraTag({}, {});
}

void Corsa::comanda()
{
    if (c.lstMosse.ListCount() == 0)
        return;
    if (inCorsa()) {
        c.tmrEseguiMosse.setEnabled(false);
        m_giri = 0;
        m_ritorno = -1;
        c.pulEsegui.setCaption(u"ESEGUI"_s);
    } else if (COM.PortOpen()) {
        avvia();
    } else {
        messaggio(u"Il robot non è collegato"_s, Icona::Informazione);
        return;
    }
    Comandata();
}

void Corsa::avvia()
{
    c.lstMosse.setListIndex(-1);
    c.tmrEseguiMosse.setInterval(attesaAvvio);
    c.tmrEseguiMosse.setEnabled(true);
    c.pulEsegui.setCaption(u"STOP"_s);
}

void Corsa::ferma()
{
    if (inCorsa())
        comanda();
}

void Corsa::passo()
{
    if (!COM.PortOpen() || c.lstMosse.ListIndex() == c.lstMosse.ListCount() - 1) {
        passaErrori([this] { comanda(); });
        return;
    }
    passaErrori([this] { c.lstMosse.setListIndex(c.lstMosse.ListIndex() + 1); });
    m_ultima = c.lstMosse.ListIndex();
    c.tmrEseguiMosse.setInterval(attesaNormale);
    const Mossa mossa = leggiMossa(c.lstMosse.Text());
    if (mossa.specie == Mossa::Specie::Ripeti)
        passoCiclo(mossa.volte);
    else
        esegui(mossa);
}

void Corsa::esegui(const Mossa &mossa)
{
    // The line's number is taken first: what the line does may move the selection.
    const QString comando = u"Comando %1"_s.arg(c.lstMosse.ListIndex() + 1);
    if (mossa.comando)
        mossa.comando(COM);
    if (mossa.specie == Mossa::Specie::Camera)
        CameraChiesta();
    if (mossa.specie == Mossa::Specie::Programma)
        avviaProgramma(mossa.programma, m_cartella);
    // An interval that the timer refuses leaves the usual one.
    if (mossa.attesa)
        passaErrori([&] { c.tmrEseguiMosse.setInterval(*mossa.attesa); });
    if (mossa.specie == Mossa::Specie::Pausa)
        Messaggio(comando + u": pausa di %1 millisecondi"_s.arg(c.tmrEseguiMosse.Interval()));
    else if (mossa.specie != Mossa::Specie::Led)
        Inviato(comando + u" ricevuto!"_s);
}

void Corsa::passoCiclo(quint8 volte)
{
    if (m_giri == cicloFinito) {
        c.tmrEseguiMosse.setInterval(attesaUscita);
        m_ritorno = c.lstMosse.ListIndex();
        m_giri = 0;
        return;
    }
    // 0 repeats without end.
    if (volte > 0) {
        ++m_giri;
        if (m_giri == volte)
            m_giri = cicloFinito;
    }
    passaErrori([this] { c.lstMosse.setListIndex(m_ritorno); });
    c.tmrEseguiMosse.setInterval(attesaRitorno);
}

void Corsa::riprendiRiga()
{
    passaErrori([this] { c.lstMosse.setListIndex(m_ultima); });
    passaErrori([this] { c.pulEsegui.SetFocus(); });
}

void Corsa::riposa()
{
    c.tmrEseguiMosse.setEnabled(false);
    c.tmrEseguiMosse.setInterval(2000);
    m_giri = 0;
    m_ritorno = -1;
    m_ultima = 0;
    c.pulEsegui.setCaption(u"ESEGUI"_s);
}
