#pragma once

#include <functional>

// Running the message loop from within a test, with the application's translation of messages and
// its idle work, as the application's own loop does. Never sleep instead: a message would wait.

// Until nothing is waiting. Fails the test when the queue never becomes empty (a paint that is
// never validated). WM_QUIT ends it and stays pending.
void PumpAll();

// Until condition() holds, which is asked again after each message and each 10 ms. Its last answer.
// The bound is for a busy machine.
bool PumpUntil(const std::function<bool()>& condition, int boundMs = 10'000);

// For so long by the clock, for what must not happen in that time and for timers.
void PumpFor(int milliseconds);

// Takes a pending WM_QUIT away; whether there was one.
bool TakeQuit();
