// Lists the stored pictures, shows the one that is clicked, and sets which ones the video window
// searches for.
#pragma once

#include "controls/Elenco.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"

class frmImmaginiAcquisite : public Finestra
{
    Q_OBJECT

public:
    // lstImgCamera: the records of the stored pictures; ItemData other than 0 makes one active.
    explicit frmImmaginiAcquisite(Elenco &lstImgCamera);

    // Fills the list again from lstImgCamera. No check mark is set then, also for active pictures.
    void Aggiorna();

    Elenco lstImgAcquisite;
    Superficie imgSelezionata;

protected:
    void Disegno() override;
    void Load() override;

private:
    void disponi();
    void lstImgAcquisite_Click();

    Elenco &lstImgCamera;
};
