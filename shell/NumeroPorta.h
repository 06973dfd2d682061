// The rules of the port number, alike in the two dialogs that ask for it.
#pragma once

#include "controls/CasellaTesto.h"
#include "controls/Finestra.h"
#include "controls/Pulsanti.h"

class NumeroPorta
{
public:
    static constexpr int Minimo = 1;
    static constexpr int Massimo = 99;

    // Ties the box and the spin bar together; window is the one whose Tag tells of an empty box.
    NumeroPorta(Finestra &finestra, CasellaTesto &txtPorta, SuGiu &suGiu);

    // What a click on OK finds in the box.
    enum class Conferma {
        // A number within the limits.
        Valido,
        // Nothing: the message was shown now, and the focus is in the box.
        Vuoto,
        // Nothing, as the message said that the press of this click brought up.
        GiaDetto,
    };
    // Follows the button that ends the dialog with the number.
    void conOK(Pulsante &pulsante);
    // At its click: applies the rules of leaving the box, whether it was left or not, with one
    // message for each click. The window's Tag is empty afterwards.
    Conferma conferma();
    // Gives the focus to the box, with its number selected.
    void inizia();

    // Brings the number into the limits; an empty box gets its message, the focus comes back and
    // the window's Tag becomes "Errore".
    void txtPorta_LostFocus();

private:
    void pulOK_MouseDown();

    Finestra &m_finestra;
    CasellaTesto &txtPorta;
    SuGiu &m_suGiu;
    bool m_dettoAlClick = false;
};
