// The document: the lines of a move list, kept in the list control and nowhere else.
#pragma once

#include "controls/Elenco.h"

class ListaMosse
{
public:
    explicit ListaMosse(Elenco &lstMosse) : m_lstMosse(lstMosse) {}

    // Behind the selected line, or at the top if none is selected; the new line is selected and the
    // list counts as changed. A full list says so and stays as it is.
    void inserisci(const QString &riga);
    // At the end. A full list is Errore::Overflow, with a text that says so.
    void accoda(const QString &riga);

private:
    void aggiungi(const QString &riga, int dove);

    Elenco &m_lstMosse;
};
