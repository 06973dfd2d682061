// Shows an error to the user.
#pragma once

#include "base/Errore.h"

#include <QString>

// A box with the stop icon, titled "Errore - " and titolo, or, where titolo is empty, the caption
// of the active window and " - Errore".
void MostraErrore(const QString &messaggioErrore, const QString &titolo);

// The caption of the window that is active, or was last; empty where there is none.
QString titoloFinestraAttiva();

// The one exit of the handlers with a file dialog: the user's cancelling is silent.
template <class Gestore>
void conUscita(Gestore gestore)
{
    try {
        gestore();
    } catch (const Errore &errore) {
        if (errore.numero() != Errore::Annullato)
            MostraErrore(errore.descrizione(), {});
    }
}
