#include "simulator/window/DisegnoRobot.h"
#include "simulator/robot/ColoriLed.h"
#include "simulator/robot/Stanza.h"
#include "simulator/robot/StatoRobot.h"
#include <QPainter>
#include <QRadialGradient>

inline namespace tessaro_sim {
namespace {
const QColor contorno(0x33, 0x3d, 0x4a);

void braccio(QPainter &p, double lato, double alto)
{
    // A raised arm points ahead and looks longer; a hanging one is seen end on.
    const double lungo = 5.0 + 14.0 * alto;
    p.setBrush(QColor(0x9a, 0xa7, 0xb6));
    p.drawRoundedRect(QRectF(-3, lato * 21 - 3.5, 3 + lungo, 7), 3.5, 3.5);
    p.setBrush(QColor(0x6d, 0x7b, 0x8c));
    p.drawEllipse(QPointF(0, lato * 21), 4.5, 4.5);
}

void pinza(QPainter &p, bool aperta)
{
    p.setPen(QPen(contorno, 2.2, Qt::SolidLine, Qt::RoundCap));
    const double bocca = aperta ? 6.0 : 1.6;
    for (const double lato : {-1.0, 1.0}) {
        p.drawLine(QPointF(16, lato * 3), QPointF(19.5, lato * bocca));
        p.drawLine(QPointF(19.5, lato * bocca), QPointF(22.5, lato * (aperta ? 4.0 : 0.8)));
    }
}

void testa(QPainter &p, const StatoRobot &stato)
{
    p.save();
    p.rotate(stato.testaO);
    p.setPen(QPen(contorno, 1.0));
    p.setBrush(QColor(0xf4, 0xf6, 0xf9));
    p.drawEllipse(QPointF(0, 0), 11, 11);
    p.setBrush(QColor(0x22, 0x2a, 0x35));
    p.drawRoundedRect(QRectF(5.5, -6, 5.5, 12), 2.5, 2.5);
    p.setBrush(QColor(0x7f, 0xd4, 0xff));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(8.6, -2.8), 1.4, 1.4);
    p.drawEllipse(QPointF(8.6, 2.8), 1.4, 1.4);
    double indietro = 2.5;
    for (const CoppiaLed &coppia : coppieLed()) {
        for (const int lato : {-1, 1}) {
            const int maschera = lato < 0 ? coppia.sinistro : coppia.destro;
            const bool acceso = stato.ledTesta & maschera;
            p.setBrush(acceso ? coppia.acceso : ledSpento(coppia.acceso));
            p.drawEllipse(QPointF(indietro, lato * 8.2), 1.5, 1.5);
        }
        indietro -= 3.2;
    }
    p.restore();
}
} // namespace

std::array<CoppiaLed, 4> coppieLed()
{
    return {{{LedVs, LedVd, QColor(0x22, 0xc5, 0x4e)},
             {LedRs, LedRd, QColor(0xf0, 0x3a, 0x2e)},
             {LedGs, LedGd, QColor(0xff, 0xc4, 0x12)},
             {LedBs, LedBd, QColor(0x2f, 0x86, 0xff)}}};
}

QColor ledSpento(const QColor &acceso)
{
    return QColor::fromHsv(acceso.hsvHue(), 70, 150);
}

void disegnaDallAlto(QPainter &p, const StatoRobot &stato)
{
    constexpr double r = Stanza::raggioRobot;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 45));
    p.drawEllipse(QPointF(1.5, 2.5), r + 1.0, r + 1.0);

    p.setPen(QPen(contorno, 1.2));
    p.setBrush(QColor(0x2b, 0x33, 0x3e));
    for (const double lato : {-1.0, 1.0})
        p.drawRoundedRect(QRectF(-9, lato * 16 - 3.5, 18, 7), 2, 2);

    QRadialGradient guscio(QPointF(-5, -6), r * 1.5);
    guscio.setColorAt(0.0, QColor(0xff, 0xb3, 0x66));
    guscio.setColorAt(1.0, QColor(0xe0, 0x75, 0x1c));
    p.setBrush(guscio);
    p.drawEllipse(QPointF(0, 0), r - 2.0, r - 2.0);
    pinza(p, stato.pinzaAperta);

    p.setPen(QPen(contorno, 1.0));
    braccio(p, -1.0, stato.braccio[0]);
    braccio(p, 1.0, stato.braccio[1]);

    p.setBrush(stato.ledPosizione ? QColor(0xff, 0xff, 0xff) : QColor(0x8d, 0x5a, 0x2c));
    p.drawEllipse(QPointF(-14.5, 0), 2.2, 2.2);
    if (stato.ledPosizione) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0xff, 0xff, 0xc8, 120));
        p.drawEllipse(QPointF(-14.5, 0), 5, 5);
    }
    testa(p, stato);
}
} // namespace tessaro_sim
