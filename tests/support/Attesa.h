// Waiting in tests: on a condition, while the message pump runs.
#pragma once

#include <functional>

// Runs rounds of the pump until the condition holds. False only where it never does: the bound is
// there for a test that hangs, not to measure anything.
[[nodiscard]] bool aspetta(const std::function<bool()> &condizione);

// Runs that many rounds of the pump: long enough for what is waiting already, and no more.
void gira(int giri);
