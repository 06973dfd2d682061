#pragma once
#include "simulator/line/Registrazione.h"
#include <QElapsedTimer>
#include <QTimer>
#include <functional>

inline namespace tessaro_sim {
// Plays the robot's side of a recorded session.
class Riproduttore
{
public:
    Riproduttore();

    // False, with errore(), where the file cannot be read.
    bool carica(const QString &file, bool tempiOriginali);
    QString errore() const { return m_errore; }
    bool attivo() const { return m_attivo; }
    // The console has sent something: the recording's clock starts here, the first time.
    void scatta();
    // Without original times: the next stretch, as soon as there is room for it.
    void avanti();
    void ferma();

    // Called with each stretch that is due, and when the last one has been.
    std::function<void(const QByteArray &)> suByte;
    std::function<void()> suFine;

private:
    void scaduto();
    void programma();

    QList<Registrazione::Tratto> m_tratti;
    qsizetype m_prossimo = 0;
    bool m_attivo = false;
    bool m_scattato = false;
    bool m_tempi = true;
    qint64 m_base = 0;
    QString m_errore;
    QElapsedTimer m_orologio;
    QTimer m_timer;
};
} // namespace tessaro_sim
