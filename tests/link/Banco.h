// The console's controls that the link works on, without the console.
#pragma once

#include "Barre.h"
#include "ControlloSeriale.h"
#include "MotoreRicezione.h"
#include "Sessione.h"

// Bars, telemetry and timers as the main window has them, around a line that is handed in.
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

// The windows above, which write down what they are told.
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
    Attesa cheCosa = Attesa::Niente;
    QString nome = QStringLiteral("foto.bin");
    // Error number with which a picture cannot be shown; 0 shows it.
    int erroreFoto = 0;
    bool abilitata = false;
    // All calls but the steps of the wait animation, which come at every look.
    QStringList registro;
    int passi = 0;
    QList<QByteArray> corpi;

    bool visibile() const override { return inVista; }
    Attesa attesa() const override { return cheCosa; }
    void finisciAttesa() override;
    void VisualizzaElenco(quint8 k, quint8 x, const QByteArray &corpo) override;
    void ImmagineAttesa(bool attiva) override;
    QString nomeFile() const override { return nome; }
    void caricaFoto(const QString &percorso) override;
    void togliFoto() override;
    void intitolaFoto(const QString &testo) override;
    void riabilita() override;
};

struct TelemetriaFinta : AscoltatoreTelemetria
{
    bool inMoto = true;
    QStringList testi;

    bool avviato() const override { return inMoto; }
    void VerificaCondizioni(const QString &testo) override { testi << testo; }
};
