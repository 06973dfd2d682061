// The receive engine: cuts what the robot sends into telegrams and shows what they tell.
#pragma once

#include "link/Accumulatore.h"
#include "link/Ascoltatori.h"
#include "controls/Barre.h"
#include "serial/ControlloSeriale.h"
#include "link/Scatto.h"

// The console's controls that telegrams change.
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
    // A bar of a full battery, in layout units.
    static constexpr qint32 barraPiena = 615;

    // The listeners come later; without one its telegrams are consumed as with its window closed.
    MotoreRicezione(ControlloSeriale &COM, TemporizzatoreIngresso &tmrElabInput,
                    const ControlliTelemetria &controlli);
    ~MotoreRicezione() override;

    void ascoltaVideo(AscoltatoreVideo *ascoltatore) { m_video = ascoltatore; }
    void ascoltaFile(AscoltatoreFile *ascoltatore) { m_file = ascoltatore; }
    void ascoltaTelemetria(AscoltatoreTelemetria *ascoltatore) { m_telemetria = ascoltatore; }

    // Appends all that the port gives to the accumulator; passes over errors.
    void LeggiIngresso();

    // While one lives, a tick that lacks a byte neither looks for it nor is taken up: somebody
    // beneath counts what the port holds, and the bytes are his to see first.
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
    // The failed reading of a byte beyond the accumulator's end: waits until it is there.
    struct Byte
    {
        MotoreRicezione &motore;
        qsizetype posto;
        bool await_ready();
        void await_suspend(std::coroutine_handle<> sospeso);
        quint8 await_resume() const { return motore.m_accumulatore.byte(posto); }
    };
    Byte byte(qsizetype posto) { return {*this, posto}; }

    // Cuts off and handles telegrams until nothing is left, or the first is not complete.
    Scatto tmrElabInput_Timer();
    void videoRiga();
    void temperatura(quint8 t);
    void batterie(quint8 l, quint8 m);
    void riferisciUltrasuoni();

    void riprendi();
    void riprendiPresto();
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
