// The dialog that names a selected area and stores it.
#pragma once

#include "vision/Acquisizione.h"
#include "vision/Area.h"
#include "controls/CasellaTesto.h"
#include "controls/Finestra.h"
#include "vision/InPixel.h"
#include "controls/Temporizzatore.h"
#include "vision/frmImmaginiAcquisite.h"

// Its Tag is the record without its name, while the area is copied and until it is stored.
class frmNomeImmagine : public Finestra
{
    Q_OBJECT

public:
    explicit frmNomeImmagine(frmImmaginiAcquisite &immagini);

    // Begins to copy an area of the frame, and shows the dialog while the copy goes on. It belongs
    // to that window: it is always in front of it, but the window stays usable. If a pixel lies
    // outside the frame it fails with Matrice::FuoriIntervallo, and there is no dialog.
    void nomina(const Matrice &pixel, const Area &area, QWidget &padrona);

    // As large as a frame; imgAcquisita lies on it.
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
