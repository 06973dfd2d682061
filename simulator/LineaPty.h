#pragma once
#include "Linea.h"
#include <QSocketNotifier>
#include <memory>

inline namespace tessaro_sim {
/// A pseudo-terminal, its other end in raw mode.
///
/// The line keeps the other end open itself, so that the program may close and reopen it without
/// hanging the line up, and watches the device's openings and closings instead. At a last closing
/// it does what a real port does: bytes nobody read are gone, and the device is free again.
class LineaPty : public Linea
{
public:
    ~LineaPty() override;
    bool apri() override;
    void chiudi() override;
    bool aperta() const override { return capo_ >= 0; }
    QString errore() const override { return errore_; }
    QString percorso() const override { return percorso_; }
    bool ascoltata() override;
    qsizetype scrivi(const QByteArray &byte) override;

private:
    struct Eventi
    {
        bool aperta = false;
        bool chiusa = false;
        bool riaperta = false; ///< an opening came after a closing
    };
    void leggi();
    Eventi leggiEventi();
    bool restaQualcuno();
    void guardaAperture();
    void libera();
    bool fallisci(const QString &dove);

    int capo_ = -1;    // the master
    int presa_ = -1;   // the other end, held open
    int guardia_ = -1; // inotify
    bool ascoltata_ = false;
    QString percorso_;
    QString errore_;
    std::unique_ptr<QSocketNotifier> notaLettura_;
    std::unique_ptr<QSocketNotifier> notaAperture_;
};
} // namespace tessaro_sim
