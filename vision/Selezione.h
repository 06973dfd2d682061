// The state of the selection on the picture: from the mouse press to the frame from which the area
// is taken.
#pragma once

class Selezione
{
public:
    // None, being drawn, finished and waiting for its frame.
    enum class Stato { Nessuna, Tracciata, Finita };

    Stato stato() const { return m_stato; }
    // Whether the area is to be taken from the next complete frame.
    bool finita() const { return m_stato == Stato::Finita; }
    // Whether no selection was finished or dropped since azzera().
    bool mai() const { return !m_usata; }

    // A press on the picture. disegna: it starts to draw a selection. nominando: the naming dialog
    // is open; then nothing is drawn, and the release of this press is ignored even if the dialog
    // is closed before it.
    void premi(bool disegna, bool nominando);
    // A release finishes the selection, even if the press drew nothing. It is ignored if the naming
    // dialog is open or was open during the press.
    void rilascia(bool nominando);
    // The naming dialog has opened: the release of a press that is held now will be ignored.
    void nomina();
    // Drops a selection that is being drawn. A finished one keeps waiting for its frame.
    void interrompi();
    // Finishes the selection without a release, when the Tag is written from outside.
    void finisci();
    // Drops the selection, also after a frame has taken it.
    void lascia();
    // Restores the initial state.
    void azzera() { *this = {}; }

private:
    Stato m_stato = Stato::Nessuna;
    bool m_usata = false;
    // The next release is to be ignored.
    bool m_vana = false;
};
