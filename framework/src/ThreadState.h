#pragma once

// What the framework keeps for each thread.

#include "HandleMap.h"
#include "framework/Menu.h"
#include "framework/Thread.h"

#include <unordered_map>
#include <vector>

namespace framework {

struct ThreadState
{
    HandleMap<HWND, CWnd> windows;
    HandleMap<HMENU, CMenu> menus;
    // The procedures under ours for windows whose object let go while ours stayed in the chain.
    std::unordered_map<HWND, WNDPROC> leftProcedures;
    MSG current = {};          // the message that a window procedure is working on
    CWnd* creating = nullptr;  // bound to the next window that is created ...
    HWND creatingIn = nullptr; // ... in this parent, if it is not null
    HHOOK creationHook = nullptr;
    CWinThread* thread = nullptr;
    int waiting = 0;                // how many have asked for the hourglass
    HCURSOR cursorBefore = nullptr; // of the first of them
    std::vector<HWND> modalWindows; // of modal loops within one another, the outermost first
};

// Made on first use and never freed: windows may outlive every static object.
ThreadState& CurrentThreadState();

} // namespace framework
