// Phrases, sounds, recorded messages and internal programs: what each does, and what panel 3 shows.
#pragma once

#include "console/Azione.h"

// The actions take the text of their box, and its number when they run: one that does not fit is
// Errore::Overflow there.
namespace Parlato {

// The phrase between quote marks, the sound's name bare. The text is compared, not its value: "07"
// has no name, nor has any other text that is no number of the table.
QString nomeFrase(const QString &numero);
QString nomeSuono(const QString &numero);

// A box's text when it is left: brought between 1 and the limit.
QString limitato(const QString &numero, int massimo);

// None of these shows a text after it.
Azione frase(const QString &numero);
Azione suono(const QString &numero);
Azione suonaMessaggio(const QString &numero);
Azione registraMessaggio(const QString &numero);
Azione cancellaMessaggio(const QString &numero);
Azione fermaMessaggio();

Azione avviaProgramma(const QString &numero);
Azione fermaProgramma();

// 1, a plain border, while the mouse stands at least 50 units inside all edges; else 0. Layout
// units.
int bordo(double x, double y, double larghezza, double altezza);

} // namespace Parlato
