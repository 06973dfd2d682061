#pragma once
#include "simulator/robot/Diario.h"
#include "simulator/robot/Robot.h"
#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <memory>

// Inline: a test need not name it, and no name of the simulator can clash with one of the program
// where both are linked.
inline namespace tessaro_sim {
class Linea;

// The robot at the end of a line: opens it, paces what goes out, applies the faults, keeps a log.
// Everything runs in the event loop of the thread that made it.
class Simulatore : public QObject
{
    Q_OBJECT
public:
    explicit Simulatore(QObject *parent = nullptr);
    // Closes the line and removes the link.
    ~Simulatore() override;

    // Opens the line; false on failure, with the reason in errore().
    bool apri();
    // What went wrong last, in Italian.
    QString errore() const;
    // The device that the program opens, as "/dev/pts/3"; empty while the line is closed.
    QString percorso() const;
    // Makes the link COMn to percorso() in a folder; n 1 to 99. It is kept up to date and removed
    // at the end. False, with errore(), where it cannot be made.
    bool collegaPorta(const QString &cartella, int n);
    // Whether the program holds the device open right now.
    bool portaAperta();

    // Hangs up: the program finds its line vanished. riaggancia() opens a new one.
    void sgancia();
    bool riaggancia();
    // The line loses all bytes, both ways, for this many milliseconds; 0 ends it.
    void perdiLinea(int ms);

    // Bits a second at 10 bits a byte; 9600 at first; 0 without limit.
    void impostaBaud(int baud);
    int baud() const;
    // Seeds the faults that happen by chance.
    void impostaSeme(quint32 seme);

    Robot &robot();
    Diario &diario();
    // The faults, also reached as robot().guasti(); changes count at once.
    Guasti &guasti();

    // Puts bytes on the line to the console as they stand: paced, but past silence, delays and
    // all other faults, and whether a session is open or not.
    void inviaGrezzo(const QByteArray &byte);

    // Bytes received from the console since the start or the last dimentica(), the last MiB.
    QByteArray ricevuti() const;
    // The same as they were read, one element for each read; writes close together may share one.
    QList<QByteArray> letture() const;
    // Bytes handed to the line.
    qint64 quantiInviati() const;
    // Bytes waiting to be handed to the line.
    qint64 inCoda() const;
    // Empties ricevuti(), letture() and quantiInviati().
    void dimentica();

    // Writes the wire's traffic to a text file from now on; an empty name stops. False: errore().
    bool registra(const QString &file);
    // Plays the robot's side of a recorded file in place of the robot, from the console's first
    // byte on. False: errore().
    bool riproduci(const QString &file, bool tempiOriginali = true);

Q_SIGNALS:
    // Bytes from the console as they were read, and bytes handed to the line.
    void ricevuto(const QByteArray &byte);
    void inviato(const QByteArray &byte);
    // The program has opened or closed the device.
    void portaCambiata(bool aperta);
    void riproduzioneFinita();

private:
    class Interno;
    std::unique_ptr<Interno> d;
};
} // namespace tessaro_sim
