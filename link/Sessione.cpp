#include "link/Sessione.h"

#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Numeri.h"
#include "base/Pompa.h"
#include "controls/Comandi.h"
#include "controls/Messaggi.h"
#include "shell/Abilita_Disabilita.h"
#include "shell/Gest_File.h"
#include "shell/VisErrori.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

enum ImmaginePulsante { Connetti = 1, Disconnetti = 6 };

// Rounds of the pump in the keep-alive: after 5000 (0.2 s) "Ricerca..." is shown, after 100000
// (about 4 s) it stops waiting.
constexpr int giriRicerca = 5000;
constexpr int giriMassimi = 100000;

// Milliseconds of tmrChiusuraAutomatica: its first period, and all others.
constexpr int intervalloIniziale = 1000;
constexpr int intervalloSeguente = 5000;

void mostraErroreDiCollegamento(const Errore &errore)
{
    MostraErrore(errore.descrizione() + u" ("_s + QString::number(errore.numero()) + u')',
                 u"Collegamento"_s);
}

} // namespace

Sessione::Sessione(ControlloSeriale &com, const ControlliSessione &controlli,
                   const ControlliTelemetria &telemetria, MotoreRicezione &motore,
                   frmSchermataIniziale &splash, frmImpostaPorta &impostaPorta,
                   FinestreSessione &finestre)
    : COM(com),
      c(controlli),
      t(telemetria),
      m_motore(motore),
      m_splash(splash),
      m_impostaPorta(impostaPorta),
      m_finestre(finestre)
{
    c.tmrChiusuraAutomatica.Timer.collega(this, &Sessione::tmrChiusuraAutomatica_Timer);
    c.tmrControllaConn.Timer.collega(this, &Sessione::tmrControllaConn_Timer);
    c.tmrSensori.Timer.collega(this, &Sessione::tmrSensori_Timer);
    impostaUltimoAtto([this] { ComandiTessaro::ChiudiSessione(COM); });
}

Sessione::~Sessione()
{
    impostaUltimoAtto({});
}

bool Sessione::passa(Stato nuovo)
{
    using enum Stato;
    const bool collegata = m_stato == Collegata || m_stato == InRicerca;
    bool permesso = false;
    switch (nuovo) {
    case Scollegata:
        permesso = m_stato != Scollegata;
        break;
    case InTentativo:
        permesso = m_stato == Scollegata;
        break;
    case Collegata:
        permesso = m_stato != Scollegata;
        break;
    case InRicerca:
        permesso = collegata;
        break;
    }
    if (!permesso)
        return false;
    if (nuovo == InTentativo) {
        ++m_turno;
        m_portaChiusaRiferita = false;
    }
    m_stato = nuovo;
    return true;
}

bool Sessione::dura(Turno turno) const
{
    return turno == m_turno && (m_stato == Stato::Collegata || m_stato == Stato::InRicerca);
}

void Sessione::sonda(Sondaggio quale)
{
    if (!COM.PortOpen() && std::exchange(m_portaChiusaRiferita, true))
        return;
    switch (quale) {
    case Sondaggio::Sensori:
        ComandiTessaro::RichiediSensori(COM);
        break;
    case Sondaggio::StatoA:
        ComandiTessaro::RichiediStatoA(COM);
        break;
    case Sondaggio::StatoB:
        ComandiTessaro::RichiediStatoB(COM);
        break;
    }
}

bool Sessione::Collega()
{
    if (staTentando() || collegato())
        return collegato();
    if (m_stato != Stato::Scollegata)
        Scollega();
    // Unloading windows may have run a handler that has begun an attempt.
    if (!passa(Stato::InTentativo))
        return collegato();
    const MotoreRicezione::Fermo fermo(m_motore);
    PulsanteBarra &pulsante = c.BarraPulsanti.Buttons(1);
    if (m_splash.Visible())
        m_splash.lblColl.setCaption(u"Apertura della porta di comunicazione..."_s);
    pulsante.setEnabled(false);
    c.BarraStato.setPanels(3, u"Apertura porta..."_s);
    pompa();
    if (!COM.PortOpen()) {
        passaErrori([&] { ApriPortaSalvata(); });
        pompa();
    }
    ComandiTessaro::ApriSessione(COM);
    pompa();
    c.BarraStato.setPanels(3, u"Attendere prego..."_s);
    if (m_splash.Visible()) {
        m_splash.lblColl.setCaption(u"Attendere il collegamento..."_s);
        m_splash.tmrAnimazione.setEnabled(true);
    }
    c.tmrChiusuraAutomatica.setTag(Numeri::TestoLogico(false));
    c.tmrChiusuraAutomatica.setEnabled(true);
    pompa();
    if (aspettaRobot())
        connesso();
    else
        nonRiuscito();
    return collegato();
}

