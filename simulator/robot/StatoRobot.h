#pragma once
#include <QString>
#include <array>
#include <set>

inline namespace tessaro_sim {
// The eight head LEDs as bits of the mask on the wire.
enum LedDellaTesta : quint8 {
    LedBs = 1,
    LedGs = 2,
    LedRs = 4,
    LedVs = 8,
    LedBd = 16,
    LedGd = 32,
    LedRd = 64,
    LedVd = 128
};

// What the base is doing.
enum class MotoBase { Fermo, Avanti, Indietro, GiraDestra, GiraSinistra };
// What an arm or the pelvis is doing.
enum class MotoArto { Fermo, Sale, Scende };

// Everything that can be seen of the robot, as plain values.
struct StatoRobot
{
    bool sessioneAperta = false;

    double x = 160.0;       // cm from the room's left wall
    double y = 190.0;       // cm from the room's upper wall, growing downward
    double direzione = 0.0; // degrees, 0 looks right, growing clockwise, 0 to 360
    MotoBase base = MotoBase::Fermo;
    int velocita = 0;       // 1 slow, 2 fast
    double restoGiro = 0.0; // degrees still to turn; negative: without end
    bool urtato = false;    // stopped by a wall or a thing

    int testaGradiO = 0; // head to the right, degrees, -90 to 90: where it is going
    int testaGradiV = 0; // head up, degrees, -30 to 45: where it is going
    double testaO = 0.0; // where it is now
    double testaV = 0.0;

    std::array<double, 2> braccio{0.0, 0.0}; // 0 left, 1 right; 0 hanging to 1 raised
    std::array<MotoArto, 2> motoBraccio{MotoArto::Fermo, MotoArto::Fermo};
    double bacino = 0.0; // 0 low to 1 high
    MotoArto motoBacino = MotoArto::Fermo;

    quint8 ledTesta = 0; // mask of LedDellaTesta
    bool ledPosizione = false;
    bool toolDestro = false;
    bool toolSinistro = false;
    bool pinzaAperta = false;

    QString detto;              // last phrase, sound or message, as text
    int ultimaRiproduzione = 0; // its number on the wire, 67 to 222; 0 when none yet
    std::set<int> messaggi;     // recorded message slots
    int messaggioInCorso = 0;   // slot that plays or records; 0 when none
    bool messaggioRegistra = false;
    int programma = 0; // running internal program, 0 when none
    int foto = 0;      // photos taken since the start
    bool videoAttivo = false;

    int temperatura = 21;                   // degrees, 0 to 255
    int batteriaLogica = 210;               // 0 to 255
    int batteriaMotori = 180;               // 0 to 255
    std::array<int, 3> ultrasuoni{0, 0, 0}; // right, centre, left; 0 nothing, else 1 to 255
};
} // namespace tessaro_sim
