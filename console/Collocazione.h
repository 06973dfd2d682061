// Where the console stands on the screen.
#pragma once

// Layout units.
struct Posizione
{
    double Left;
    double Top;
};

// In the middle of the height; at 1000 from the left on a screen exactly 12000 wide, on any other
// flush with the right edge and 800 lower.
Posizione collocaConsole(double larghezzaSchermo, double altezzaSchermo, double larghezzaFinestra,
                         double altezzaFinestra);
