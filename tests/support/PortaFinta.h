// A serial line without a system behind it: keeps what is written, gives what it is told to.
#pragma once

#include "serial/ControlloSeriale.h"

#include <QList>
#include <QTimer>

class PortaFinta : public Porta
{
public:
    PortaFinta();

    // Fails with apertura where that is not 0.
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

    // The far end sends; who watches the line is told from the event loop, as long as bytes are
    // left.
    void arriva(const QByteArray &byte);
    qsizetype inArrivo() const { return m_arrivati.size(); }
    bool sorvegliata() const { return m_sorvegliata; }

    // One element for each write that was taken, in order.
    QList<QByteArray> scritture;
    QByteArray scritti() const { return scritture.join(); }
    // The write of this number, from 1 and counting from now on, fails with Errore::LineaPersa;
    // 0 lets all pass.
    void fallisciAlla(int numero);
    // While true every write fails with Errore::LineaPersa.
    bool persa = false;
    // The error number of the next openings, 0 lets them pass; and its text, where it is not the
    // usual one.
    int apertura = 0;
    QString motivo;
    QString percorsoAperto;
    int aperture = 0;
    int chiusure = 0;
    // Raised each time somebody asks whether the port is open.
    std::function<void()> chiesta;
    // Raised after each write, for a robot that answers.
    std::function<void(const QByteArray &)> scritto;

private:
    void aggiorna();

    QByteArray m_arrivati;
    QTimer m_avviso;
    int m_fallisce = 0;
    bool m_aperta = false;
    bool m_sorvegliata = false;
};

// A serial control over such a line.
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
