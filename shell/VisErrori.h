// Shows an error to the user.
#pragma once

#include "base/Errore.h"

#include <QString>

// Shows a message box with the stop icon. Its title is "Errore - " and titolo or, if titolo is
// empty, the caption of the active window and " - Errore". Throws no Errore.
void MostraErrore(const QString &messaggioErrore, const QString &titolo);

// The caption of the window that is active or was active last; empty if no window is visible.
QString titoloFinestraAttiva();

// Runs a handler that uses a file dialog. An Errore is shown to the user, except Errore::Annullato:
// the user has cancelled.
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
