#pragma once

class QPainter;

inline namespace tessaro_sim {
struct StatoRobot;

// Draws the robot from above with its middle in the origin, looking right; the unit is the cm.
void disegnaDallAlto(QPainter &p, const StatoRobot &stato);
} // namespace tessaro_sim
