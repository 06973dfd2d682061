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
    virtual ~AscoltatoreFile() = default;
    // While this is false, statuses and entries are only consumed.
    virtual bool visibile() const = 0;
    virtual void stato(quint8 k, quint8 x) = 0;
    // One entry of a folder: x is its kind, corpo its name.
    virtual void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) = 0;
    // A block has begun: once at each look at it, the last one included.
    virtual void bloccoInArrivo() = 0;
    // A whole block of a file. May run the pump.
    virtual void blocco(quint8 k, const QByteArray &contenuto) = 0;
    // Bytes that were not cut into telegrams yet were thrown away.
    virtual void byteGettati() = 0;
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
