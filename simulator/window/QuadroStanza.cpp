#include "simulator/window/QuadroStanza.h"
#include "simulator/robot/Robot.h"
#include "simulator/robot/Stanza.h"
#include "simulator/window/DisegnoRobot.h"
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
constexpr double muro = 9.0;        // cm
constexpr int durataFumetto = 8000; // ms
constexpr int robotInMano = -2;
constexpr double passoLungo = 10.0; // cm
constexpr double passoCorto = 1.0;

void disegnaCosa(QPainter &p, const Cosa &c)
{
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawEllipse(c.centro + QPointF(2, 3), c.raggio, c.raggio);
    p.setPen(QPen(c.colore.darker(160), 1.2));
    QRadialGradient luce(c.centro - QPointF(c.raggio, c.raggio) * 0.35, c.raggio * 1.5);
    luce.setColorAt(0, c.colore.lighter(150));
    luce.setColorAt(1, c.colore);
    p.setBrush(luce);
    if (c.nome == u"Scatola") {
        const double lato = c.raggio * 0.9;
        const QRectF scatola(c.centro - QPointF(lato, lato), QSizeF(2 * lato, 2 * lato));
        p.drawRoundedRect(scatola, 2, 2);
        p.drawLine(QPointF(c.centro.x(), scatola.top()), QPointF(c.centro.x(), scatola.bottom()));
    } else if (c.nome == u"Pianta") {
        for (int i = 0; i < 7; ++i) {
            p.save();
            p.translate(c.centro);
            p.rotate(i * 360.0 / 7);
            p.setBrush(i % 2 ? c.colore : c.colore.lighter(125));
            p.drawEllipse(QPointF(c.raggio * 0.55, 0), c.raggio * 0.45, c.raggio * 0.24);
            p.restore();
        }
        p.setBrush(QColor(0x8a, 0x4f, 0x2c));
        p.drawEllipse(c.centro, c.raggio * 0.24, c.raggio * 0.24);
    } else {
        p.drawEllipse(c.centro, c.raggio, c.raggio);
        if (!c.leggera)
            p.drawEllipse(c.centro, c.raggio * 0.15, c.raggio * 0.15);
    }
}
} // namespace

QuadroStanza::QuadroStanza(Robot &robot, QWidget *parent)
    : QWidget(parent), m_robot(robot), m_scelta(robotInMano)
{
    setObjectName(u"quadroStanza"_s);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Stanza"_s);
    setAccessibleDescription(
        u"La barra spaziatrice sceglie il robot o un oggetto, le frecce lo spostano"_s);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setToolTip(u"Il robot e gli oggetti si spostano con il mouse; con la tastiera la barra "
               "spaziatrice sceglie, le frecce spostano"_s);
    m_fineFumetto.setSingleShot(true);
    connect(&m_fineFumetto, &QTimer::timeout, this, [this] {
        m_fumetto.clear();
        update();
    });
    connect(&m_robot, &Robot::cambiato, this, qOverload<>(&QWidget::update));
    connect(&m_robot, &Robot::parla, this, [this](const QString &testo) {
        m_fumetto = testo;
        m_fineFumetto.start(durataFumetto);
        update();
    });
}

QTransform QuadroStanza::dallaStanza() const
{
    const double scala = std::min(width() / (Stanza::larghezza + 2 * muro),
                                  height() / (Stanza::profondita + 2 * muro));
    QTransform t;
    t.translate((width() - Stanza::larghezza * scala) / 2,
                (height() - Stanza::profondita * scala) / 2);
    t.scale(scala, scala);
    return t;
}

QPointF QuadroStanza::inStanza(const QPointF &punto) const
{
    return dallaStanza().inverted().map(punto);
}

bool QuadroStanza::suRobot(const QPointF &punto) const
{
    const StatoRobot &s = m_robot.stato();
    return std::hypot(punto.x() - s.x, punto.y() - s.y) < Stanza::raggioRobot;
}

