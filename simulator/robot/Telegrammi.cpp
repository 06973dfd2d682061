#include "simulator/robot/Telegrammi.h"

inline namespace tessaro_sim {
namespace {
constexpr char scorta = 0;

char byte(int valore)
{
    return static_cast<char>(static_cast<quint8>(valore & 255));
}
} // namespace

QByteArray Telegrammi::temperatura(int gradi)
{
    return QByteArray(1, 31) + byte(gradi);
}

QByteArray Telegrammi::batterie(int logica, int motori)
{
    return QByteArray(1, 32) + byte(logica) + byte(motori);
}

QByteArray Telegrammi::ultrasuoni(const std::array<int, 3> &valori)
{
    return QByteArray(1, 33) + byte(valori[0]) + byte(valori[1]) + byte(valori[2]);
}

QByteArray Telegrammi::statoMemoria(int canale, int stato)
{
    return QByteArray(1, 42) + byte(canale) + byte(stato);
}

QByteArray Telegrammi::voceElenco(int canale, int tipo, const QByteArray &nome, int delta)
{
    const QByteArray corto = nome.left(255);
    return QByteArray(1, 47) + byte(canale) + byte(tipo) +
           byte(static_cast<int>(corto.size()) + delta) + corto + scorta;
}

QByteArray Telegrammi::bloccoFile(int canale, const QByteArray &corpo, int delta)
{
    const QByteArray corto = corpo.left(65535);
    const int n = static_cast<int>(corto.size()) + delta;
    return QByteArray(1, 45) + byte(canale) + byte(n) + byte(n >> 8) + corto + scorta;
}

QByteArray Telegrammi::rigaVideo(const QByteArray &punti)
{
    return QByteArray(1, 13) + punti;
}
} // namespace tessaro_sim
