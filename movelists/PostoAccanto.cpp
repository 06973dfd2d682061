#include "movelists/PostoAccanto.h"

#include <QRegion>
#include <algorithm>

namespace {

// How far two rectangles are apart, 0 if they touch or overlap.
int lontananza(const QRect &uno, const QRect &altro)
{
    const int orizzontale =
        std::max({0, uno.left() - altro.right() - 1, altro.left() - uno.right() - 1});
    const int verticale =
        std::max({0, uno.top() - altro.bottom() - 1, altro.top() - uno.bottom() - 1});
    return orizzontale + verticale;
}

qint64 comune(const QRect &uno, const QRect &altro)
{
    const QRect parte = uno & altro;
    return parte.isEmpty() ? 0 : qint64{parte.width()} * parte.height();
}

// The screen that shows most of it, else the one that is nearest.
QRect schermoDi(const QRect &finestra, const QList<QRect> &schermi)
{
    return *std::max_element(schermi.begin(), schermi.end(), [&](const QRect &a, const QRect &b) {
        if (comune(a, finestra) != comune(b, finestra))
            return comune(a, finestra) < comune(b, finestra);
        return lontananza(a, finestra) > lontananza(b, finestra);
    });
}

QRect dentro(QRect finestra, const QRect &schermo)
{
    finestra.setSize(finestra.size().boundedTo(schermo.size()));
    finestra.moveLeft(
        qBound(schermo.left(), finestra.left(), schermo.right() + 1 - finestra.width()));
    finestra.moveTop(
        qBound(schermo.top(), finestra.top(), schermo.bottom() + 1 - finestra.height()));
    return finestra;
}

} // namespace

QRect postoAccanto(const QRect &altra, QSize misura, Accanto accanto, const QList<QRect> &schermi)
{
    if (schermi.isEmpty())
        return {altra.topLeft(), misura};
    const QRect casa = schermoDi(altra, schermi);
    const int alto = altra.top() - accanto.piuInAlto;
    const int aDestra = altra.right() + 1 + accanto.distanza;
    const int aSinistra = altra.left() - accanto.distanza - misura.width();
    for (const int x : {aDestra, aSinistra}) {
        const QRect voluta({x, alto}, misura);
        const QRect suo = schermoDi(voluta, schermi);
        for (const QRect &schermo : {suo, casa}) {
            const bool daPreferire = schermo == casa || schermo.intersects(voluta);
            const bool viSta = voluta.left() >= schermo.left() && voluta.right() <= schermo.right();
            if (daPreferire && viSta)
                return dentro(voluta, schermo);
        }
    }
    return dentro({{casa.right() + 1 - accanto.distanza - misura.width(), alto}, misura}, casa);
}

QRect riportata(const QRect &finestra, const QList<QRect> &schermi)
{
    QRegion fuori(finestra);
    for (const QRect &schermo : schermi)
        fuori -= schermo;
    if (fuori.isEmpty() || schermi.isEmpty())
        return finestra;
    return dentro(finestra, schermoDi(finestra, schermi));
}
