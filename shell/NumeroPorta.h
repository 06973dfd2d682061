// The rules for the number of the serial port, common to the two dialogs that ask for it.
#pragma once

#include "controls/CasellaTesto.h"
#include "controls/Finestra.h"
#include "controls/Pulsanti.h"

class NumeroPorta
{
public:
    static constexpr int Minimo = 1;
    static constexpr int Massimo = 99;

    // Connects the text box and the spin bar. The Tag of the window is set to "Errore" while the
    // box is empty.
    NumeroPorta(Finestra &finestra, CasellaTesto &txtPorta, SuGiu &suGiu);

    // What a click on OK finds in the box.
    enum class Conferma {
        // A number from Minimo to Massimo.
        Valido,
        // An empty box: the message was shown and the box has the focus.
        Vuoto,
        // An empty box, but the press of this click has already shown the message.
        GiaDetto,
    };
    // Watches the presses of the OK button; call it once.
    void conOK(Pulsante &pulsante);
    // To be called when OK is clicked: applies the rules for leaving the box, even if it still has
    // the focus, with at most one message for each click. Clears the window's Tag.
    Conferma conferma();
    // Gives the focus to the box and selects its number.
    void inizia();

    // Limits the number to the range. If the box is empty, shows a message, gives the focus back to
    // the box and sets the window's Tag to "Errore".
    void txtPorta_LostFocus();

private:
    void pulOK_MouseDown();

    Finestra &m_finestra;
    CasellaTesto &txtPorta;
    SuGiu &m_suGiu;
    bool m_dettoAlClick = false;
};
