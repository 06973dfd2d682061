// What the runner needs of the console.
#pragma once

class ConsoleVigilio
{
public:
    virtual ~ConsoleVigilio() = default;
    virtual bool PortOpen() = 0;
    // Whether a connection stands. A port may be open without one: while it is being tried.
    virtual bool collegato() = 0;
    // Whether a connection is being tried, by whomever.
    virtual bool staTentando() = 0;
    // Connects, and returns when that has succeeded or not.
    virtual void Collega() = 0;
};
