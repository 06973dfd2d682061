#pragma once
#include <QImage>

class Stanza;
struct StatoRobot;

/// The room as the robot's head sees it: straight ahead of base plus head, with the head's tilt.
QImage disegnaProspettiva(const StatoRobot &stato, const Stanza &stanza, int larghezza,
                          int altezza);
