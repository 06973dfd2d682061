// The splash window, shown while the program starts and connects.
#pragma once

#include "controls/Finestra.h"
#include "controls/Grafica.h"
#include "controls/Temporizzatore.h"

class frmSchermataIniziale : public Finestra
{
    Q_OBJECT

public:
    frmSchermataIniziale();

    ListaImmagini lstImg;
    Forma Frame1;
    Immagine imgLogo;
    Etichetta lblProductName;
    Etichetta Label1;
    Etichetta lblCompanyProduct;
    Etichetta lblVersion;
    Etichetta lblColl;
    Immagine imgAttesa;
    // Its Tag is "True" after a click. Unloading does not clear it: each connection attempt reads
    // it.
    Pulsante pulNonCollegare;
    Temporizzatore tmrAnimazione;

protected:
    void Disegno() override;
    void Load() override;
    // The user cannot close it; the program does at the end of the start.
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override;

private:
    void disponi();
    void pulNonCollegare_Click();
    void tmrAnimazione_Timer();

    quint8 m_fotogramma = 0;
};
