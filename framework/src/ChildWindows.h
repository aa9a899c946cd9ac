#pragma once

#include <windows.h>

#include <vector>

namespace framework {

// The direct children of a window in their order, collected: what is sent to one may end others, or
// move it among them.
inline std::vector<HWND> ChildWindows(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = ::GetTopWindow(parent); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        children.push_back(child);
    }
    return children;
}

// A pushable thing, and neither a frame round others nor a label.
inline bool IsPushable(HWND window)
{
    return (::SendMessage(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

} // namespace framework
