// The serial control: a port with a number, over a line that is a constructor argument.
#pragma once

#include "controls/Evento.h"
#include "serial/Porta.h"

#include <QObject>
#include <memory>

class ControlloSeriale : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int CommPort READ CommPort WRITE setCommPort)
    Q_PROPERTY(bool PortOpen READ PortOpen WRITE setPortOpen)
    Q_PROPERTY(int InBufferCount READ conteggio)

public:
    // The control holds at most this number of bytes; more stay in the operating system.
    static constexpr qsizetype InBufferSize = 1024;

    // cartella: the program's folder, see percorsoPorta.
    ControlloSeriale(const QString &nome, QObject *finestra, std::unique_ptr<Porta> porta,
                     const QString &cartella);

    int CommPort() const { return m_numero; }
    // Used at the next opening. Throws Errore::PortaInesistente if the number is below 1.
    void setCommPort(int numero);
    bool PortOpen() const { return m_porta->aperta(); }
    // Opening drops the bytes held and throws Errore::PortaInesistente, PortaInUso or
    // AccessoNegato. Does nothing if the port is in that state already.
    void setPortOpen(bool aperta);

    // Hands the bytes to the operating system in one write before it returns. Throws
    // Errore::PORT_NOT_OPEN if the port is closed, LineaPersa if the line does not take the bytes.
    void Output(QByteArrayView byte);
    // Reads the port and takes all bytes held; empty if none has come or the far end is gone.
    // Throws Errore::PORT_NOT_OPEN if the port is closed.
    QByteArray Input();
    // Reads the port and returns the number of bytes held. Throws Errore::PORT_NOT_OPEN if the port
    // is closed.
    int InBufferCount();
    // The same for the property: 0 if the port is closed.
    int conteggio() { return PortOpen() ? InBufferCount() : 0; }

    // While it is on, the event loop raises Arrivo when the port has bytes.
    void avvisa(bool attivo);
    Evento<> Arrivo;

private:
    // Reads from the port until it has no more bytes or InBufferSize bytes are held.
    void guarda();

    std::unique_ptr<Porta> m_porta;
    QString m_cartella;
    QByteArray m_tenuti;
    int m_numero = 1;
};
