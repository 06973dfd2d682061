// The console with the vision windows, and pictures in the form in which the robot sends them.
#pragma once

#include "console/frmPrincipale.h"
#include "tests/support/CartellaDiProva.h"
#include "tests/support/PortaFinta.h"
#include "vision/frmCamera.h"

#include <QImage>

// The packed colour of a pixel after the robot's conversion to 16 bits, computed independently of
// the program.
qint32 coloreInArrivo(QRgb punto);
// The 160 bytes of a row of the picture, counted from 0.
QByteArray rigaVideo(const QImage &immagine, int riga);
// The telegrams of all 60 rows.
QByteArray telegrammiVideo(const QImage &immagine);
// A picture of random colours, another one for each seed.
QImage immagineACaso(quint32 seme);
// 80 by 60 of one colour.
QImage immaginePiena(QRgb colore);
// What a frame looks like on a surface of that size at zoom s: 4800 squares.
QImage quadri(const QImage &immagine, int s, QSize superficie);

class BancoVisione
{
public:
    // immagini: the content of the file of the stored pictures; if it is null there is no file.
    explicit BancoVisione(std::unique_ptr<Porta> porta, const QByteArray &immagini = {});
    ~BancoVisione();

    // Clicks the connect button. The robot has answered already or answers by itself.
    void collega();
    void scollega();
    // Clicks the toolbar's button with that image, and adds the button if there is none.
    void premi(int immagine);
    QString pannello3() const { return console.BarraStato.Panels(3); }

    CartellaDiProva cartella;
    frmPrincipale console;
    frmImmaginiAcquisite acquisite{console.lstImgCamera};
    frmNomeImmagine nome{acquisite};
    frmCamera camera{{console.COM, console.BarraPulsanti, console.BarraStato, console.tmrElabInput,
                      console.lstImgCamera, console.esitoVideo()},
                     nome};

private:
    static std::unique_ptr<Porta> preparata(std::unique_ptr<Porta> porta,
                                            const CartellaDiProva &cartella,
                                            const QByteArray &immagini);
};

// The same on a simulated port: each write is answered by a temperature.
class BancoSuPortaFinta : public BancoVisione
{
public:
    explicit BancoSuPortaFinta(const QByteArray &immagini = {});

    PortaFinta &porta;

    void collega();
    // Connected, and the video window open.
    void apriCamera();
    // The robot sends these bytes; returns when the program has processed them.
    void manda(const QByteArray &byte);
    // A whole frame, or rows of one, counted from 0.
    void manda(const QImage &immagine);
    void mandaRighe(const QImage &immagine, int prima, int ultima);
    // What was written since the last call, without the polls of the sensors.
    QByteArray comandi();

private:
    BancoSuPortaFinta(PortaFinta *nuova, const QByteArray &immagini);
};
