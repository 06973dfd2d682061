// Keeps a window beside another one, and on the screen.
#pragma once

#include <QRect>

class Finestra;

class FinestraAccanto
{
public:
    // finestra opens beside altra.
    FinestraAccanto(Finestra &finestra, const Finestra &altra)
        : m_finestra(finestra), m_altra(altra)
    {
    }

    // Places the window before it is shown.
    void colloca();
    // The window was shown by the program; call it from its showEvent.
    void mostrata();
    // Call it when the window becomes exposed. The first time after mostrata() its own frame is
    // known, and the screen on which it was may be gone: then it is moved onto one that exists.
    void rivedi();

private:
    void metti(const QRect &conCornice);

    Finestra &m_finestra;
    const Finestra &m_altra;
    // Shown, and not drawn yet.
    bool m_daRivedere = false;
};
