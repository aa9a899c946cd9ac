#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

// A state that a control can be in, and how a host or a user brings it there.
struct State
{
    const char* name;
    bool enabled; // whether its text has to be read
    std::function<void(CWnd&)> enter;
    int rows = 40; // that the control is filled with
};

// Those of the control of that name in the catalog; the plain state is the first.
std::vector<State> StatesOf(const char* control);
