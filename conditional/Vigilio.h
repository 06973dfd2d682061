// Whether the Vigilio starts lists, the one start that may be under way, and whether a list that it
// has started is running. A start waits for the user and for the connection. Meanwhile the Vigilio
// may be stopped, its window closed, the check marks taken away: a start counts only as long as its
// Avvio is valid.
#pragma once

#include <QString>

class Vigilio
{
public:
    enum class Stato { Spento, InAvvio, Avviato };
    // The numbers of the pictures that show them.
    enum class Fase { Spenta = 1, InAttesa, ListaInCorsa };

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

    Fase fase() const { return m_fase; }
    void setFase(Fase fase) { m_fase = fase; }

    // The Tag of its window: "AVVIATO" while it is on; while it is off, "Annulla" after its window
    // was closed, else empty, or the text that was written from outside.
    QString testo() const;
    // "AVVIATO" switches it on, any other text off.
    void scrivi(const QString &testo);

    // All three end a start that is under way.
    void accendi();
    void spegni();
    // Off, since the window is closed.
    void chiudi();

private:
    void passa(Stato stato);

    Stato m_stato = Stato::Spento;
    // While starting: what it was before.
    Stato m_prima = Stato::Spento;
    Fase m_fase = Fase::Spenta;
    // Read while it is off.
    QString m_testo;
    // Grows with every change, so that an old start is never taken for a new one.
    quint64 m_cambi = 0;
};
