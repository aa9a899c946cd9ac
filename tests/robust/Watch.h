#pragma once

#include <functional>
#include <string>

// Notes faults, which the platform may pass over while it delivers a message, and ends the program
// when work never ends. Both say on the error output what was being done. One at a time.
class Watch
{
public:
    explicit Watch(std::function<std::string()> doing);
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch();

    static void GoesOn();
    // Of all watches so far: memory that is not there, traps, exceptions that nobody throws here.
    static int Faults();
};
