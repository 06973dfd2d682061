// Ending the program at once.
#pragma once

#include <functional>

// Ends the process at once with this exit code: no window is unloaded, no destructor runs. Nothing
// is lost by it: what was written to the port and to closed files is already with the operating
// system.
[[noreturn]] void terminaProgramma(int esito);

// Sets what is done when an unhandled error ends the program: after its message box, before the
// process ends. There is one for the whole program; an empty function removes it. An Errore that it
// throws is ignored.
void impostaUltimoAtto(std::function<void()> atto);
