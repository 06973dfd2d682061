// The lists that the Vigilio knows. The file, the condition and the check mark of each one are kept
// in three parallel controls that show them, and nowhere else; whether they are saved is kept here.
#pragma once

#include "controls/Elenco.h"
#include "controls/ElencoFile.h"

#include <QString>
#include <optional>

class ListeVigilio
{
public:
    // From now on the Tag of lstFile shows whether the lists are saved: "True", "False", or "-1"
    // before anything happened to them.
    ListeVigilio(Elenco &lstFile, ElencoFile &File, Elenco &lstCondizioni);
    ~ListeVigilio();
    Q_DISABLE_COPY_MOVE(ListeVigilio)

    // The lists of that folder, without check marks, with the default condition. If the default
    // condition cannot be read there are none; the Errore is passed on.
    void riempi(const QString &cartella);
    // Takes the check marks away, one by one, and then removes the lists.
    void svuota();
    // Back to the design values.
    void riposa();

    bool salvate() const { return m_salvate.value_or(true); }
    void segnaSalvate() { m_salvate = true; }
    void segnaCambiate() { m_salvate = false; }

    // Rows count from 0; one that does not exist is Errore::ProprietaNonValida.
    int quante() const;
    QString nome(int riga) const { return m_file.List(riga); }
    QString condizione(int riga) const { return m_lstCondizioni.List(riga); }
    bool scelta(int riga) const { return m_lstFile.Selected(riga); }
    bool qualcunaScelta() const;
    // A change of the check mark raises lstFile's Click.
    void scegli(int riga, bool scelta) { m_lstFile.setSelected(riga, scelta); }
    // Writes the row anew after its condition has changed.
    void descrivi(int riga) { m_lstFile.setList(riga, scritta(riga)); }

    // Takes over what a project says about the lists that are here; the others stay as they are.
    // Errors are those of reading the file, and of Progetto::leggi.
    void leggiProgetto(const QString &file);
    // Writes all lists; they count as saved afterwards, even if that failed. No failure is
    // reported. Lists that could not be filled never replace a project that exists.
    void scriviProgetto(const QString &file);

    // The first two lists with a check mark that cannot go together, and why.
    struct Contrasto
    {
        QString prima;
        QString seconda;
        QString perche;
    };
    std::optional<Contrasto> contrasto() const;

private:
    QString scritta(int riga) const;
    void scrivi(const QString &file) const;

    Elenco &m_lstFile;
    ElencoFile &m_file;
    Elenco &m_lstCondizioni;
    std::optional<bool> m_salvate;
    // Whether the default condition could be read.
    bool m_riempite = false;
};
