#include "simulator/robot/Stanza.h"
#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

inline namespace tessaro_sim {
namespace {
double lunghezza(const QPointF &p)
{
    return std::hypot(p.x(), p.y());
}

double distanzaMuro(const QPointF &da, double dx, double dy)
{
    double vicino = 1e9;
    if (dx > 1e-9)
        vicino = std::min(vicino, (Stanza::larghezza - da.x()) / dx);
    if (dx < -1e-9)
        vicino = std::min(vicino, -da.x() / dx);
    if (dy > 1e-9)
        vicino = std::min(vicino, (Stanza::profondita - da.y()) / dy);
    if (dy < -1e-9)
        vicino = std::min(vicino, -da.y() / dy);
    return vicino;
}
} // namespace

Stanza::Stanza()
    : m_cose{{u"Palla"_s, {262, 205}, 13, 26, QColor(0xd6, 0x3a, 0x2f), true},
             {u"Pianta"_s, {378, 44}, 22, 110, QColor(0x3c, 0x8c, 0x4a), false},
             {u"Scatola"_s, {62, 58}, 26, 38, QColor(0xb9, 0x84, 0x4a), false},
             {u"Pouf"_s, {330, 235}, 28, 34, QColor(0x3f, 0x6f, 0xb5), false}}
{
}

int Stanza::cosaIn(const QPointF &punto) const
{
    for (int i = static_cast<int>(m_cose.size()) - 1; i >= 0; --i) {
        if (lunghezza(m_cose.at(i).centro - punto) <= m_cose.at(i).raggio)
            return i;
    }
    return -1;
}

void Stanza::sposta(int cosa, const QPointF &dove, const QPointF &robot)
{
    Cosa &c = m_cose[cosa];
    QPointF meta(std::clamp(dove.x(), c.raggio, larghezza - c.raggio),
                 std::clamp(dove.y(), c.raggio, profondita - c.raggio));
    if (lunghezza(meta - robot) >= c.raggio + raggioRobot)
        c.centro = meta;
}

bool Stanza::libero(const QPointF &centro, double raggio, int tranne) const
{
    if (centro.x() < raggio || centro.x() > larghezza - raggio || centro.y() < raggio ||
        centro.y() > profondita - raggio)
        return false;
    for (int i = 0; i < m_cose.size(); ++i) {
        if (i != tranne && lunghezza(m_cose.at(i).centro - centro) < m_cose.at(i).raggio + raggio)
            return false;
    }
    return true;
}

QPointF Stanza::avanza(const QPointF &da, const QPointF &a, bool &urtato)
{
    for (int i = 0; i < m_cose.size(); ++i) {
        Cosa &c = m_cose[i];
        const QPointF verso = c.centro - a;
        const double d = lunghezza(verso);
        const double minima = c.raggio + raggioRobot;
        if (!c.leggera || d >= minima || d < 1e-6)
            continue;
        // A hair more than touching, so that rounding does not make it an obstacle.
        const QPointF spinta = a + verso * ((minima + 0.01) / d);
        if (libero(spinta, c.raggio, i))
            c.centro = spinta;
    }
    if (libero(a, raggioRobot, -1))
        return a;
    urtato = true;
    return da;
}

double Stanza::distanza(const QPointF &da, double gradi) const
{
    const double rad = gradi * std::numbers::pi / 180.0;
    const double dx = std::cos(rad);
    const double dy = std::sin(rad);
    double vicino = distanzaMuro(da, dx, dy);
    for (const Cosa &c : m_cose) {
        const QPointF verso = c.centro - da;
        const double lungo = verso.x() * dx + verso.y() * dy;
        const double fuori2 = verso.x() * verso.x() + verso.y() * verso.y() - lungo * lungo;
        const double r2 = c.raggio * c.raggio;
        if (lungo > 0.0 && fuori2 < r2)
            vicino = std::min(vicino, lungo - std::sqrt(r2 - fuori2));
    }
    return std::max(vicino, 0.0);
}
} // namespace tessaro_sim
