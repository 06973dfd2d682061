#include "vision/Area.h"

#include "base/Errore.h"
#include "base/Numeri.h"
#include "vision/Fotogramma.h"

namespace {

quint8 inFotogramma(double pixel, int zoom)
{
    if (zoom == 0)
        throw Errore(Errore::DivisionePerZero);
    const qint32 intero = Numeri::Lungo(pixel) / zoom;
    return Numeri::Byte(intero);
}

} // namespace

Area areaInFotogramma(const QRectF &rettangolo, int zoom)
{
    Area area;
    area.left = inFotogramma(rettangolo.x(), zoom);
    area.top = inFotogramma(rettangolo.y(), zoom);
    area.width = inFotogramma(rettangolo.width(), zoom);
    area.height = inFotogramma(rettangolo.height(), zoom);
    if (area.left == 0)
        area.left = 1;
    if (area.top == 0)
        area.top = 1;
    if (area.left + area.width > Fotogramma::Colonne)
        area.width = Numeri::Byte(Fotogramma::Colonne - area.left);
    if (area.top + area.height > Fotogramma::Righe)
        area.height = Numeri::Byte(Fotogramma::Righe - area.top);
    return area;
}
