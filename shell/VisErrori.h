// Shows an error to the user.
#pragma once

#include <QString>

// A box with the stop icon, titled "Errore - " and titolo, or, where titolo is empty, the caption
// of the active window and " - Errore".
void MostraErrore(const QString &messaggioErrore, const QString &titolo);

QString titoloFinestraAttiva();
