// Message boxes. No other module creates one.
#pragma once

#include <QString>

enum class Icona { Nessuna, Informazione, Domanda, Stop };
enum class Pulsanti { OK, SiNo, SiNoAnnulla };
enum class Risposta { OK, Si, No, Annulla };

// Shows a message box over Finestra::Davanti() and waits for the answer; timers keep running. If
// the title is empty, the program's name is shown. Closing the box counts as Annulla if it has that
// button, else as OK; a box with only Sì and No cannot be closed without a choice. If its parent
// window is destroyed, the answer is Annulla, No or OK, the first of these that the box has.
Risposta messaggio(const QString &testo, Icona icona = Icona::Nessuna,
                   Pulsanti pulsanti = Pulsanti::OK, const QString &titolo = {});
