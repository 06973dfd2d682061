// Waiting in tests, while the message pump runs.
#pragma once

#include <functional>

// Runs the pump until the condition is true. Returns false after 60 seconds, so that a test does
// not hang; the limit measures nothing.
[[nodiscard]] bool aspetta(const std::function<bool()> &condizione);

// Runs this number of rounds of the pump, to handle what is already waiting.
void gira(int giri);
