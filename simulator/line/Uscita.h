#pragma once
#include "simulator/line/Ritmo.h"
#include <QElapsedTimer>
#include <QTimer>
#include <functional>

inline namespace tessaro_sim {
class Linea;

// The bytes on their way to the line: a bounded queue, let out at the line's pace.
class Uscita
{
public:
    // More than the largest storage block; what does not fit is lost, as on a line without
    // handshake.
    static constexpr qsizetype massimo = 256 * 1024;

    // `linea` must outlive this.
    explicit Uscita(Linea &linea);

    void impostaBaud(int baud) { m_ritmo.impostaBaud(baud); }
    int baud() const { return m_ritmo.baud(); }

    // How many of the bytes found no room.
    qsizetype accoda(const QByteArray &byte);
    // The same for a row of the video: where nothing waits before it, interrompi() can stop it.
    qsizetype accodaRiga(const QByteArray &byte);
    // What has not gone out yet of the row of the video is dropped; all else stays.
    void interrompi();
    qsizetype inCoda() const { return m_coda.size(); }
    void svuota();
    // True: what goes out is lost on the way.
    void impostaPerduta(bool perduta) { m_perduta = perduta; }

    // Called with what was handed to the line.
    std::function<void(const QByteArray &)> suInvio;
    // Called when little is left in the queue.
    std::function<void()> suFame;

private:
    void spedisci();

    Linea &m_linea;
    Ritmo m_ritmo;
    QByteArray m_coda;
    qsizetype m_riga = 0;     // how many bytes at the queue's head belong to a row
    qsizetype m_scartati = 0; // how many were dropped from the head since the last writing began
    bool m_perduta = false;
    QElapsedTimer m_orologio;
    QTimer m_timer;
};
} // namespace tessaro_sim
