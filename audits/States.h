#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A state that a control can be in, and how a host or a user brings it there.
struct State
{
    const char* name;
    bool enabled; // whether its text has to be read
    // text is what the control has been filled with.
    std::function<void(CWnd&, const std::string& text)> enter;
    int rows = 40; // that the control is filled with
};

// Those of the control of that name in the catalog; the plain state is the first.
std::vector<State> StatesOf(const char* control);

// The one of that name, which there has to be.
State StateOf(const char* control, std::string_view name);
