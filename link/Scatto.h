// A timer tick that can be suspended in the middle and taken up again there.
#pragma once

#include <coroutine>
#include <exception>

// Runs at once up to its first suspension; the frame goes when the tick ends.
struct Scatto
{
    struct promise_type
    {
        Scatto get_return_object() { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() {}
        // The way out of every handler, back to who started or resumed the tick.
        void unhandled_exception() { std::rethrow_exception(std::current_exception()); }
    };
};
