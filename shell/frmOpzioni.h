// The program's two settings: the port number, and whether to connect at the start.
#pragma once

#include "controls/Cornice.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"
#include "shell/NumeroPorta.h"

class frmOpzioni : public Finestra
{
    Q_OBJECT

public:
    frmOpzioni();

    CasellaSpunta opzCollegaAut;
    Cornice Frame1;
    Etichetta lblSpiegazioneCOM;
    Etichetta lblAttenzionePorta;
    CasellaTesto txtPorta;
    ::SuGiu SuGiu;
    Pulsante pulOK;
    Pulsante pulAnnulla;

protected:
    void Disegno() override;
    void Activate() override;

private:
    void disponi();
    void leggiFile();
    void pulOK_Click();
    void pulAnnulla_MouseDown(int Button, int Shift, double X, double Y);
    void pulAnnulla_Click();

    NumeroPorta m_numeroPorta;
};
