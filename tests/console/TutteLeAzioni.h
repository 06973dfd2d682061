// Every manual action of the console, as the user makes it and as it must come out.
#pragma once

#include "tests/console/ConsoleInProva.h"

#include <functional>
#include <vector>

struct AzioneManuale
{
    QString nome;
    // Brings the console to where the action can be made; does not act.
    std::function<void(ConsoleInProva &)> prepara;
    std::function<void(ConsoleInProva &)> fai;
    QString riga;
    QByteArray byte;
    // Empty where panel 3 keeps what it had.
    QString esito;
};

// Without the deletion of a message, which asks first.
std::vector<AzioneManuale> tutteLeAzioni();

// Brings a colour list up over one half of the head's picture.
void apriComparsa(ConsoleInProva &c, bool destro, bool accendi);
// The middle of a list's row, in the coordinates of its viewport.
QPoint suRiga(Elenco &lista, int riga);
