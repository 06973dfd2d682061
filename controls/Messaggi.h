// Message boxes: the only place of the program that makes one.
#pragma once

#include <QString>

enum class Icona { Nessuna, Informazione, Domanda, Stop };
enum class Pulsanti { OK, SiNo, SiNoAnnulla };
enum class Risposta { OK, Si, No, Annulla };

// Shows a message box over the window in front and waits for the answer; timers go on meanwhile. An
// empty title is the program's name. Closing the box counts as OK, as Annulla where there is such
// a button, and is not offered between Sì and No.
Risposta messaggio(const QString &testo, Icona icona = Icona::Nessuna,
                   Pulsanti pulsanti = Pulsanti::OK, const QString &titolo = {});
