// A table of the commands with the writes of each.
#pragma once

#include "serial/ControlloSeriale.h"

#include <QList>
#include <functional>
#include <ostream>
#include <vector>

struct RigaComando
{
    QString nome;
    std::function<void(ControlloSeriale &)> manda;
    QList<QByteArray> scritture;
    // True for the commands that report no error.
    bool muto = false;
};

inline void PrintTo(const RigaComando &riga, std::ostream *uscita)
{
    *uscita << riga.nome.toStdString();
}

// At least one row for each command, except AvviaVideo, which waits and has its own tests.
std::vector<RigaComando> tavolaComandi();
