// A sleep of less than a millisecond, more exact than the system's usual one.
#pragma once

#include <chrono>

// Sleeps for the given time; may take some tens of microseconds longer.
void dormi(std::chrono::steady_clock::duration tempo);
