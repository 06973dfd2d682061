// The stored pictures: which there are, how they look, which ones the video window looks for.
#pragma once

#include "controls/Elenco.h"
#include "controls/Finestra.h"
#include "controls/Grafica.h"

class frmImmaginiAcquisite : public Finestra
{
    Q_OBJECT

public:
    // lstImgCamera: the records of the store, each with its active flag.
    explicit frmImmaginiAcquisite(Elenco &lstImgCamera);

    // Lists the names anew; no check mark is set then.
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
