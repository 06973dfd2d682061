#pragma once
#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QList>
#include <QString>

inline namespace tessaro_sim {
// A wire session as text, one line for each stretch of bytes:
//
//     # tessaro-sim registrazione 1
//     0 > 3 1 1
//     14 < 32 210 180
//
// milliseconds since the first line, ">" from the console or "<" from the robot, bytes in decimal.
namespace Registrazione {
struct Tratto
{
    qint64 ms = 0;
    bool versoRobot = false;
    QByteArray byte;
};

QByteArray riga(const Tratto &tratto);
// Reads a whole file. False, and the reason, at the first line that is no stretch; empty lines
// and lines that start with "#" are passed over.
bool leggi(const QString &file, QList<Tratto> &tratti, QString &errore);
} // namespace Registrazione

// Writes a session to a file while it happens.
class Registratore
{
public:
    // False, with the reason in errore(), where the file cannot be written.
    bool apri(const QString &file);
    void chiudi() { m_file.close(); }
    QString errore() const { return m_file.errorString(); }
    // Does nothing while no file is open. Each stretch is on disk at the return.
    void scrivi(bool versoRobot, const QByteArray &byte);

private:
    QFile m_file;
    QElapsedTimer m_orologio;
};
} // namespace tessaro_sim
