#include "base/Sonno.h"

#include <sys/prctl.h>
#include <thread>

void dormi(std::chrono::steady_clock::duration tempo)
{
    // The kernel may add 50 microseconds to a sleep unless it is told that this matters.
    static const int preciso = prctl(PR_SET_TIMERSLACK, 1000UL, 0UL, 0UL, 0UL);
    static_cast<void>(preciso);
    std::this_thread::sleep_for(tempo);
}
