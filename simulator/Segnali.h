#pragma once
#include <functional>

// Calls back in the event loop when the system asks the program to end (SIGTERM, SIGINT).
// To be called once, with the application in place.
void ascoltaChiusura(const std::function<void()> &allaChiusura);
