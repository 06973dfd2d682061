// The timer.
#pragma once

#include "controls/Evento.h"
#include "controls/Tag.h"

#include <QObject>
#include <QTimer>

// Raises Timer every Interval milliseconds while it is Enabled, but never during its own tick, even
// if the handler pumps events.
class Temporizzatore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int Interval READ Interval WRITE setInterval)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)

public:
    Temporizzatore(const QString &nome, QObject *finestra);
    ~Temporizzatore() override;

    // Disables every timer of the program.
    static void fermaTutti();

    // 0 to 65535 ms; 0 stops the ticks and leaves Enabled as it is. Setting it, even to the same
    // value, starts a new period. Another value throws Errore::ProprietaNonValida and changes
    // nothing.
    int Interval() const { return m_intervallo; }
    void setInterval(int millisecondi);

    // Setting it, even to the same value, starts a new period.
    bool Enabled() const { return m_attivo; }
    void setEnabled(bool attivo);

    virtual QString Tag() const { return m_tag.testo(); }
    virtual void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag shows what an owner holds.
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }

    Evento<> Timer;

    // Keeps a tick open after its handler has returned, for a tick that is suspended and resumed
    // later. The timer does not tick again while an object of this class exists.
    class ScattoAperto
    {
    public:
        explicit ScattoAperto(Temporizzatore &timer);
        ~ScattoAperto();
        Q_DISABLE_COPY_MOVE(ScattoAperto)

    private:
        Temporizzatore &m_timer;
    };

private:
    void scatta();
    void riparti();

    QTimer m_timer;
    TestoTag m_tag;
    int m_intervallo = 0;
    bool m_attivo = false;
    int m_aperti = 0;
};