bool Sessione::aspettaRobot()
{
    while (true) {
        pompa();
        const bool scaduta = Numeri::Logico(c.tmrChiusuraAutomatica.Tag());
        if (scaduta)
            messaggio(u"Collegamento non riuscito!"_s);
        if (Numeri::Logico(m_splash.pulNonCollegare.Tag()) || scaduta)
            return false;
        // If the port is not open, reading the count fails, and the wait ends as if the bytes had
        // come. The keep-alive ends this connection.
        if (provaPassata([&] { return COM.InBufferCount() >= 2; }))
            return true;
    }
}

void Sessione::connesso()
{
    PulsanteBarra &pulsante = c.BarraPulsanti.Buttons(1);
    passa(Stato::Collegata);
    const Turno turno = m_turno;
    c.tmrChiusuraAutomatica.setEnabled(false);
    pulsante.setEnabled(true);
    pulsante.setImage(Disconnetti);
    pulsante.setToolTipText(u"Disconnetti"_s);
    ImpostaAbilitati(true, c.tmrControllaConn, c.tmrElabInput, c.tmrSensori);
    sonda(Sondaggio::StatoA);
    sonda(Sondaggio::StatoB);
    // If the port is closed, the first request shows a message box, and the keep-alive may have
    // ended the connection before the user closes the box.
    if (!dura(turno))
        return;
    m_motore.LeggiIngresso();
    ImpostaVisibili(true, t.imgLivBattLogica, t.imgLivBattMotori);
    c.BarraStato.setPanels(1, u"Connesso"_s);
    c.BarraStato.setPanels(3, {});
    passaErrori([&] { m_finestre.RidaiFuoco(); });
}

void Sessione::nonRiuscito()
{
    m_splash.pulNonCollegare.setTag(Numeri::TestoLogico(false));
    c.tmrChiusuraAutomatica.setTag(Numeri::TestoLogico(false));
    c.tmrChiusuraAutomatica.setEnabled(false);
    c.BarraPulsanti.Buttons(1).setEnabled(true);
    if (m_splash.Visible()) {
        m_splash.lblColl.setCaption(u"Chiusura della porta di comunicazione..."_s);
        pompa();
    }
    COM.setPortOpen(false);
    passa(Stato::Scollegata);
    c.BarraStato.setPanels(1, u"Non connesso"_s);
    c.BarraStato.setPanels(3, {});
}

void Sessione::ApriPortaSalvata()
{
    try {
        Archivio::apri(1, u"Porta COM"_s, Archivio::Modo::Lettura);
        const quint8 numero = Numeri::Byte(Archivio::leggiNumero(1));
        Archivio::chiudi();
        COM.setCommPort(numero);
        pompa();
        if (!COM.PortOpen())
            COM.setPortOpen(true);
    } catch (const Errore &errore) {
        Archivio::abbandona();
        if (errore.numero() != Errore::FileNonTrovato) {
            mostraErroreDiCollegamento(errore);
            return;
        }
        ChiediPorta();
        COM.setCommPort(Numeri::Intero(m_impostaPorta.txtPorta.Text()));
        try {
            if (!COM.PortOpen())
                COM.setPortOpen(true);
        } catch (const Errore &apertura) {
            // Other errors are not shown here. This one is: it occurs at the very first start, and
            // its text says how to get access to the port.
            if (apertura.numero() == Errore::AccessoNegato)
                mostraErroreDiCollegamento(apertura);
            throw;
        }
    }
}

void Sessione::ChiediPorta()
{
    m_impostaPorta.MostraModale();
    ScriviFile(u"Porta COM"_s, Codifica::inByte(m_impostaPorta.txtPorta.Text()) + "\r\n");
}

