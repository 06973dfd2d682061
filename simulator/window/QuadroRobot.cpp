#include "simulator/window/QuadroRobot.h"
#include "simulator/robot/ColoriLed.h"
#include "simulator/robot/Robot.h"
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <algorithm>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
const QColor contorno(0x33, 0x3d, 0x4a);
const QColor inchiostro(0x2b, 0x34, 0x40);
const QColor arancio(0xe8, 0x83, 0x2e);

// All is drawn in a field of 330 by 262; the robot faces the viewer, its right on our left.
constexpr double mezzo = 165.0;
constexpr double altezza = 262.0;

void lume(QPainter &p, const QPointF &dove, double raggio, const QColor &acceso, bool luce)
{
    if (luce) {
        QRadialGradient alone(dove, raggio * 2.4);
        QColor dentro = acceso;
        dentro.setAlpha(150);
        alone.setColorAt(0, dentro);
        dentro.setAlpha(0);
        alone.setColorAt(1, dentro);
        p.setPen(Qt::NoPen);
        p.setBrush(alone);
        p.drawEllipse(dove, raggio * 2.4, raggio * 2.4);
    }
    p.setPen(QPen(contorno, 1.1));
    p.setBrush(luce ? acceso : ledSpento(acceso));
    p.drawEllipse(dove, raggio, raggio);
}

void targa(QPainter &p, const QPointF &centro, const QString &testo)
{
    p.setPen(inchiostro);
    p.drawText(QRectF(centro.x() - 60, centro.y() - 9, 120, 18), Qt::AlignCenter, testo);
}

void testa(QPainter &p, const StatoRobot &s, double collo)
{
    const double gira = -s.testaO / 90.0 * 18.0; // its right is our left
    const double alza = -s.testaV / 45.0 * 8.0;
    const QPointF centro(mezzo, collo - 42);
    p.setPen(QPen(contorno, 1.4));
    p.setBrush(QColor(0xaa, 0xb4, 0xc0));
    p.drawRect(QRectF(mezzo - 9, collo - 10, 18, 14));
    QLinearGradient guscio(0, centro.y() - 36, 0, centro.y() + 34);
    guscio.setColorAt(0, QColor(0xff, 0xff, 0xff));
    guscio.setColorAt(1, QColor(0xd9, 0xe0, 0xe8));
    p.setBrush(guscio);
    p.drawRoundedRect(QRectF(centro.x() - 50, centro.y() - 35, 100, 68), 30, 30);

    const QPointF viso = centro + QPointF(gira, alza + 4);
    p.setBrush(QColor(0x22, 0x2a, 0x35));
    p.drawRoundedRect(QRectF(viso.x() - 22, viso.y() - 15, 44, 28), 11, 11);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x7f, 0xd4, 0xff));
    p.drawEllipse(viso + QPointF(-10, -2), 4.6, 4.6);
    p.drawEllipse(viso + QPointF(10, -2), 4.6, 4.6);

    const std::array<CoppiaLed, 4> coppie = coppieLed();
    const std::array<QPointF, 4> posti{QPointF(24, -25), QPointF(37, -9), QPointF(35, 12),
                                       QPointF(58, 0)};
    for (std::size_t i = 0; i < 4; ++i) {
        const double r = i == 3 ? 8.0 : 5.6; // the last pair are the ears
        lume(p, centro + QPointF(-posti[i].x(), posti[i].y()), r, coppie[i].acceso,
             s.ledTesta & coppie[i].destro);
        lume(p, centro + posti[i], r, coppie[i].acceso, s.ledTesta & coppie[i].sinistro);
    }
}

void braccio(QPainter &p, double lato, double alto, double spalla)
{
    p.save();
    p.translate(mezzo + lato * 51, spalla);
    // From hanging down to raised above the shoulder.
    p.rotate(-lato * alto * 150.0);
    p.setPen(QPen(contorno, 1.4));
    p.setBrush(QColor(0xb4, 0xbe, 0xca));
    p.drawRoundedRect(QRectF(-7, -6, 14, 66), 7, 7);
    p.setBrush(QColor(0x6d, 0x7b, 0x8c));
    p.drawEllipse(QPointF(0, 60), 9, 9);
    p.drawEllipse(QPointF(0, 0), 9, 9);
    p.restore();
}

