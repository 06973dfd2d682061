#include "serial/ControlloSeriale.h"

#include "base/Errore.h"

ControlloSeriale::ControlloSeriale(const QString &nome, QObject *finestra,
                                   std::unique_ptr<Porta> porta, const QString &cartella)
    : QObject(finestra), m_porta(std::move(porta)), m_cartella(cartella)
{
    setObjectName(nome);
    m_porta->arrivo = [this] { Arrivo(); };
}

void ControlloSeriale::setCommPort(int numero)
{
    if (numero < 1)
        throw Errore(Errore::PortaInesistente);
    m_numero = numero;
}

void ControlloSeriale::setPortOpen(bool aperta)
{
    if (aperta == PortOpen())
        return;
    m_tenuti.clear();
    if (aperta)
        m_porta->apri(percorsoPorta(m_numero, m_cartella));
    else
        m_porta->chiudi();
}

void ControlloSeriale::Output(QByteArrayView byte)
{
    if (!PortOpen())
        throw Errore(Errore::PORT_NOT_OPEN);
    m_porta->scrivi(byte);
}

QByteArray ControlloSeriale::Input()
{
    if (!PortOpen())
        throw Errore(Errore::PORT_NOT_OPEN);
    guarda();
    return std::exchange(m_tenuti, {});
}

int ControlloSeriale::InBufferCount()
{
    if (!PortOpen())
        throw Errore(Errore::PORT_NOT_OPEN);
    guarda();
    return static_cast<int>(m_tenuti.size());
}

void ControlloSeriale::avvisa(bool attivo)
{
    m_porta->sorveglia(attivo);
}

void ControlloSeriale::guarda()
{
    // One read may return fewer bytes than have arrived.
    while (m_tenuti.size() < InBufferSize) {
        const QByteArray letti = m_porta->leggi(InBufferSize - m_tenuti.size());
        if (letti.isEmpty())
            break;
        m_tenuti += letti;
    }
}
