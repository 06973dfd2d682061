// The dialog that gives a selected area a name and stores it.
#pragma once

#include "controls/CasellaTesto.h"
#include "controls/Finestra.h"
#include "controls/Temporizzatore.h"
#include "vision/Acquisizione.h"
#include "vision/Area.h"
#include "vision/InPixel.h"
#include "vision/frmImmaginiAcquisite.h"

// Its Tag is the record without its name. It grows while the area is copied.
class frmNomeImmagine : public Finestra
{
    Q_OBJECT

public:
    explicit frmNomeImmagine(frmImmaginiAcquisite &immagini);

    // Starts to copy an area of the frame pixel, and shows the dialog while the copy continues. The
    // dialog stays in front of the window padrona, which can still be used. Throws
    // Matrice::FuoriIntervallo if a pixel lies outside the frame; the dialog is not shown then.
    void nomina(const Matrice &pixel, const Area &area, QWidget &padrona);

    // The place of imgAcquisita, as large as a frame.
    Superficie areaImmagine;
    SuperficieInPixel imgAcquisita;
    Etichetta lblAttesa;
    Etichetta lblNome;
    CasellaTesto txtNomeImmagine;
    Pulsante pulOK;
    Pulsante pulAnnulla;
    Temporizzatore tmrAcquisizione;

protected:
    void Disegno() override;
    void Activate() override;

private:
    void disponi();
    void AcquisisciImmagine();
    void txtNomeImmagine_KeyPress(int &KeyAscii);
    void pulOK_Click();
    void pulAnnulla_Click();
    void tmrAcquisizione_Timer();

    frmImmaginiAcquisite &m_immagini;
    Acquisizione m_acquisizione;
};
