// The interfaces through which telegrams reach windows of higher folders.
#pragma once

#include <QByteArray>
#include <QString>

// Receives video rows.
class AscoltatoreVideo
{
public:
    virtual ~AscoltatoreVideo() = default;
    virtual bool cameraAperta() const = 0;
    // riga: the 160 bytes of a row; one more byte may follow, which is not part of it.
    virtual void CalcolaRiga(const QByteArray &riga) = 0;
};

// Receives what the robot's storage sends. k: the number of the channel on the robot.
class AscoltatoreFile
{
public:
    virtual ~AscoltatoreFile() = default;
    // While it is false, statuses and entries are consumed but not handed over.
    virtual bool visibile() const = 0;
    // x: 0 the channel is open, 255 end of the folder.
    virtual void stato(quint8 k, quint8 x) = 0;
    // One entry of a folder. x: its kind; corpo: its name.
    virtual void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) = 0;
    // A block is arriving; called at each tick until it is complete, the last tick included.
    virtual void bloccoInArrivo() = 0;
    // A complete block of a file. May run the pump.
    virtual void blocco(quint8 k, const QByteArray &contenuto) = 0;
    // Bytes that were not cut into telegrams yet were dropped.
    virtual void byteGettati() = 0;
};

// Receives telemetry, in the form in which the conditions of lists compare it.
class AscoltatoreTelemetria
{
public:
    virtual ~AscoltatoreTelemetria() = default;
    virtual bool avviato() const = 0;
    // Called only while avviato(). testo: "Ultrasuoni:101" (right, centre, left; 1 is an obstacle),
    // "Temperatura:25" (degrees) or "Batterie:34" (levels of logic and motor battery, 0 to 4).
    virtual void VerificaCondizioni(const QString &testo) = 0;
};
