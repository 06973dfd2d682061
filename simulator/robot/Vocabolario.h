#pragma once
#include <QString>

inline namespace tessaro_sim {
// The robot's own memory of what it can say: phrases and sounds by number.
namespace Vocabolario {
inline constexpr int frasi = 140;
inline constexpr int suoni = 16;
// On the wire phrase n is n + primaFrase, sound n is n + primoSuono.
inline constexpr int primaFrase = 66;
inline constexpr int primoSuono = 206;

// Text of phrase 1..140; empty for any other number.
QString frase(int numero);
// Name of sound 1..16; empty for any other number.
QString suono(int numero);
} // namespace Vocabolario
} // namespace tessaro_sim