void QuadroStanza::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.save();
    p.setTransform(dallaStanza());
    disegnaPavimento(p);
    disegnaCose(p);
    disegnaSensori(p);
    const StatoRobot &s = m_robot.stato();
    p.translate(s.x, s.y);
    p.rotate(s.direzione);
    disegnaDallAlto(p, s);
    p.restore();
    if (hasFocus())
        disegnaScelta(p);
    disegnaFumetto(p);
}

void QuadroStanza::disegnaPavimento(QPainter &p) const
{
    const QRectF stanza(0, 0, Stanza::larghezza, Stanza::profondita);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x5d, 0x67, 0x75));
    p.drawRoundedRect(stanza.adjusted(-muro, -muro, muro, muro), 4, 4);
    p.fillRect(stanza, QColor(0xea, 0xd9, 0xbe));
    constexpr double mattonella = 30.0;
    for (int i = 0; i * mattonella < stanza.width(); ++i) {
        for (int j = 0; j * mattonella < stanza.height(); ++j) {
            if ((i + j) % 2)
                p.fillRect(QRectF(i * mattonella, j * mattonella, mattonella, mattonella)
                               .intersected(stanza),
                           QColor(0xe2, 0xcd, 0xac));
        }
    }
    // The window in the upper wall, the door in the left one, the picture on the right.
    p.fillRect(QRectF(145, -muro + 2, 130, muro - 4), QColor(0xa9, 0xd8, 0xf7));
    p.fillRect(QRectF(-muro + 1, 163, muro - 2, 84), QColor(0x9a, 0x66, 0x3c));
    p.fillRect(QRectF(Stanza::larghezza, 115, 3, 70), QColor(0xd9, 0x6b, 0x52));
}

void QuadroStanza::disegnaCose(QPainter &p) const
{
    for (const Cosa &c : m_robot.stanza().cose())
        disegnaCosa(p, c);
}

void QuadroStanza::disegnaSensori(QPainter &p) const
{
    const StatoRobot &s = m_robot.stato();
    const QPointF qui(s.x, s.y);
    const auto ventaglio = [&](double gradi, double ampio, double lungo, const QColor &colore) {
        QPainterPath via(qui);
        // Qt counts angles the other way round.
        via.arcTo(QRectF(qui - QPointF(lungo, lungo), QSizeF(2 * lungo, 2 * lungo)),
                  -(s.direzione + gradi) - ampio / 2, ampio);
        via.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(colore);
        p.drawPath(via);
    };
    if (s.videoAttivo)
        ventaglio(s.testaO, 60, 95, QColor(0x2f, 0x86, 0xff, 45));
    const std::array<double, 3> direzioni{35, 0, -35};
    for (std::size_t i = 0; i < 3; ++i) {
        if (s.ultrasuoni[i] != 0)
            ventaglio(direzioni[i], 30, 48, QColor(0xd9, 0x2d, 0x20, 110));
    }
}

void QuadroStanza::disegnaFumetto(QPainter &p) const
{
    if (m_fumetto.isEmpty())
        return;
    const StatoRobot &s = m_robot.stato();
    const QTransform t = dallaStanza();
    const double scala = t.m11();
    const QPointF robot = t.map(QPointF(s.x, s.y));
    QFont carattere = font();
    carattere.setPointSizeF(carattere.pointSizeF() * 1.15);
    p.setFont(carattere);
    constexpr double margine = 11.0;
    const QRectF testo = p.boundingRect(QRectF(0, 0, 220, 400), Qt::TextWordWrap, m_fumetto);
    QRectF nuvola = testo.adjusted(0, 0, 2 * margine, 2 * margine - 4);
    const double stacco = Stanza::raggioRobot * scala + 14;
    const bool sopra = robot.y() - stacco - nuvola.height() > 6;
    nuvola.moveCenter(robot);
    if (sopra)
        nuvola.moveBottom(robot.y() - stacco);
    else
        nuvola.moveTop(robot.y() + stacco);
    nuvola.moveLeft(std::clamp(nuvola.left(), 6.0, std::max(6.0, width() - nuvola.width() - 6.0)));

    QPainterPath forma;
    forma.addRoundedRect(nuvola, 10, 10);
    QPainterPath punta;
    const double base = sopra ? nuvola.bottom() - 1 : nuvola.top() + 1;
    const double x = std::clamp(robot.x(), nuvola.left() + 18, nuvola.right() - 18);
    punta.moveTo(x - 8, base);
    punta.lineTo(x + 8, base);
    punta.lineTo(robot.x(), base + (sopra ? 13 : -13));
    punta.closeSubpath();
    p.setPen(QPen(QColor(0x33, 0x3d, 0x4a), 1.4));
    p.setBrush(Qt::white);
    p.drawPath(forma.united(punta));
    p.setPen(QColor(0x1c, 0x24, 0x2e));
    p.drawText(nuvola.adjusted(margine, margine - 2, -margine, -margine + 2),
               Qt::TextWordWrap | Qt::AlignCenter, m_fumetto);
}

