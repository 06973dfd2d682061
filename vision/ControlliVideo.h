// The parts of the console that the video window uses.
#pragma once

#include "controls/Barre.h"
#include "controls/Elenco.h"
#include "link/Accumulatore.h"
#include "link/ComandiTessaro.h"

struct ControlliVideo
{
    ControlloSeriale &COM;
    // Its Tag is "Camera" from the click on the toolbar until the video window is closed.
    BarraDiPulsanti &BarraPulsanti;
    BarraDiStato &BarraStato;
    TemporizzatoreIngresso &tmrElabInput;
    // The records of the stored pictures. ItemData other than 0 makes a picture active: the video
    // window searches for it.
    Elenco &lstImgCamera;
    EsitoVideo &esito;
};
