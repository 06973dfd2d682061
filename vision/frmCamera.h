// The live picture of the robot's camera.
#pragma once

#include "link/Ascoltatori.h"
#include "vision/ControlliVideo.h"
#include "controls/Finestra.h"
#include "vision/InPixel.h"
#include "vision/Mirino.h"
#include "vision/RicercaAttive.h"
#include "vision/Selezione.h"
#include "vision/Video.h"
#include "vision/frmNomeImmagine.h"

// Its Tag is the video scale: "10" while video runs, "0" where it could not be started.
class frmCamera : public Finestra, public AscoltatoreVideo
{
    Q_OBJECT

public:
    frmCamera(const ControlliVideo &console, frmNomeImmagine &nomeImmagine);
    ~frmCamera() override;
    Q_DISABLE_COPY_MOVE(frmCamera)

    bool cameraAperta() const override { return m_video.richiesto(); }
    // Takes a row of 160 bytes, more being ignored; with the 60th one the frame is painted and
    // searched. Nothing if video does not run or the window is not visible. Failures are told in
    // panel 3.
    void CalcolaRiga(const QByteArray &riga) override;
    // The next row is a frame's first. Nothing in the same cases.
    void ricominciaFotogramma();

    // The rows that came since the last frame, over that frame.
    const Fotogramma &fotogramma() const { return m_video.fotogramma(); }

    // Its Tag is the zoom: how many screen pixels one pixel of the frame occupies.
    Superficie Schermo;
    // Its Tag tells whether a finished selection waits for the next complete frame.
    FormaInPixel shpSelezione;
    // Where the keyboard points; to be seen only while it is used.
    Mirino shpMirino;
    FormaInPixel shpImgRilevata;
    EtichettaInPixel lblNomeImmagine;

protected:
    void Disegno() override;
    void Load() override;
    void Activate() override;
    void Resize() override;
    void Unload(bool &Cancel) override;
    // The arrows move shpMirino, a pixel of the frame at a time and ten with the control key; the
    // space bar begins a selection there and ends it, Esc leaves it; F5 is the double click.
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void disponi();
    void legaTag();
    void Schermo_Resize();
    void Schermo_MouseDown(int Button, int Shift, double X, double Y);
    void Schermo_MouseMove(int Button, int Shift, double X, double Y);
    void Schermo_MouseUp();
    void Schermo_DblClick();

    bool tasto(const QKeyEvent &evento);
    void muoviMirino(int colonne, int righe);
    void spazio();
    void lasciaSelezione();
    void lasciaMirino();

    void AvviaRicezione(Video::Avvio avvio);
    void SvuotaRicezione();
    void stampaFallito();
    void mostraFotogramma();
    void PreparaAcquisizione();
    void CercaImmagini();
    void mostraTrovata(const Trovata &trovata);
    bool nominando() const { return frmNomeImmagine.Visible(); }

    ControlliVideo c;
    ::frmNomeImmagine &frmNomeImmagine;
    Video m_video;
    Selezione m_selezione;
    // Whether the keyboard is drawing the selection.
    bool m_traccia = false;
};
