// What the arrow keys, the arrows on screen and STOP mean, said without a window.
#pragma once

#include "console/Azione.h"

#include <optional>

// What the console's combo boxes hold at the moment of the action.
struct ValoriMovimento
{
    QString passiV;   // text of cbStepV
    QString passiO;   // text of cbStepO
    QString velocita; // text of cbVelocità
    int indiceVelocita = 0;
    QString giro;       // text of cbModGiro
    int indiceGiro = 0; // -1 while the text was typed
};

namespace Movimento {

// An arrow key (37 to 40), in head mode or in one of the others; nothing for another key. Steps
// that do not fit a byte are Errore::Overflow when the command runs.
std::optional<Azione> freccia(int KeyCode, bool testa, const ValoriMovimento &valori);

// Arrows 5 to 10: pelvis up and down, left and right arm up, left and right arm down.
std::optional<Azione> bacinoOBraccia(int Index);

Azione stop(bool base);

// The main arrow of an arrow key, 1 to 4, and the key of a main arrow; 0 where there is none.
int frecciaDelTasto(int KeyCode);
int tastoDellaFreccia(int Index);

// The numbers of an arrow's pictures, at rest and pressed.
int disegnoARiposo(int Index);
int disegnoPremuta(int Index);

} // namespace Movimento
