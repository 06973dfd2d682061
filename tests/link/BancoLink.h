// The console's controls that link/ works with, without the console.
#pragma once

#include "controls/Barre.h"
#include "link/MotoreRicezione.h"
#include "link/Sessione.h"
#include "serial/ControlloSeriale.h"

// Bars, telemetry and timers as in the console, and a serial control over the given line.
struct Banco
{
    Banco(std::unique_ptr<Porta> porta, const QString &cartella);

    ControlliTelemetria telemetria();
    ControlliSessione sessione();

    QWidget finestra;
    ListaImmagini immagini{std::vector<QIcon>(8)};
    ControlloSeriale COM;
    TemporizzatoreIngresso tmrElabInput;
    Temporizzatore tmrSensori;
    Temporizzatore tmrControllaConn;
    Temporizzatore tmrChiusuraAutomatica;
    BarraDiStato BarraStato;
    BarraDiPulsanti BarraPulsanti;
    BarraDiCaricamento BarraCaricamento;
    Etichetta lblTemperatura;
    Immagine imgBattLogica;
    Immagine imgBattMotori;
    Forma imgLivBattLogica;
    Forma imgLivBattMotori;
    Forma shpUltrasuoniDx;
    Forma shpUltrasuoniCe;
    Forma shpUltrasuoniSx;
};

// The listeners of the engine; they record what they receive.
struct VideoFinto : AscoltatoreVideo
{
    bool aperta = false;
    QList<QByteArray> righe;
    std::function<void()> durante;

    bool cameraAperta() const override { return aperta; }
    void CalcolaRiga(const QByteArray &riga) override;
};

struct FileFinto : AscoltatoreFile
{
    bool inVista = true;
    // All calls except bloccoInArrivo, which sguardi counts.
    QStringList registro;
    int sguardi = 0;
    QList<QByteArray> corpi;
    std::function<void()> durante;

    bool visibile() const override { return inVista; }
    void stato(quint8 k, quint8 x) override;
    void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) override;
    void bloccoInArrivo() override { ++sguardi; }
    void blocco(quint8 k, const QByteArray &contenuto) override;
    void byteGettati() override { registro << QStringLiteral("byteGettati"); }
};

struct TelemetriaFinta : AscoltatoreTelemetria
{
    bool inMoto = true;
    QStringList testi;

    bool avviato() const override { return inMoto; }
    void VerificaCondizioni(const QString &testo) override { testi << testo; }
};
