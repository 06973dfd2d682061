// The console with the vision windows above it, and pictures as the robot sends them.
#pragma once

#include "tests/support/CartellaDiProva.h"
#include "tests/support/PortaFinta.h"
#include "vision/frmCamera.h"
#include "console/frmPrincipale.h"

#include <QImage>

// The colour of a pixel that the robot's 16 bits for it give, worked out on its own.
qint32 coloreInArrivo(QRgb punto);
// The 160 bytes of a row of the picture, counted from 0.
QByteArray rigaVideo(const QImage &immagine, int riga);
// The telegrams of all 60 rows.
QByteArray telegrammiVideo(const QImage &immagine);
// Any colours, no two frames alike.
QImage immagineACaso(quint32 seme);
// 80 by 60 of one colour.
QImage immaginePiena(QRgb colore);
// What is seen of a frame on a surface of that size at a zoom of s: 4800 boxes.
QImage quadri(const QImage &immagine, int s, QSize superficie);

class BancoVisione
{
public:
    // immagini: the file of the stored pictures, none where it is null.
    explicit BancoVisione(std::unique_ptr<Porta> porta, const QByteArray &immagini = {});
    ~BancoVisione();

    // Clicks the connect button; what the robot sends then is there or comes.
    void collega();
    void scollega();
    // Clicks the button of that picture of the toolbar, adding it where there is none.
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

// The same on a line without a system behind it: whatever is written is answered by a temperature.
class BancoSuPortaFinta : public BancoVisione
{
public:
    explicit BancoSuPortaFinta(const QByteArray &immagini = {});

    PortaFinta &porta;

    void collega();
    // Connected, and the video window open.
    void apriCamera();
    // The robot sends these bytes; returns when they are taken.
    void manda(const QByteArray &byte);
    // A whole frame, or rows of one, counted from 0.
    void manda(const QImage &immagine);
    void mandaRighe(const QImage &immagine, int prima, int ultima);
    // What was written since the last look, but the polls of the sensors.
    QByteArray comandi();

private:
    BancoSuPortaFinta(PortaFinta *nuova, const QByteArray &immagini);
};
