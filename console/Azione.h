// One manual action: what it writes into an open list, and what it does on the robot.
#pragma once

#include <QString>
#include <functional>

class ControlloSeriale;

struct Azione
{
    // The line of the move language.
    QString riga;
    std::function<void(ControlloSeriale &)> comando;
    // What panel 3 shows when the robot has reacted; an action without a text does not wait.
    QString esito;
};
