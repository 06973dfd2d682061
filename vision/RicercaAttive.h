// The search of one frame for all stored pictures that are to be looked for.
#pragma once

#include "controls/Elenco.h"
#include "vision/Matrice.h"

#include <optional>

// A stored picture in the frame: its index, its first pixel, its size.
struct Trovata
{
    int indice = 0;
    int colonna = 0;
    int riga = 0;
    qint32 W = 0;
    qint32 H = 0;
};

// The first one found, in the order of the list: its entries are the records of the store, each
// with its active flag. The pixels are read anew from the file. Errors are those of the file and of
// Ricerca; more pictures than can be looked for are Matrice::FuoriIntervallo.
std::optional<Trovata> cercaTraLeAttive(const Matrice &pixel, const Elenco &lstImgCamera);
