#include "simulator/robot/Prospettiva.h"
#include "simulator/robot/Stanza.h"
#include "simulator/robot/StatoRobot.h"
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

inline namespace tessaro_sim {
namespace {
constexpr double occhio = 46.0;        // cm above the floor with the pelvis down
constexpr double corsaBacino = 12.0;   // cm
constexpr double mezzoCampo = 0.57735; // tangent of half the field of view, 60 degrees in all

double radianti(double gradi)
{
    return gradi * std::numbers::pi / 180.0;
}

// A stretch of one column: something standing on the floor, `alto` cm high, `lontano` cm away.
struct Pezzo
{
    double lontano;
    double alto;
    QColor colore;
    bool tondo;   // a ball: narrower toward its edges
    double bordo; // 0 in the middle of the thing, 1 at its edge
};

QColor scurisci(const QColor &c, double quanto)
{
    const double f = std::clamp(quanto, 0.0, 1.0);
    return QColor::fromRgbF(static_cast<float>(c.redF() * f), static_cast<float>(c.greenF() * f),
                            static_cast<float>(c.blueF() * f));
}

// The wall's colour where the ray meets it; every wall has its own, so that one knows where one is.
QColor coloreMuro(const QPointF &dove)
{
    constexpr double orlo = 0.5;
    if (dove.y() < orlo)
        return QColor(0xe9, 0xdf, 0xc4); // upper wall: cream
    if (dove.y() > Stanza::profondita - orlo)
        return QColor(0xc9, 0xd8, 0xc6); // lower wall: sage
    if (dove.x() < orlo)
        return QColor(0xe3, 0xc8, 0xb4); // left wall: apricot
    return QColor(0xc6, 0xd4, 0xe6);     // right wall: light blue
}

// A door in the left wall, a window in the upper one, a picture in the right one.
struct Riquadro
{
    double da, a; // height range, cm
    QColor colore;
};

bool riquadro(const QPointF &dove, Riquadro &r)
{
    constexpr double orlo = 0.5;
    if (dove.x() < orlo && std::abs(dove.y() - 205) < 42) {
        r = {0, 200, QColor(0x8a, 0x5a, 0x34)};
        return true;
    }
    if (dove.y() < orlo && std::abs(dove.x() - 210) < 65) {
        r = {85, 190,
             std::abs(dove.x() - 210) < 3 ? QColor(0xf8, 0xf8, 0xf4) : QColor(0x8f, 0xc8, 0xef)};
        return true;
    }
    if (dove.x() > Stanza::larghezza - orlo && std::abs(dove.y() - 150) < 35) {
        r = {100, 155, QColor(0xd9, 0x6b, 0x52)};
        return true;
    }
    return false;
}

class Pittore
{
public:
    Pittore(const StatoRobot &stato, const Stanza &stanza, int larghezza, int altezza)
        : m_stanza(stanza),
          m_immagine(larghezza, altezza, QImage::Format_RGB32),
          m_fuoco(larghezza / 2.0 / mezzoCampo),
          m_alto(occhio + stato.bacino * corsaBacino),
          m_orizzonte(altezza / 2.0 + std::tan(radianti(stato.testaV)) * m_fuoco),
          m_occhio(stato.x, stato.y),
          m_direzione(stato.direzione + stato.testaO)
    {
    }

    QImage disegna()
    {
        for (int x = 0; x < m_immagine.width(); ++x)
            colonna(x);
        return m_immagine;
    }

private:
    void colonna(int x)
    {
        const double scarto = std::atan((x + 0.5 - m_immagine.width() / 2.0) / m_fuoco);
        const double angolo = radianti(m_direzione) + scarto;
        const double dritto = std::cos(scarto);
        const double dx = std::cos(angolo);
        const double dy = std::sin(angolo);
        sfondo(x, dritto, dx, dy);

        std::vector<Pezzo> pezzi;
        for (const Cosa &c : m_stanza.cose()) {
            const QPointF verso = c.centro - m_occhio;
            const double lungo = verso.x() * dx + verso.y() * dy;
            const double fuori = std::abs(verso.x() * dy - verso.y() * dx);
            if (lungo <= 0.0 || fuori >= c.raggio)
                continue;
            const double dentro = std::sqrt(c.raggio * c.raggio - fuori * fuori);
            pezzi.push_back({std::max((lungo - dentro) * dritto, 1.0), c.altezza, c.colore,
                             c.leggera, fuori / c.raggio});
        }
        std::sort(pezzi.begin(), pezzi.end(),
                  [](const Pezzo &p, const Pezzo &q) { return p.lontano > q.lontano; });
        for (const Pezzo &p : pezzi)
            cosa(x, p);
    }

    double schermo(double quota, double lontano) const
    {
        return m_orizzonte - (quota - m_alto) / lontano * m_fuoco;
    }

    void tratto(int x, double da, double a, const QColor &colore)
    {
        const int y0 = std::max(0, static_cast<int>(std::lround(da)));
        const int y1 = std::min(m_immagine.height(), static_cast<int>(std::lround(a)));
        for (int y = y0; y < y1; ++y)
            m_immagine.setPixel(x, y, colore.rgb());
    }

    void sfondo(int x, double dritto, double dx, double dy)
    {
        const double raggio = muro(dx, dy);
        const QPointF dove = m_occhio + QPointF(dx, dy) * raggio;
        const double lontano = std::max(raggio * dritto, 1.0);
        const double luce = 1.0 - 0.45 * raggio / 520.0;
        const double cima = schermo(Stanza::altezza, lontano);
        const double fondo = schermo(0.0, lontano);
        tratto(x, 0, cima, QColor(0xf2, 0xf0, 0xea));
        tratto(x, cima, fondo, scurisci(coloreMuro(dove), luce));
        tratto(x, schermo(9.0, lontano), fondo, scurisci(QColor(0x6e, 0x52, 0x3c), luce));
        if (Riquadro r; riquadro(dove, r))
            tratto(x, schermo(r.a, lontano), schermo(r.da, lontano), scurisci(r.colore, luce));
        pavimento(x, fondo, dritto, dx, dy);
    }

    void pavimento(int x, double fondo, double dritto, double dx, double dy)
    {
        constexpr double mattonella = 30.0;
        const int y0 = std::max(0, static_cast<int>(std::lround(fondo)));
        for (int y = y0; y < m_immagine.height(); ++y) {
            const double sotto = std::max(y + 0.5 - m_orizzonte, 0.5);
            const double raggio = m_alto * m_fuoco / sotto / dritto;
            const QPointF dove = m_occhio + QPointF(dx, dy) * raggio;
            const bool scura = (static_cast<int>(std::floor(dove.x() / mattonella)) +
                                static_cast<int>(std::floor(dove.y() / mattonella))) &
                               1;
            const QColor c = scura ? QColor(0xb9, 0x8d, 0x5f) : QColor(0xcd, 0xa4, 0x76);
            m_immagine.setPixel(x, y, scurisci(c, 1.0 - 0.35 * raggio / 520.0).rgb());
        }
    }

    void cosa(int x, const Pezzo &p)
    {
        const double luce = (1.0 - 0.45 * p.lontano / 520.0) * (1.0 - 0.4 * p.bordo * p.bordo);
        double cima = p.alto;
        double piede = 0.0;
        if (p.tondo) {
            const double meta = p.alto / 2.0 * std::sqrt(std::max(0.0, 1.0 - p.bordo * p.bordo));
            cima = p.alto / 2.0 + meta;
            piede = p.alto / 2.0 - meta;
        }
        tratto(x, schermo(cima, p.lontano), schermo(piede, p.lontano), scurisci(p.colore, luce));
    }

    double muro(double dx, double dy) const
    {
        double vicino = 1e9;
        if (dx > 1e-9)
            vicino = std::min(vicino, (Stanza::larghezza - m_occhio.x()) / dx);
        if (dx < -1e-9)
            vicino = std::min(vicino, -m_occhio.x() / dx);
        if (dy > 1e-9)
            vicino = std::min(vicino, (Stanza::profondita - m_occhio.y()) / dy);
        if (dy < -1e-9)
            vicino = std::min(vicino, -m_occhio.y() / dy);
        return vicino;
    }

    const Stanza &m_stanza;
    QImage m_immagine;
    double m_fuoco;
    double m_alto;
    double m_orizzonte;
    QPointF m_occhio;
    double m_direzione;
};
} // namespace

QImage disegnaProspettiva(const StatoRobot &stato, const Stanza &stanza, int larghezza, int altezza)
{
    return Pittore(stato, stanza, larghezza, altezza).disegna();
}
} // namespace tessaro_sim
