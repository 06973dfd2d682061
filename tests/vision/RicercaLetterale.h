// The search written as plainly as possible, step by step. The tests compare Ricerca with it.
#pragma once

#include "vision/Matrice.h"

#include <array>
#include <optional>

struct EsitoRicerca
{
    enum Come { NonTrovata, Trovata, Fallita };
    Come come = NonTrovata;
    int colonna = 0;
    int riga = 0;
};

class RicercaLetterale
{
public:
    explicit RicercaLetterale(const Matrice &pixel)
    {
        for (int riga = 1; riga <= 60; ++riga)
            for (int colonna = 1; colonna <= 80; ++colonna)
                Pixel[colonna][riga] = pixel(colonna, riga);
    }

    EsitoRicerca cerca(const Matrice &m, int W, int H)
    {
        qint32 Modello[81][61] = {};
        for (int riga = 1; riga <= 60; ++riga)
            for (int colonna = 1; colonna <= 80; ++colonna)
                Modello[colonna][riga] = m(colonna, riga);

        // c, r: the place in the stored picture, from its first pixel; b, a: the place in the
        // frame.
        int c = 1, r = 1, a, b, limiteA, limiteB;

        limiteA = 60 - H;
        if (!byte(limiteA))
            return {EsitoRicerca::Fallita};
        a = 1;
    riga:
        if (a > limiteA)
            return {};
        limiteB = 80 - W;
        if (!byte(limiteB))
            return {EsitoRicerca::Fallita};
        b = 1;
    colonna:
        if (b > limiteB)
            goto rigaSeguente;
        if (c < 1 || c > 80 || r < 1 || r > 60 || b < 1 || b > 80 || a < 1 || a > 60)
            return {EsitoRicerca::Fallita};
        if (Modello[c][r] - 10000 > Pixel[b][a] || Pixel[b][a] > Modello[c][r] + 10000) {
            c = 1;
            r = 1;
            if (tentativo) {
                b = colonnaIniziale;
                a = rigaIniziale;
                tentativo = false;
            }
        } else {
            if (!tentativo) {
                rigaIniziale = a;
                colonnaIniziale = b;
                tentativo = true;
            }
            if (c == W) {
                c = 0;
                r = r + 1;
                b = colonnaIniziale - 1;
                a = a + 1;
                if (r > H)
                    return {EsitoRicerca::Trovata, colonnaIniziale, rigaIniziale};
            }
            c = c + 1;
        }
        b = b + 1;
        if (!byte(b))
            return {EsitoRicerca::Fallita};
        goto colonna;
    rigaSeguente:
        a = a + 1;
        if (!byte(a))
            return {EsitoRicerca::Fallita};
        goto riga;
    }

private:
    static bool byte(int numero) { return numero >= 0 && numero <= 255; }

    qint32 Pixel[81][61] = {};
    bool tentativo = false;
    int rigaIniziale = 0;
    int colonnaIniziale = 0;
};
