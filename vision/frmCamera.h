// The window with the live video of the robot's camera.
#pragma once

#include "controls/Finestra.h"
#include "link/Ascoltatori.h"
#include "vision/ControlliVideo.h"
#include "vision/InPixel.h"
#include "vision/Mirino.h"
#include "vision/RicercaAttive.h"
#include "vision/Selezione.h"
#include "vision/Video.h"
#include "vision/frmNomeImmagine.h"

// Its Tag is the video scale: "10" while the video runs, "0" if it could not be started.
class frmCamera : public Finestra, public AscoltatoreVideo
{
    Q_OBJECT

public:
    frmCamera(const ControlliVideo &console, frmNomeImmagine &nomeImmagine);
    ~frmCamera() override;
    Q_DISABLE_COPY_MOVE(frmCamera)

    bool cameraAperta() const override { return m_video.richiesto(); }
    // Takes a row of 160 bytes; further bytes are ignored. With the 60th row the frame is painted
    // and searched. Does nothing if the video is off or the window is not visible. Errors are shown
    // in panel 3 of the status bar.
    void CalcolaRiga(const QByteArray &riga) override;
    // The next row is the first of a frame. Does nothing if the video is off or the window is not
    // visible.
    void ricominciaFotogramma();

    // The frame that is being received; below its rows are those of the last frame.
    const Fotogramma &fotogramma() const { return m_video.fotogramma(); }

    // Its Tag is the zoom: logical pixels for each pixel of the frame.
    Superficie Schermo;
    // Its Tag is "True" while a finished selection waits for the next complete frame.
    FormaInPixel shpSelezione;
    // Shows where the keyboard points; visible only while the keyboard is used.
    Mirino shpMirino;
    // Frame and name of the stored picture that was found.
    FormaInPixel shpImgRilevata;
    EtichettaInPixel lblNomeImmagine;

protected:
    void Disegno() override;
    void Load() override;
    void Activate() override;
    void Resize() override;
    void Unload(bool &Cancel) override;
    // The arrows move shpMirino by one pixel of the frame, by ten with the control key. The space
    // bar starts a selection there and finishes it, Esc drops it. F5 does what a double click does.
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
