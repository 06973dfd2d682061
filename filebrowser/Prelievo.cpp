#include "filebrowser/Prelievo.h"

#include "base/Cartella.h"
#include "base/Codifica.h"
#include "base/Pompa.h"
#include "filebrowser/Foto.h"
#include "filebrowser/NomeSicuro.h"
#include "filebrowser/frmEsploraFile.h"
#include "link/ComandiTessaro.h"
#include "shell/Gest_File.h"
#include "shell/Se_Casi.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// As the robot numbers them: docs/protocol.md.
enum Modo : quint8 { ModoFile = 1, ModoCartella = 16 };

enum Stato : quint8 { Aperto = 0, Ignorato = 4, Finito = 255 };

// The robot numbers its channels from 1.
constexpr quint8 ultimoCanale = 9;

} // namespace

Prelievo::Prelievo(ControlloSeriale &com, BarraDiStato &barraStato, const QString &cartella,
                   frmEsploraFile &finestra)
    : COM(com), BarraStato(barraStato), m_cartella(cartella), m_finestra(finestra)
{
}

bool Prelievo::inCorso() const
{
    return m_fase != Fase::Ferma;
}

void Prelievo::attendi(Attesa attesa, Fase fase)
{
    m_attesa = attesa;
    m_fase = fase;
    m_canale.reset();
    m_nome = QString();
    ++m_numero;
}

bool Prelievo::comincia(Attesa attesa, const QString &nome)
{
    if (inCorso())
        return false;
    attendi(attesa, Fase::Apertura);
    m_nome = nome;
    return true;
}

bool Prelievo::apri(const QByteArray &percorso)
{
    const quint64 mio = m_numero;
    ComandiTessaro::ApriPercorso(COM, m_attesa == Attesa::File ? ModoFile : ModoCartella, percorso);
    if (mio != m_numero)
        return false;
    // Nothing was sent, so there will be no answer.
    if (!COM.PortOpen())
        m_fase = Fase::Ferma;
    return true;
}

void Prelievo::lascia()
{
    const Fase prima = m_fase;
    const std::optional<quint8> canale = m_canale;
    attendi(Attesa::Niente, Fase::Ferma);
    const bool risponde = prima == Fase::Apertura || prima == Fase::Lettura;
    m_rispostaDovuta = m_rispostaDovuta || risponde;
    if (risponde || prima == Fase::Salvataggio)
        chiudi(canale);
}

void Prelievo::imposta(Attesa attesa)
{
    if (attesa == m_attesa)
        return;
    attendi(attesa, Fase::Ferma);
    m_rispostaDovuta = false;
}

void Prelievo::chiudi(std::optional<quint8> canale)
{
    // The robot executes commands in order: if the number of the channel is not known yet, the
    // channel is open when these commands arrive.
    const quint8 prima = canale.value_or(1);
    const quint8 ultimo = canale.value_or(ultimoCanale);
    for (int k = prima; k <= ultimo && COM.PortOpen(); ++k)
        ComandiTessaro::ChiudiCanale(COM, static_cast<quint8>(k));
}

void Prelievo::termina(std::optional<quint8> canale)
{
    const bool eraFile = m_attesa == Attesa::File;
    attendi(Attesa::Niente, Fase::Ferma);
    m_finestra.assestaElenchi();
    if (eraFile)
        m_finestra.riabilita();
    m_finestra.ImmagineAttesa(false);
    chiudi(canale);
}

void Prelievo::segnalaErrore()
{
    BarraStato.setPanels(3, u"Errore nella lettura dei file!"_s);
}

bool Prelievo::visibile() const
{
    return m_finestra.Visible();
}

void Prelievo::stato(quint8 k, quint8 x)
{
    switch (x) {
    case Aperto:
        aperto(k);
        break;
    case Ignorato:
        break;
    case Finito:
        finito(k);
        break;
    default:
        fallito();
    }
}

