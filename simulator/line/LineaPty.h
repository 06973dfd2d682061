#pragma once
#include "simulator/line/Linea.h"
#include <QSocketNotifier>
#include <memory>

inline namespace tessaro_sim {
// A pseudo-terminal, its other end in raw mode.
//
// The line keeps the other end open itself, so that the program may close and reopen it without
// hanging the line up, and watches the device's openings and closings instead. At a last closing
// it does what a real port does: bytes nobody read are gone, and the device is free again.
class LineaPty : public Linea
{
public:
    ~LineaPty() override;
    bool apri() override;
    void chiudi() override;
    bool aperta() const override { return m_capo >= 0; }
    QString errore() const override { return m_errore; }
    QString percorso() const override { return m_percorso; }
    bool ascoltata() override;
    qsizetype scrivi(const QByteArray &byte) override;

private:
    struct Eventi
    {
        bool aperta = false;
        bool chiusa = false;
        bool riaperta = false; // an opening came after a closing
    };
    void leggi();
    Eventi leggiEventi();
    bool restaQualcuno();
    void guardaAperture();
    void libera();
    bool fallisci(const QString &dove);

    int m_capo = -1;    // the master
    int m_presa = -1;   // the other end, held open
    int m_guardia = -1; // inotify
    bool m_ascoltata = false;
    QString m_percorso;
    QString m_errore;
    std::unique_ptr<QSocketNotifier> m_notaLettura;
    std::unique_ptr<QSocketNotifier> m_notaAperture;
};
} // namespace tessaro_sim
