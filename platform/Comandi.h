// How the program stops at once.
#pragma once

// Ends the process at once: no unloading, no destructors. What was written to the port and to
// closed files is with the operating system already.
[[noreturn]] void terminaProgramma(int esito);
