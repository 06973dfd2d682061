#include "vision/Mosaico.h"

#include "vision/Colore.h"

#include <algorithm>

QImage mosaico(const Matrice &colori, int colonne, int righe, int lato)
{
    if (colonne <= 0 || righe <= 0 || lato <= 0)
        return {};
    QImage immagine(colonne * lato, righe * lato, QImage::Format_RGB32);
    for (int riga = 1; riga <= righe; ++riga) {
        // Only the first line of each row of squares is drawn; the others are copies of it.
        const int y = (riga - 1) * lato;
        auto *linea = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        for (int colonna = 1; colonna <= colonne; ++colonna)
            std::fill_n(linea + (colonna - 1) * lato, lato, rgb(colori(colonna, riga)));
        for (int altra = 1; altra < lato; ++altra)
            std::copy_n(linea, immagine.width(),
                        reinterpret_cast<QRgb *>(immagine.scanLine(y + altra)));
    }
    return immagine;
}
