// The dialog that names a selected area and stores it.
#pragma once

#include "Acquisitore.h"
#include "CasellaTesto.h"
#include "Finestra.h"
#include "InPixel.h"
#include "Temporizzatore.h"
#include "frmImmaginiAcquisite.h"

// Its Tag is the record without its name, while the area is copied and until it is stored.
class frmNomeImmagine : public Finestra
{
    Q_OBJECT

public:
    explicit frmNomeImmagine(frmImmaginiAcquisite &immagini);

    void impostaAcquisitore(Acquisitore *acquisitore) { m_acquisitore = acquisitore; }

    // Shows it as a dialog of that window: always in front of it, but the window stays usable.
    void MostraSopra(QWidget &padrona);

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
    void txtNomeImmagine_KeyPress(int &KeyAscii);
    void pulOK_Click();
    void pulAnnulla_Click();
    void tmrAcquisizione_Timer();

    frmImmaginiAcquisite &m_immagini;
    Acquisitore *m_acquisitore = nullptr;
};
