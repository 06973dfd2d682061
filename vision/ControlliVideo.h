// What the video window needs of the console.
#pragma once

#include "link/Accumulatore.h"
#include "controls/Barre.h"
#include "link/ComandiTessaro.h"
#include "controls/Elenco.h"

struct ControlliVideo
{
    ControlloSeriale &COM;
    // Its Tag is "Camera" while the video window is open.
    BarraDiPulsanti &BarraPulsanti;
    BarraDiStato &BarraStato;
    TemporizzatoreIngresso &tmrElabInput;
    // The records of the image store, each with its active flag.
    Elenco &lstImgCamera;
    EsitoVideo &esito;
};
