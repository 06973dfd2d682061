// Whether the Vigilio starts lists, and the one start that may be under way. A start waits for the
// user and for the connection, and meanwhile it may be stopped, the window closed, the check marks
// taken away: it counts only as long as its Avvio is valid.
#pragma once

#include <QtGlobal>

class Vigilio
{
public:
    enum class Stato { Spento, InAvvio, Avviato };

    class Avvio
    {
    public:
        // Not valid from the beginning if another one is under way.
        explicit Avvio(Vigilio &vigilio);
        // A start that came to nothing leaves the Vigilio as it was.
        ~Avvio();
        Q_DISABLE_COPY_MOVE(Avvio)

        // Nothing has switched the Vigilio on or off since.
        bool valido() const;

    private:
        Vigilio &m_vigilio;
        quint64 m_numero = 0;
    };

    Stato stato() const { return m_stato; }
    // One that was on stays so while it is started again.
    bool avviato() const
    {
        return (m_stato == Stato::InAvvio ? m_prima : m_stato) == Stato::Avviato;
    }

    // Both end a start that is under way.
    void accendi();
    void spegni();

private:
    void passa(Stato stato);

    Stato m_stato = Stato::Spento;
    // While starting: what it was before.
    Stato m_prima = Stato::Spento;
    // Grows with every change, so that an old start is never taken for a new one.
    quint64 m_cambi = 0;
};
