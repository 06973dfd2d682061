// The rules of the port number, alike in the two dialogs that ask for it.
#pragma once

#include "CasellaTesto.h"
#include "Finestra.h"
#include "Pulsanti.h"

class NumeroPorta
{
public:
    static constexpr int Minimo = 1;
    static constexpr int Massimo = 99;

    // Ties the box and the spin bar together; window is the one whose Tag tells of an empty box.
    NumeroPorta(Finestra &finestra, CasellaTesto &txtPorta, SuGiu &suGiu);

    // Brings the number into the limits; an empty box gets its message, the focus comes back and
    // the window's Tag becomes "Errore".
    void txtPorta_LostFocus();

private:
    Finestra &m_finestra;
    CasellaTesto &txtPorta;
    SuGiu &m_suGiu;
};
