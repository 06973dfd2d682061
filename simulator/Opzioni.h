#pragma once
#include "simulator/line/Guasti.h"
#include <QString>
#include <QStringList>
#include <array>

inline namespace tessaro_sim {
class Simulatore;

// What the command line asks for.
struct Opzioni
{
    bool aiuto = false;
    bool senzaFinestra = false;
    QString cartella; // empty: no link
    int porta = 1;    // 1 to 99
    bool log = false;
    QString fileLog; // empty: standard output
    int baud = 9600; // 0 without limit
    QString memoria;
    QString immagini;
    QString registra;
    QString riproduci;
    bool tempiOriginali = true;
    Guasti guasti;
    quint32 seme = 1;
    int perdiDopo = 0; // ms after the start
    int perdiPer = 0;  // ms; 0 never
    int temperatura = -1;
    std::array<int, 2> batterie{-1, -1};
    std::array<int, 3> ultrasuoni{0, 0, 0};
    bool dallaStanza = false;

    // Reads the arguments, the program's name first. Empty on success, else what is wrong.
    QString leggi(const QStringList &argomenti);
    static QString testoAiuto();

    // Sets up the simulator, line included. Empty on success, else what went wrong.
    QString applica(Simulatore &simulatore) const;
};
} // namespace tessaro_sim
