// The move language: what a line commands, and how long it takes.
#pragma once

#include "serial/ControlloSeriale.h"

#include <QString>
#include <functional>
#include <optional>

struct Mossa
{
    enum class Specie {
        Ignota,  // no rule recognises the line
        Comando, // something for the robot
        Led,     // the same, for the head LEDs
        Pausa,
        Camera,
        Programma,
        Ripeti
    };

    Specie specie = Specie::Ignota;
    // What goes to the robot; empty where nothing does, also where the line's number does not fit.
    std::function<void(ControlloSeriale &)> comando;
    // Milliseconds until the next line as the line asks for them, which the timer may refuse;
    // without them the default stands.
    std::optional<qint32> attesa;
    QString programma;
    // 0 is without end.
    quint8 volte = 0;
};

// Columns count from 1, keywords compare without regard to case, numbers are read by the lenient
// scan. Never fails: a number out of range costs only what needs it.
Mossa leggiMossa(QStringView riga);