void pinza(QPainter &p, bool aperta, double y)
{
    p.setPen(QPen(contorno, 3.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    const double bocca = aperta ? 15 : 6;
    for (const double lato : {-1.0, 1.0}) {
        const QPointF ganascia[] = {{mezzo + lato * 4, y},
                                    {mezzo + lato * bocca, y + 9},
                                    {mezzo + lato * (aperta ? 11 : 1.8), y + 20}};
        p.drawPolyline(ganascia, 3);
    }
}

void tool(QPainter &p, double lato, bool acceso, double y)
{
    const QRectF corpo(mezzo + lato * 27 - 11, y, 22, 13);
    p.setPen(QPen(contorno, 1.2));
    p.setBrush(acceso ? QColor(0x35, 0xc7, 0x5a) : QColor(0x8c, 0x99, 0xa8));
    p.drawRoundedRect(corpo, 4, 4);
    p.setPen(acceso ? QColor(0x06, 0x33, 0x12) : QColor(Qt::white));
    p.drawText(corpo, Qt::AlignCenter, lato < 0 ? u"D"_s : u"S"_s);
}

void busto(QPainter &p, const StatoRobot &s, double cima)
{
    p.setPen(QPen(contorno, 1.4));
    QLinearGradient guscio(mezzo - 45, 0, mezzo + 45, 0);
    guscio.setColorAt(0, arancio.lighter(118));
    guscio.setColorAt(0.45, arancio.lighter(135));
    guscio.setColorAt(1, arancio);
    p.setBrush(guscio);
    p.drawRoundedRect(QRectF(mezzo - 43, cima, 86, 78), 14, 14);
    tool(p, -1, s.toolDestro, cima + 12);
    tool(p, 1, s.toolSinistro, cima + 12);
    pinza(p, s.pinzaAperta, cima + 44);
}

void base(QPainter &p, const StatoRobot &s, double suolo)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 30));
    p.drawEllipse(QPointF(mezzo, suolo + 1), 74, 6);
    p.setPen(QPen(contorno, 1.4));
    p.setBrush(QColor(0x2b, 0x33, 0x3e));
    for (const double lato : {-1.0, 1.0})
        p.drawRoundedRect(QRectF(mezzo + lato * 52 - 9, suolo - 30, 18, 30), 5, 5);
    p.setBrush(QColor(0xc4, 0x67, 0x1b));
    p.drawRoundedRect(QRectF(mezzo - 48, suolo - 34, 96, 28), 9, 9);
    lume(p, QPointF(mezzo, suolo - 20), 6, QColor(0xff, 0xf2, 0x7a), s.ledPosizione);
}
} // namespace

QuadroRobot::QuadroRobot(Robot &robot, QWidget *parent) : QWidget(parent), m_robot(robot)
{
    setObjectName(u"quadroRobot"_s);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setToolTip(u"Il robot visto di fronte: la sua destra è a sinistra"_s);
    connect(&m_robot, &Robot::cambiato, this, qOverload<>(&QWidget::update));
}

void QuadroRobot::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double scala = std::min({width() / (2 * mezzo), height() / altezza, 1.6});
    p.translate((width() - 2 * mezzo * scala) / 2, (height() - altezza * scala) / 2);
    p.scale(scala, scala);
    const StatoRobot &s = m_robot.stato();
    constexpr double suolo = 252.0;
    const double cima = 122.0 - 16.0 * s.bacino;
    p.setPen(QPen(contorno, 1.2));
    p.setBrush(QColor(0x8c, 0x99, 0xa8));
    p.drawRect(QRectF(mezzo - 14, cima + 74, 28, suolo - 30 - cima - 74));
    base(p, s, suolo);
    braccio(p, 1.0, s.braccio[0], cima + 16);
    braccio(p, -1.0, s.braccio[1], cima + 16);
    busto(p, s, cima);
    testa(p, s, cima);
    QFont piccolo = font();
    piccolo.setPointSizeF(piccolo.pointSizeF() * 0.92);
    p.setFont(piccolo);
    targa(p, QPointF(38, 14), u"Destra"_s);
    targa(p, QPointF(2 * mezzo - 38, 14), u"Sinistra"_s);
}
} // namespace tessaro_sim
