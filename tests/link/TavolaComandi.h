// The commands as a table: what each one writes, piece for piece.
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
    // Ignores every error.
    bool muto = false;
};

inline void PrintTo(const RigaComando &riga, std::ostream *uscita)
{
    *uscita << riga.nome.toStdString();
}

// One row or more for each command; AvviaVideo, which waits in between, has tests of its own.
std::vector<RigaComando> tavolaComandi();
