// Key codes, as KeyDown and KeyUp report them.
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

// The code of a key. Digits and letters have the ASCII code of the digit or capital letter, F1 to
// F24 have 112 to 135. Any other key without a code is 255, since 0 means a dropped key.
int codice(const QKeyEvent &evento);

} // namespace Tasti