void Prelievo::aperto(quint8 k)
{
    if (m_attesa == Attesa::Niente || m_canale == k)
        return;
    if (m_canale) {
        if (!m_rispostaDovuta) {
            // Nothing will be read from this channel.
            chiudi(k);
            return;
        }
        // The earlier channel belonged to the request that was given up.
        chiudi(m_canale);
        if (m_attesa == Attesa::Elenco)
            m_finestra.svuotaElenchi();
    }
    leggi(k);
    const quint64 mio = m_numero;
    if (m_attesa == Attesa::File) {
        ComandiTessaro::LeggiBlocco(COM, k, 255, 255);
        return;
    }
    ComandiTessaro::LeggiElenco(COM, k);
    if (mio == m_numero)
        BarraStato.setPanels(3, {});
}

bool Prelievo::attesoDa(quint8 k, Attesa attesa) const
{
    if (m_attesa != attesa)
        return false;
    return m_canale ? *m_canale == k : !m_rispostaDovuta;
}

void Prelievo::leggi(quint8 k)
{
    if (!inCorso())
        return;
    m_canale = k;
    m_fase = Fase::Lettura;
}

void Prelievo::VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo)
{
    if (!attesoDa(k, Attesa::Elenco))
        return;
    leggi(k);
    m_finestra.aggiungi(x, Codifica::daByte(corpo));
    m_finestra.ImmagineAttesa(true);
    ComandiTessaro::LeggiElenco(COM, k);
}

void Prelievo::finito(quint8 k)
{
    if (!attesoDa(k, Attesa::Elenco))
        return;
    m_rispostaDovuta = false;
    termina(k);
}

void Prelievo::fallito()
{
    segnalaErrore();
    m_fase = Fase::Ferma;
    m_canale.reset();
    chiudi({});
}

void Prelievo::byteGettati()
{
    // The answer may have been among these bytes: a listing would lack an entry, a fetch would
    // never end.
    if (m_fase != Fase::Apertura && m_fase != Fase::Lettura)
        return;
    segnalaErrore();
    m_rispostaDovuta = true;
    termina(m_canale);
}

void Prelievo::bloccoInArrivo()
{
    if (m_attesa == Attesa::File)
        m_finestra.ImmagineAttesa(true);
}

void Prelievo::blocco(quint8 k, const QByteArray &contenuto)
{
    if (!attesoDa(k, Attesa::File))
        return;
    const QString nome = m_nome.isNull() ? m_finestra.lstFile.Text() : m_nome;
    const QString percorso = conSeparatore(m_cartella) + nome;
    m_fase = Fase::Salvataggio;
    m_canale = k;
    m_rispostaDovuta = false;
    // A name that leads outside the folder or to one of the program's own files is refused before
    // anything is written. A file that cannot be written gives the same error.
    const bool scritto = nomeSicuro(nome) && !QFileInfo(percorso).isSymbolicLink() &&
                         passaErrori([&] { ScriviFile(percorso, contenuto); });
    if (!scritto) {
        segnalaErrore();
    } else {
        BarraStato.setPanels(3, u"File scaricato correttamente!"_s);
        if (nomeDiFoto(nome)) {
            if (!mostraFoto(percorso))
                return;
            m_finestra.intitolaFoto(nome);
        }
    }
    termina(k);
}

bool Prelievo::mostraFoto(const QString &percorso)
{
    const quint64 mio = m_numero;
    try {
        m_finestra.caricaFoto(percorso);
    } catch (const Errore &errore) {
        if (!ContieneValore(errore.numero(), int{Errore::PercorsoNonTrovato},
                            int{Errore::ImmagineNonValida}))
            throw;
        pompa();
        BarraStato.setPanels(3, u"Errore nella rappresentazione dell'immagine!"_s);
        // The user may have closed the window, and opened it again.
        if (mio != m_numero)
            return false;
        m_finestra.togliFoto();
    }
    return true;
}
