// The serial control of the design, over a line that is handed in.
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
    // How many bytes are held at most; the rest waits in the operating system.
    static constexpr qsizetype InBufferSize = 1024;

    ControlloSeriale(const QString &nome, QObject *finestra, std::unique_ptr<Porta> porta,
                     const QString &cartella);

    int CommPort() const { return m_numero; }
    // Comes into use at the next opening; a number below 1 is Errore::PortaInesistente.
    void setCommPort(int numero);
    bool PortOpen() const { return m_porta->aperta(); }
    // Opening fails with Errore::PortaInesistente, PortaInUso or AccessoNegato.
    void setPortOpen(bool aperta);

    // One write, with the operating system when this returns. Errore::PORT_NOT_OPEN where the port
    // is closed, Errore::LineaPersa where the line does not take the bytes.
    void Output(QByteArrayView byte);
    // All that is held, after a look at the port; empty where nothing came or the far end went
    // away. Errore::PORT_NOT_OPEN where the port is closed.
    QByteArray Input();
    // How many bytes are held, after a look at the port. Errore::PORT_NOT_OPEN where it is closed.
    int InBufferCount();
    // The same for who only looks: 0 where the port is closed.
    int conteggio() { return PortOpen() ? InBufferCount() : 0; }

    // While on, Arrivo is raised from the event loop when the port has bytes.
    void avvisa(bool attivo);
    Evento<> Arrivo;

private:
    void guarda();

    std::unique_ptr<Porta> m_porta;
    QString m_cartella;
    QByteArray m_tenuti;
    int m_numero = 1;
};
