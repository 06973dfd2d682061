// The dialog that asks for the number of the serial port.
#pragma once

#include "controls/Finestra.h"
#include "controls/Grafica.h"
#include "shell/NumeroPorta.h"

class frmImpostaPorta : public Finestra
{
    Q_OBJECT

public:
    frmImpostaPorta();

    Etichetta Label1;
    CasellaTesto txtPorta;
    ::SuGiu SuGiu;
    Pulsante pulOK;

protected:
    void Disegno() override;
    void Activate() override;

private:
    void pulOK_Click();

    NumeroPorta m_numeroPorta;
};
