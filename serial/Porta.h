// The interface to a serial line of the operating system.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// A line is opened exclusively, with 9600 baud, 8 data bits, no parity and 1 stop bit; DTR and RTS
// are set if the line has them. Tests use other implementations.
class Porta
{
public:
    virtual ~Porta() = default;

    // Throws Errore::PortaInesistente if there is no such serial line, PortaInUso if another
    // program uses it, AccessoNegato if the user may not open it; its text says what to do.
    virtual void apri(const QString &percorso) = 0;
    // Does nothing if the line is closed.
    virtual void chiudi() = 0;
    // Stays true when the far end goes away.
    virtual bool aperta() const = 0;

    // Hands the bytes to the operating system in one write. Throws Errore::LineaPersa if it does
    // not take them. Linux never waits here; Windows waits until the bytes are sent, 500 ms and 2
    // ms a byte at most.
    virtual void scrivi(QByteArrayView byte) = 0;
    // Takes up to massimo of the bytes that have arrived, without waiting; empty if there are none
    // or the far end is gone.
    virtual QByteArray leggi(qsizetype massimo) = 0;

    // While it is on, the event loop calls arrivo when bytes can be read.
    virtual void sorveglia(bool attiva) = 0;
    std::function<void()> arrivo;
};

// The path of a port: on Windows "\\.\COMn"; elsewhere the entry COMn of the folder if it exists,
// even as a broken link, else "/dev/ttyS" and numero - 1.
QString percorsoPorta(int numero, const QString &cartella);
