// How the program stops at once.
#pragma once

#include <functional>

// Ends the process at once: no unloading, no destructors. What was written to the port and to
// closed files is with the operating system already.
[[noreturn]] void terminaProgramma(int esito);

// What is still done when an error that nobody handled ends the program: after its message box,
// before the process ends. There is one for the whole program; an empty one takes it away. Errors
// in it are passed over.
void impostaUltimoAtto(std::function<void()> atto);
