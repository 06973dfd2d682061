#include "base/Sonno.h"

#include <sys/prctl.h>
#include <thread>

void dormi(std::chrono::steady_clock::duration tempo)
{
    // By default the kernel may end a sleep 50 microseconds late; 1000 ns is the limit set here.
    static const int preciso = prctl(PR_SET_TIMERSLACK, 1000UL, 0UL, 0UL, 0UL);
    static_cast<void>(preciso);
    std::this_thread::sleep_for(tempo);
}