void Sessione::Scollega()
{
    if (staTentando())
        return;
    const Turno turno = m_turno;
    passaErrori([&] { m_finestre.scaricaCamera(); });
    passaErrori([&] { m_finestre.scaricaEsploraFile(); });
    if (m_finestre.vigilioAvviato())
        passaErrori([&] { m_finestre.stoppaVigilio(); });
    // Handlers that ran meanwhile may have ended this connection and begun another one.
    if (turno != m_turno)
        return;
    ImpostaAbilitati(false, c.tmrControllaConn, c.tmrElabInput, c.tmrSensori);
    ComandiTessaro::ChiudiSessione(COM);
    COM.setPortOpen(false);
    passa(Stato::Scollegata);
    c.BarraStato.setPanels(1, u"Non connesso"_s);
    c.BarraStato.setPanels(2, u"<>"_s);
    c.BarraStato.setPanels(3, u"Disconnesso"_s);
    ImpostaVisibili(false, t.imgLivBattLogica, t.imgLivBattMotori, t.shpUltrasuoniDx,
                    t.shpUltrasuoniCe, t.shpUltrasuoniSx);
    t.imgBattLogica.setToolTip({});
    t.imgBattMotori.setToolTip({});
    t.lblTemperatura.setCaption({});
    PulsanteBarra &pulsante = c.BarraPulsanti.Buttons(1);
    pulsante.setImage(Connetti);
    pulsante.setToolTipText(u"Connetti ad Tessaro"_s);
}

void Sessione::MostraInvio(const QString &testo, const Abbandono &abbandono)
{
    if (!COM.PortOpen())
        return;
    const MotoreRicezione::Fermo fermo(m_motore);
    const Turno turno = m_turno;
    BarraDiCaricamento &barra = c.BarraCaricamento;
    barra.setValore(1);
    while (true) {
        // Fails if a wait inside this one has left the bar at its Max.
        passaErrori([&] { barra.setValore(barra.Value() + 1); });
        pompa();
        // If the user has disconnected meanwhile, or connected again, the wait is over.
        if (!COM.PortOpen() || turno != m_turno || (abbandono && abbandono())) {
            barra.setValore(1);
            return;
        }
        if (barra.Value() >= barra.Max()) {
            c.BarraStato.setPanels(3, u"Nessuna risposta."_s);
            return;
        }
        const auto conteggio = static_cast<qint16>(COM.InBufferCount());
        if (conteggio != UltimoConteggio) {
            barra.setValore(1);
            UltimoConteggio = conteggio;
            c.BarraStato.setPanels(3, testo);
            return;
        }
    }
}

void Sessione::mostraMessaggio(const QString &testo)
{
    c.BarraStato.setPanels(3, testo);
}

void Sessione::tmrChiusuraAutomatica_Timer()
{
    pompa();
    Temporizzatore &timer = c.tmrChiusuraAutomatica;
    if (timer.Interval() == intervalloIniziale) {
        timer.setInterval(intervalloSeguente);
    } else if (m_sollecitato) {
        timer.setTag(Numeri::TestoLogico(true));
        timer.setEnabled(false);
        m_sollecitato = false;
    } else {
        passaErrori([&] { COM.Output(QByteArray(1, '\1')); });
        m_sollecitato = true;
    }
}

void Sessione::tmrControllaConn_Timer()
{
    const MotoreRicezione::Fermo fermo(m_motore);
    const Turno turno = m_turno;
    sonda(Sondaggio::StatoA);
    sonda(Sondaggio::StatoB);
    QByteArray risposta;
    for (int giri = 1; risposta.isEmpty() && giri <= giriMassimi; ++giri) {
        pompa();
        // If the user has disconnected meanwhile, or connected again, this search is over.
        if (!dura(turno)) {
            c.BarraCaricamento.setValore(1);
            return;
        }
        if (giri > giriRicerca) {
            passa(Stato::InRicerca);
            c.BarraStato.setPanels(1, u"Ricerca..."_s);
            passaErrori([&] { c.BarraCaricamento.setValore(giri); });
            pompa();
        }
        if (dura(turno))
            passaErrori([&] { risposta = COM.Input(); });
    }
    if (!dura(turno)) {
        c.BarraCaricamento.setValore(1);
    } else if (!risposta.isEmpty()) {
        c.tmrElabInput.accumulatore.aggiungi(risposta);
        m_mancato = false;
        passa(Stato::Collegata);
        c.BarraCaricamento.setValore(1);
        c.BarraStato.setPanels(1, u"Connesso"_s);
    } else if (!m_mancato) {
        m_mancato = true;
    } else {
        c.BarraStato.setPanels(3, u"Robot non trovato, chiusura della connessione in corso..."_s);
        pompa();
        // If the user has disconnected meanwhile, this click would connect again.
        if (dura(turno))
            passaErrori([&] { m_finestre.BarraPulsanti_ButtonClick(c.BarraPulsanti.Buttons(1)); });
        m_mancato = false;
        c.BarraCaricamento.setValore(1);
    }
}

void Sessione::tmrSensori_Timer()
{
    sonda(Sondaggio::Sensori);
}
