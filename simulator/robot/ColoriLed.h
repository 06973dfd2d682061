#pragma once
#include <QColor>
#include <array>

inline namespace tessaro_sim {
// The head's LEDs in the order from the forehead down to the ear: mask left, mask right, colour.
struct CoppiaLed
{
    int sinistro;
    int destro;
    QColor acceso;
};

std::array<CoppiaLed, 4> coppieLed();
// The colour of a LED that is off.
QColor ledSpento(const QColor &acceso);
} // namespace tessaro_sim
