#pragma once
#include <QColor>
#include <QList>
#include <QPointF>
#include <QString>

inline namespace tessaro_sim {
// A thing in the room, seen from above a disc.
struct Cosa
{
    QString nome;
    QPointF centro;        // cm
    double raggio = 10.0;  // cm
    double altezza = 20.0; // cm
    QColor colore;
    bool leggera = false; // the robot pushes it instead of stopping
};

// The room in which the robot moves: four walls and a few things. Lengths are cm, x to the right,
// y downward; angles are degrees clockwise from the right.
class Stanza
{
public:
    Stanza();

    static constexpr double larghezza = 420.0;
    static constexpr double profondita = 300.0;
    static constexpr double altezza = 240.0;
    static constexpr double raggioRobot = 20.0;

    QList<Cosa> &cose() { return m_cose; }
    const QList<Cosa> &cose() const { return m_cose; }

    // The index of the thing at this point, -1 where there is none.
    int cosaIn(const QPointF &punto) const;
    // Moves a thing, kept inside the walls and off the robot that stands at `robot`.
    void sposta(int cosa, const QPointF &dove, const QPointF &robot);

    // The robot wants to go from `da` to `a`: where it ends up. Light things give way.
    // `urtato` becomes true where something stopped it.
    QPointF avanza(const QPointF &da, const QPointF &a, bool &urtato);

    // How far from `da` the first wall or thing lies in that direction.
    double distanza(const QPointF &da, double gradi) const;

private:
    bool libero(const QPointF &centro, double raggio, int tranne) const;
    QList<Cosa> m_cose;
};
} // namespace tessaro_sim
