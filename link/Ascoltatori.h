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

// Takes what the robot's storage sends. k is the number of the channel on the robot.
class AscoltatoreFile
{
public:
    // What the window waits for.
    enum class Attesa { Niente, Elenco, File };

    virtual ~AscoltatoreFile() = default;
    virtual bool visibile() const = 0;
    virtual Attesa attesa() const = 0;
    virtual void finisciAttesa() = 0;
    // One entry of a folder: x is 2 for a folder and anything else for a file, corpo the name.
    virtual void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) = 0;
    // Steps the wait animation, or hides it.
    virtual void ImmagineAttesa(bool attiva) = 0;
    // The name of the file that was asked for, without a path.
    virtual QString nomeFile() const = 0;
    // Errore::ImmagineNonValida or PercorsoNonTrovato where the file can't be shown.
    virtual void caricaFoto(const QString &percorso) = 0;
    virtual void togliFoto() = 0;
    virtual void intitolaFoto(const QString &nome) = 0;
    // The fetch is over: the window may be used again.
    virtual void riabilita() = 0;
};

// Takes telemetry, as the conditions of lists read it.
class AscoltatoreTelemetria
{
public:
    virtual ~AscoltatoreTelemetria() = default;
    virtual bool avviato() const = 0;
    // "Ultrasuoni:101" (right, centre, left), "Temperatura:25" (degrees) or "Batterie:34" (levels
    // of the logic and of the motor battery). Called only while avviato().
    virtual void VerificaCondizioni(const QString &testo) = 0;
};
