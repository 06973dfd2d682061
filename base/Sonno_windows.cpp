#include "base/Sonno.h"

#include <qt_windows.h>
#include <ratio>
#include <thread>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

void dormi(std::chrono::steady_clock::duration tempo)
{
    // A plain sleep ends at a tick of the system clock, up to 16 ms late. The high-resolution timer
    // counts in units of 100 ns; negative means from now.
    static const HANDLE sveglia = ::CreateWaitableTimerExW(
        nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, TIMER_ALL_ACCESS);
    using unita = std::chrono::duration<LONGLONG, std::ratio<1, 10'000'000>>;
    LARGE_INTEGER fra{};
    fra.QuadPart = -std::chrono::duration_cast<unita>(tempo).count();
    if (sveglia && ::SetWaitableTimer(sveglia, &fra, 0, nullptr, nullptr, FALSE))
        ::WaitForSingleObject(sveglia, INFINITE);
    else
        std::this_thread::sleep_for(tempo);
}
