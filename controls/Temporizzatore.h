// The timer of the design.
#pragma once

#include "controls/Evento.h"
#include "controls/Tag.h"

#include <QObject>
#include <QTimer>

// Ticks every Interval milliseconds while Enabled; never inside its own tick.
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

    // 0 to 65535 ms, else Errore::ProprietaNonValida and the old value stays. 0 stops the ticks and
    // leaves Enabled as it is. Setting it starts the period anew.
    int Interval() const { return m_intervallo; }
    void setInterval(int millisecondi);

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

    // Keeps the running tick open after its handler has returned: a tick that is suspended and
    // taken up later. The timer does not tick again while one of these lives.
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
