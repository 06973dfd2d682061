#pragma once
#include <QByteArray>
#include <array>

inline namespace tessaro_sim {
// The telegrams that the robot sends, built from their fields. Numbers are cut to their bytes.
namespace Telegrammi {
QByteArray temperatura(int gradi);
QByteArray batterie(int logica, int motori);
// Right, centre, left.
QByteArray ultrasuoni(const std::array<int, 3> &valori);
QByteArray statoMemoria(int canale, int stato);
// `tipo` 2 for a folder. The length field is the name's length plus `delta`; a spare byte ends it.
QByteArray voceElenco(int canale, int tipo, const QByteArray &nome, int delta = 0);
// As voceElenco, with a length of two bytes. At most 65535 bytes of `corpo` are sent.
QByteArray bloccoFile(int canale, const QByteArray &corpo, int delta = 0);
// `punti`: the 160 bytes of a row.
QByteArray rigaVideo(const QByteArray &punti);
} // namespace Telegrammi
} // namespace tessaro_sim
