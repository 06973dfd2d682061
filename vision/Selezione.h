// The area that the user chooses on the picture: from the press to the frame that takes it.
#pragma once

class Selezione
{
public:
    enum class Stato { Nessuna, Tracciata, Finita };

    Stato stato() const { return m_stato; }
    // Whether the next complete frame is to take it.
    bool finita() const { return m_stato == Stato::Finita; }
    // Whether there has been none since the window was opened.
    bool mai() const { return !m_usata; }

    // A press on the picture, which begins to draw. One that meets the naming dialog draws nothing,
    // and its release counts for nothing, even if the dialog has gone until then.
    void premi(bool disegna, bool nominando);
    // A release asks for the area also without a press that began one.
    void rilascia(bool nominando);
    // The naming dialog has come: a press that is held now comes to nothing.
    void nomina();
    // The drawing is given up; one that waits for its frame goes on waiting.
    void interrompi();
    // Asked for from outside.
    void finisci();
    // Taken by a frame, or left.
    void lascia();
    // As before the first one.
    void azzera() { *this = {}; }

private:
    Stato m_stato = Stato::Nessuna;
    bool m_usata = false;
    bool m_vana = false;
};
