// Searches one frame for all active stored pictures.
#pragma once

#include "controls/Elenco.h"
#include "vision/Matrice.h"

#include <optional>

// A stored picture that was found: its index in the list, its first pixel in the frame (counted
// from 1), and its size in pixels.
struct Trovata
{
    int indice = 0;
    int colonna = 0;
    int riga = 0;
    qint32 W = 0;
    qint32 H = 0;
};

// Searches for the active pictures in the order of the list and returns the first one that is
// found. The list has one entry for each record of the file; ItemData other than 0 makes it active.
// The size is that of the entry, the colours are read from the file at each call. Throws the errors
// of leggiRecord, leggiModello and Ricerca, Errore::Overflow if a size is no 32-bit number or an
// index no 16-bit number, and Matrice::FuoriIntervallo if more than 30000 pictures are active.
std::optional<Trovata> cercaTraLeAttive(const Matrice &pixel, const Elenco &lstImgCamera);
