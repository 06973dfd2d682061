#include "movelists/ListaMosse.h"

#include "base/Archivio.h"
#include "base/Numeri.h"
#include "controls/Messaggi.h"
#include "movelists/FileMosse.h"
#include "shell/Gest_File.h"

using namespace Qt::StringLiterals;

ListaMosse::ListaMosse(Elenco &lstMosse) : m_lstMosse(lstMosse)
{
    m_lstMosse.mostraTag(
        [this] { return m_salvata ? Numeri::TestoLogico(*m_salvata) : QString(); },
        [this](const QString &testo) { passaErrori([&] { m_salvata = Numeri::Logico(testo); }); });
}

ListaMosse::~ListaMosse()
{
    m_lstMosse.mostraTag({}, {});
}

// Every line passes through here, so that the limit holds for all of them.
void ListaMosse::aggiungi(const QString &riga, int dove)
{
    if (m_lstMosse.ListCount() >= FileMosse::righeMassime)
        throw FileMosse::listaPiena();
    m_lstMosse.AddItem(riga, dove);
}

void ListaMosse::inserisci(const QString &riga)
{
    const int dove = m_lstMosse.ListIndex() + 1;
    try {
        aggiungi(riga, dove);
    } catch (const Errore &piena) {
        messaggio(piena.descrizione(), Icona::Informazione, Pulsanti::OK, u"Sequor"_s);
        return;
    }
    m_lstMosse.setListIndex(m_lstMosse.ListIndex() + 1);
    m_salvata = false;
}

void ListaMosse::accoda(const QString &riga)
{
    aggiungi(riga, m_lstMosse.ListCount());
}

void ListaMosse::togli()
{
    const int riga = m_lstMosse.ListIndex();
    passaErrori([&] { m_lstMosse.RemoveItem(riga); });
    passaErrori([&] { m_lstMosse.setListIndex(riga); });
    m_salvata = false;
}

void ListaMosse::scambia(int riga, int con)
{
    const QString testo = m_lstMosse.List(riga);
    m_lstMosse.setList(riga, m_lstMosse.List(con));
    m_lstMosse.setList(con, testo);
    m_lstMosse.setListIndex(con);
}

void ListaMosse::leggi(const QString &percorso)
{
    svuota();
    Archivio::apri(1, percorso, Archivio::Modo::Lettura);
    FileMosse::leggi(1, [this](const QString &riga) { accoda(riga); });
    Archivio::chiudi();
    m_salvata = true;
}

void ListaMosse::scrivi(const QString &percorso)
{
    QStringList righe;
    for (int i = 0; i < m_lstMosse.ListCount(); ++i)
        righe += m_lstMosse.List(i);
    if (!passaErrori([&] { ScriviFile(percorso, FileMosse::scritto(righe)); }))
        Archivio::abbandona();
    m_salvata = true;
}

void ListaMosse::riposa()
{
    svuota();
    m_salvata.reset();
}
