// What the video window needs of the console.
#pragma once

#include "Accumulatore.h"
#include "Barre.h"
#include "ComandiTessaro.h"
#include "Elenco.h"

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
