// What the runner needs of the console.
#pragma once

class ConsoleVigilio
{
public:
    virtual ~ConsoleVigilio() = default;
    virtual bool PortOpen() = 0;
    // Connects, and returns when that has succeeded or not.
    virtual void Collega() = 0;
};
