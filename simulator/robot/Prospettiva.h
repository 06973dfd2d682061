#pragma once
#include <QImage>

inline namespace tessaro_sim {
class Stanza;
struct StatoRobot;

// The room as the robot's head sees it: straight ahead of base plus head, with the head's tilt.
QImage disegnaProspettiva(const StatoRobot &stato, const Stanza &stanza, int larghezza,
                          int altezza);
} // namespace tessaro_sim
