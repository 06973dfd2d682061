// A serial line in memory: records what is written, and delivers what the test gives it.
#pragma once

#include "serial/ControlloSeriale.h"

#include <QList>
#include <QTimer>

class PortaFinta : public Porta
{
public:
    PortaFinta();

    // Throws the error apertura if it is not 0.
    void apri(const QString &percorso) override;
    void chiudi() override;
    bool aperta() const override
    {
        if (chiesta)
            chiesta();
        return m_aperta;
    }
    void scrivi(QByteArrayView byte) override;
    QByteArray leggi(qsizetype massimo) override;
    void sorveglia(bool attiva) override;

    // The far end sends these bytes. While the line is watched, the event loop calls arrivo until
    // all bytes are read.
    void arriva(const QByteArray &byte);
    qsizetype inArrivo() const { return m_arrivati.size(); }
    bool sorvegliata() const { return m_sorvegliata; }

    // The successful writes, in order.
    QList<QByteArray> scritture;
    QByteArray scritti() const { return scritture.join(); }
    // The write with this number, counted from 1 from now on, throws Errore::LineaPersa; 0: none.
    void fallisciAlla(int numero);
    // While it is true, every write throws Errore::LineaPersa.
    bool persa = false;
    // The error number that apri throws, 0 for none, and its text if it is not the usual one.
    int apertura = 0;
    QString motivo;
    QString percorsoAperto;
    int aperture = 0;
    int chiusure = 0;
    // Called each time the port is asked whether it is open.
    std::function<void()> chiesta;
    // Called after each successful write, so that the test can answer as the robot.
    std::function<void(const QByteArray &)> scritto;

private:
    void aggiorna();

    QByteArray m_arrivati;
    QTimer m_avviso;
    int m_fallisce = 0;
    bool m_aperta = false;
    bool m_sorvegliata = false;
};

// A serial control over a PortaFinta.
struct SerialeFinto
{
    explicit SerialeFinto(const QString &cartella = {});

    void apri() { COM.setPortOpen(true); }

private:
    std::unique_ptr<PortaFinta> m_nuova;

public:
    PortaFinta &porta;
    ControlloSeriale COM;
};
