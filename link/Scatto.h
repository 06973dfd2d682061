// A timer tick as a coroutine: it can be suspended in the middle and resumed there.
#pragma once

#include <coroutine>
#include <exception>

// Starts at once. The coroutine's frame is freed when the tick ends.
struct Scatto
{
    struct promise_type
    {
        Scatto get_return_object() { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() {}
        // An error goes to the caller that has started or resumed the tick, as in any handler.
        void unhandled_exception() { std::rethrow_exception(std::current_exception()); }
    };
};