void QuadroStanza::mousePressEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    const QPointF dove = inStanza(evento->position());
    const StatoRobot &s = m_robot.stato();
    if (suRobot(dove)) {
        m_presa = robotInMano;
        m_scarto = QPointF(s.x, s.y) - dove;
    } else if ((m_presa = m_robot.stanza().cosaIn(dove)) >= 0) {
        m_scarto = m_robot.stanza().cose().at(m_presa).centro - dove;
    }
}

void QuadroStanza::mouseMoveEvent(QMouseEvent *evento)
{
    const QPointF dove = inStanza(evento->position());
    if (m_presa != -1)
        sposta(m_presa, dove + m_scarto);
    const bool prendibile = suRobot(dove) || m_robot.stanza().cosaIn(dove) >= 0;
    setCursor(m_presa != -1 ? Qt::ClosedHandCursor
              : prendibile  ? Qt::OpenHandCursor
                            : Qt::ArrowCursor);
}

void QuadroStanza::sposta(int cosa, const QPointF &dove)
{
    const StatoRobot &s = m_robot.stato();
    if (cosa == robotInMano) {
        m_robot.impostaPosa(dove.x(), dove.y(), s.direzione);
    } else {
        m_robot.stanza().sposta(cosa, dove, QPointF(s.x, s.y));
        update();
    }
    Q_EMIT spostato();
}

void QuadroStanza::keyPressEvent(QKeyEvent *evento)
{
    const QPointF qui = m_scelta == robotInMano ? QPointF(m_robot.stato().x, m_robot.stato().y)
                                                : m_robot.stanza().cose().at(m_scelta).centro;
    const double passo = evento->modifiers().testFlag(Qt::ShiftModifier) ? passoCorto : passoLungo;
    switch (evento->key()) {
    case Qt::Key_Space:
        // From the robot to the first thing, and round.
        m_scelta = m_scelta == robotInMano ? 0 : m_scelta + 1;
        if (m_scelta >= m_robot.stanza().cose().size())
            m_scelta = robotInMano;
        update();
        break;
    case Qt::Key_Left:
        sposta(m_scelta, qui - QPointF(passo, 0));
        break;
    case Qt::Key_Right:
        sposta(m_scelta, qui + QPointF(passo, 0));
        break;
    case Qt::Key_Up:
        sposta(m_scelta, qui - QPointF(0, passo));
        break;
    case Qt::Key_Down:
        sposta(m_scelta, qui + QPointF(0, passo));
        break;
    default:
        QWidget::keyPressEvent(evento);
    }
}

void QuadroStanza::disegnaScelta(QPainter &p) const
{
    const StatoRobot &s = m_robot.stato();
    QPointF centro(s.x, s.y);
    double raggio = Stanza::raggioRobot;
    if (m_scelta != robotInMano) {
        const Cosa &cosa = m_robot.stanza().cose().at(m_scelta);
        centro = cosa.centro;
        raggio = cosa.raggio;
    }
    p.save();
    p.setTransform(dallaStanza());
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(0x17, 0x5c, 0xb5), 2));
    p.drawEllipse(centro, raggio + 4, raggio + 4);
    p.restore();
}

void QuadroStanza::mouseReleaseEvent(QMouseEvent *)
{
    m_presa = -1;
}
} // namespace tessaro_sim
