// The receive engine: cuts the robot's bytes into telegrams (docs/protocol.md), shows telemetry in
// the console's controls and hands the other telegrams over.
#pragma once

#include "controls/Barre.h"
#include "link/Accumulatore.h"
#include "link/Ascoltatori.h"
#include "link/Scatto.h"
#include "serial/ControlloSeriale.h"

// The console's controls that telemetry changes.
struct ControlliTelemetria
{
    BarraDiStato &BarraStato;
    Etichetta &lblTemperatura;
    QWidget &imgBattLogica;
    QWidget &imgBattMotori;
    Forma &imgLivBattLogica;
    Forma &imgLivBattMotori;
    Forma &shpUltrasuoniDx;
    Forma &shpUltrasuoniCe;
    Forma &shpUltrasuoniSx;
};

class MotoreRicezione : public QObject
{
    Q_OBJECT

public:
    // Width of the level bar of a full battery, in layout units: 615 / 15 = 41 logical pixels.
    static constexpr qint32 barraPiena = 615;

    // Listeners are set later. The telegrams of a listener that is missing are consumed.
    MotoreRicezione(ControlloSeriale &COM, TemporizzatoreIngresso &tmrElabInput,
                    const ControlliTelemetria &controlli);
    ~MotoreRicezione() override;

    void ascoltaVideo(AscoltatoreVideo *ascoltatore) { m_video = ascoltatore; }
    void ascoltaFile(AscoltatoreFile *ascoltatore) { m_file = ascoltatore; }
    void ascoltaTelemetria(AscoltatoreTelemetria *ascoltatore) { m_telemetria = ascoltatore; }

    // Appends the bytes of the port to the accumulator; ignores errors.
    void LeggiIngresso();

    // While an object of this class exists, a tick that needs another byte neither reads the port
    // nor is resumed. Routines use it that wait and count the bytes of the port, so that they see
    // the bytes first.
    class Fermo
    {
    public:
        explicit Fermo(MotoreRicezione &motore);
        ~Fermo();
        Q_DISABLE_COPY_MOVE(Fermo)

    private:
        MotoreRicezione &m_motore;
    };

private:
    // co_await byte(n) gives byte n of the accumulator. If the byte has not arrived, the tick is
    // suspended until it has.
    struct Byte
    {
        MotoreRicezione &motore;
        qsizetype posto;
        bool await_ready();
        void await_suspend(std::coroutine_handle<> sospeso);
        quint8 await_resume() const { return motore.m_accumulatore.byte(posto); }
    };
    Byte byte(qsizetype posto) { return {*this, posto}; }

    // Handles and cuts off telegrams until none is left or the first one is not complete.
    Scatto tmrElabInput_Timer();
    void videoRiga();
    void temperatura(quint8 t);
    void batterie(quint8 l, quint8 m);
    void riferisciUltrasuoni();

    // Resumes the suspended tick if its byte has arrived.
    void riprendi();
    // Calls riprendi from the event loop.
    void riprendiPresto();
    // The port reports new bytes only while a tick waits for them.
    void aggiornaAvviso();
    void riferisci(const QString &testo);

    ControlloSeriale &COM;
    TemporizzatoreIngresso &tmrElabInput;
    Accumulatore &m_accumulatore;
    ControlliTelemetria c;
    AscoltatoreVideo *m_video = nullptr;
    AscoltatoreFile *m_file = nullptr;
    AscoltatoreTelemetria *m_telemetria = nullptr;

    std::coroutine_handle<> m_sospeso;
    qsizetype m_postoAtteso = 0;
    int m_fermi = 0;
    bool m_ripresaChiesta = false;
};
