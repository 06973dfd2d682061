// The document: the lines of a move list, kept in the list control and nowhere else, and whether
// they are saved. The file is the one that the window's file dialog names.
#pragma once

#include "controls/Elenco.h"

#include <optional>

class ListaMosse
{
public:
    // From now on the Tag of lstMosse shows whether the list is saved: "True", "False", or empty
    // before the window is loaded.
    explicit ListaMosse(Elenco &lstMosse);
    ~ListaMosse();
    Q_DISABLE_COPY_MOVE(ListaMosse)

    bool vuota() const { return m_lstMosse.ListCount() == 0; }
    // Whether there is nothing to save.
    bool salvata() const { return m_salvata.value_or(false); }
    void segnaSalvata() { m_salvata = true; }

    // Inserts a line after the selected one, or at the top if none is selected, and selects it. The
    // list counts as changed. A full list shows a message and stays as it is.
    void inserisci(const QString &riga);
    // Removes the selected line. The line that takes its place is selected, or none.
    void togli();
    // Exchanges two lines and selects the second place. Errore::ProprietaNonValida if one of them
    // does not exist.
    void scambia(int riga, int con);
    // Removes all lines. Whether the list is saved does not change.
    void svuota() { m_lstMosse.Clear(); }

    // Replaces the lines by those of a file; the list counts as saved. Errors are those of
    // Archivio::apri and FileMosse::leggi: the lines read so far stay, and so does the open file.
    void leggi(const QString &percorso);
    // Writes the lines to a file; the list counts as saved afterwards, even if that failed. No
    // failure is reported: a file that cannot be written completely stays as it was.
    void scrivi(const QString &percorso);

    // Back to the design values: no lines, and neither saved nor changed.
    void riposa();

private:
    void accoda(const QString &riga);
    void aggiungi(const QString &riga, int dove);

    Elenco &m_lstMosse;
    std::optional<bool> m_salvata;
};
