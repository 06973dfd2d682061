#include "movelists/ListaMosse.h"

#include "movelists/FileMosse.h"
#include "controls/Messaggi.h"
#include "base/Numeri.h"

using namespace Qt::StringLiterals;

// Every line comes in here, whoever adds it.
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
    m_lstMosse.setTag(Numeri::TestoLogico(false));
}

void ListaMosse::accoda(const QString &riga)
{
    aggiungi(riga, m_lstMosse.ListCount());
}
