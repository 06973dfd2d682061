#pragma once
#include "Registrazione.h"
#include <QElapsedTimer>
#include <QTimer>
#include <functional>

inline namespace tessaro_sim {
/// Plays the robot's side of a recorded session.
class Riproduttore
{
public:
    Riproduttore();

    /// False, with errore(), where the file cannot be read.
    bool carica(const QString &file, bool tempiOriginali);
    QString errore() const { return errore_; }
    bool attivo() const { return attivo_; }
    /// The console has sent something: the recording's clock starts here, the first time.
    void scatta();
    /// Without original times: the next stretch, as soon as there is room for it.
    void avanti();
    void ferma();

    std::function<void(const QByteArray &)> suByte;
    std::function<void()> suFine;

private:
    void scaduto();
    void programma();

    QList<Registrazione::Tratto> tratti_;
    qsizetype prossimo_ = 0;
    bool attivo_ = false;
    bool scattato_ = false;
    bool tempi_ = true;
    qint64 base_ = 0;
    QString errore_;
    QElapsedTimer orologio_;
    QTimer timer_;
};
} // namespace tessaro_sim
