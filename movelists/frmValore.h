// Asks for the number of a line: of a pause, a phrase, a sound or a loop, as its Tag says.
#pragma once

#include "controls/CasellaTesto.h"
#include "controls/Combo.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"

using namespace Qt::StringLiterals;

class frmValore : public Finestra
{
    Q_OBJECT

public:
    frmValore();

    // Its Tag is the limit of the mode.
    CasellaTesto txtValore{u"txtValore"_s, this, u"0"_s};
    Etichetta lblInfo{u"lblInfo"_s, this, u"Informazioni:"_s};
    Combo cbInfo{u"cbInfo"_s, this};
    Pulsante pulOK{u"pulOK"_s, this, u"OK"_s};

protected:
    void Disegno() override;
    void Activate() override;
    void QueryUnload(bool &Cancel, Chiusura UnloadMode) override;

private:
    void disponi();
    void cbInfo_Click();
    void txtValore_Change();
    void txtValore_LostFocus();
    void pulOK_Click();
    void rifiuta(const QString &perche);

    // Phrases and sounds count from 1, loops from 0; a pause has no number in the list.
    bool numerata() const { return Tag() == u"Suono" || Tag() == u"Frase"; }
    bool ripeti() const { return Tag() == u"Ripeti"; }
    double numero() const;
    double limite() const;
};
