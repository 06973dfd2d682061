// Who takes the telegrams that belong to windows of higher floors, in this floor's own words.
#pragma once

#include <QByteArray>
#include <QString>

// Takes video rows.
class AscoltatoreVideo
{
public:
    virtual ~AscoltatoreVideo() = default;
    virtual bool cameraAperta() const = 0;
    // 160 bytes of a row, and maybe one byte more.
    virtual void CalcolaRiga(const QByteArray &riga) = 0;
};

// Takes what the robot's storage sends.
class AscoltatoreFile
{
public:
    // What the window waits for.
    enum class Attesa { Niente, Elenco, File };

    virtual ~AscoltatoreFile() = default;
    virtual bool visibile() const = 0;
    virtual Attesa attesa() const = 0;
    virtual void finisciAttesa() = 0;
    virtual void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) = 0;
    virtual void ImmagineAttesa(bool attiva) = 0;
    // The name of the file that was asked for, without a path.
    virtual QString nomeFile() const = 0;
    // Errore::ImmagineNonValida or PercorsoNonTrovato where the file can't be shown.
    virtual void caricaFoto(const QString &percorso) = 0;
    virtual void togliFoto() = 0;
    virtual void intitolaFoto(const QString &nome) = 0;
    virtual void riabilita() = 0;
};

// Takes telemetry, as the conditions of lists read it.
class AscoltatoreTelemetria
{
public:
    virtual ~AscoltatoreTelemetria() = default;
    virtual bool avviato() const = 0;
    virtual void VerificaCondizioni(const QString &testo) = 0;
};
