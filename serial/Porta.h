// One serial line of the operating system behind a handful of verbs.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// A line is opened for this program alone, at 9600 baud, 8 data bits, no parity, 1 stop bit, DTR
// and RTS raised where it has them. Tests hand in others.
class Porta
{
public:
    virtual ~Porta() = default;

    // Errore::PortaInesistente where there is no such line, PortaInUso where somebody has it,
    // AccessoNegato, saying what to do, where the user has no right to it.
    virtual void apri(const QString &percorso) = 0;
    // Any number of times.
    virtual void chiudi() = 0;
    virtual bool aperta() const = 0;

    // Hands the bytes to the operating system in one write, without waiting; Errore::LineaPersa
    // where it does not take them.
    virtual void scrivi(QByteArrayView byte) = 0;
    // Takes up to that many of the bytes that are there, none where the far end went away.
    virtual QByteArray leggi(qsizetype massimo) = 0;

    // While on, the function is called from the event loop when bytes are there to be read.
    virtual void sorveglia(bool attiva) = 0;
    std::function<void()> arrivo;
};

// Where port n is: COMn on Windows; elsewhere the entry COMn in the folder where there is one,
// else /dev/ttyS(n-1).
QString percorsoPorta(int numero, const QString &cartella);
