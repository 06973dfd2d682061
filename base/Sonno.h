// A sleep that is as short as it is asked to be.
#pragma once

#include <chrono>

// Sleeps that long, or some tens of microseconds longer.
void dormi(std::chrono::steady_clock::duration tempo);
