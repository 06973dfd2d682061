// Key codes of the design.
#pragma once

class QKeyEvent;

namespace Tasti {

inline constexpr int Backspace = 8;
inline constexpr int Invio = 13;
inline constexpr int Esc = 27;
inline constexpr int Spazio = 32;
inline constexpr int Sinistra = 37;
inline constexpr int Su = 38;
inline constexpr int Destra = 39;
inline constexpr int Giu = 40;
inline constexpr int Canc = 46;
inline constexpr int Menu = 93;
inline constexpr int F5 = 116;
inline constexpr int F10 = 121;

// Digits and letters are their capital's ASCII code; a key without a code of its own here is 255,
// so that no real key is 0.
int codice(const QKeyEvent &evento);

} // namespace Tasti
