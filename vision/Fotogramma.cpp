#include "vision/Fotogramma.h"

#include "base/Numeri.h"
#include "vision/Colore.h"

bool Fotogramma::aggiungi(QByteArrayView riga, int scala)
{
    Riga = Numeri::Byte(Riga + 1);
    for (int colonna = 1; colonna <= scala * 8; ++colonna) {
        const qsizetype primo = 2 * qsizetype{colonna} - 2;
        Pixel(colonna, Riga) = ColorePixel(riga.sliced(qMin(primo, riga.size())));
    }
    return Riga == scala * 6;
}
