#include "conditional/ListeVigilio.h"

#include "base/Archivio.h"
#include "base/Numeri.h"
#include "conditional/Condizione.h"
#include "conditional/ProgDat.h"
#include "conditional/Progetto.h"
#include "shell/Gest_File.h"

#include <QFileInfo>
#include <QHash>
#include <vector>

using namespace Qt::StringLiterals;

ListeVigilio::ListeVigilio(Elenco &lstFile, ElencoFile &file, Elenco &lstCondizioni)
    : m_lstFile(lstFile), m_file(file), m_lstCondizioni(lstCondizioni)
{
    m_lstFile.mostraTag(
        [this] { return m_salvate ? Numeri::TestoLogico(*m_salvate) : u"-1"_s; },
        [this](const QString &testo) { passaErrori([&] { m_salvate = Numeri::Logico(testo); }); });
}

ListeVigilio::~ListeVigilio()
{
    m_lstFile.mostraTag({}, {});
}

void ListeVigilio::riempi(const QString &cartella)
{
    m_riempite = false;
    m_file.setPath(cartella);
    const QString predefinita = ProgDat::leggiCondizione();
    for (int i = 0; i < m_file.ListCount(); ++i) {
        m_lstCondizioni.AddItem(predefinita);
        m_lstFile.AddItem(scritta(i));
    }
    m_riempite = true;
}

void ListeVigilio::svuota()
{
    for (int i = 0; i < quante(); ++i)
        scegli(i, false);
    m_lstFile.Clear();
    m_lstCondizioni.Clear();
}

void ListeVigilio::riposa()
{
    m_lstFile.Clear();
    m_lstCondizioni.Clear();
    m_salvate.reset();
}

int ListeVigilio::quante() const
{
    // Not the number of files: those have no row if the default condition could not be read.
    return m_lstFile.ListCount();
}

bool ListeVigilio::qualcunaScelta() const
{
    for (int i = 0; i < quante(); ++i) {
        if (scelta(i))
            return true;
    }
    return false;
}

QString ListeVigilio::scritta(int riga) const
{
    return NomeLista(nome(riga)) + DescriviCondizione(condizione(riga));
}

void ListeVigilio::leggiProgetto(const QString &file)
{
    QHash<QString, int> righe;
    for (int i = 0; i < quante(); ++i)
        righe.insert(nome(i), i);
    Progetto::leggi(LeggiFile(file, 1), [&](const Progetto::Lista &lista) {
        const int riga = righe.value(lista.nome, -1);
        if (riga < 0)
            return;
        scegli(riga, lista.selezionata);
        m_lstCondizioni.setList(riga, lista.condizione);
        descrivi(riga);
    });
}

void ListeVigilio::scriviProgetto(const QString &file)
{
    if (!passaErrori([&] { scrivi(file); }))
        Archivio::abbandona();
    m_salvate = true;
}

void ListeVigilio::scrivi(const QString &file) const
{
    if (!m_riempite && QFileInfo::exists(file))
        return;
    QList<Progetto::Lista> liste;
    for (int i = 0; i < quante(); ++i)
        liste += {nome(i), scelta(i), condizione(i)};
    ScriviFile(file, Progetto::scritto(liste));
}

std::optional<ListeVigilio::Contrasto> ListeVigilio::contrasto() const
{
    struct Scelta
    {
        int riga;
        CondizioneLetta condizione;
    };
    // Only lists that are both selected can clash.
    std::vector<Scelta> scelte;
    for (int i = 0; i < quante(); ++i) {
        if (scelta(i))
            scelte.push_back({i, CondizioneLetta(condizione(i))});
    }
    for (const Scelta &i : scelte) {
        for (const Scelta &j : scelte) {
            if (i.riga == j.riga)
                continue;
            if (const auto perche = i.condizione.contrasto(j.condizione))
                return Contrasto{nome(i.riga), nome(j.riga), *perche};
        }
    }
    return std::nullopt;
}
