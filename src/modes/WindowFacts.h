#pragma once

// What several floors ask of a window.

#include <afxwin.h>

#include <span>
#include <vector>

// The whole window as its own device context has it, from (0, 0).
inline CRect AreaOf(const CWnd& window)
{
    CRect area(0, 0, 0, 0);
    ::GetWindowRect(window.GetSafeHwnd(), &area);
    area.OffsetRect(-area.TopLeft());
    return area;
}

// A window's place in the client area of another, as a rule its parent.
inline CRect PlaceIn(HWND parent, HWND window)
{
    CRect place(0, 0, 0, 0);
    ::GetWindowRect(window, &place);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

// Whether a window's class has this name; upper and lower case are one.
inline bool IsOfClass(HWND window, const char* wanted)
{
    char name[260] = "";
    ::GetClassName(window, name, int(sizeof(name)));
    return ::lstrcmpi(name, wanted) == 0;
}

// Whether it has a frame besides the sunken client edge, for which on-board controls have a border
// of their own: the platform's, in every mode.
inline bool HasPlatformFrame(HWND window)
{
    constexpr DWORD frames = WS_BORDER | WS_DLGFRAME | WS_THICKFRAME;
    return (::GetWindowLongPtr(window, GWL_STYLE) & frames) != 0 ||
           (::GetWindowLongPtr(window, GWL_EXSTYLE) & (WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME)) !=
               0;
}

// Disabled, by itself or with a window above it: what the user does never reaches it.
inline bool IsShutOff(HWND window)
{
    while (::IsWindowEnabled(window))
    {
        if ((::GetWindowLongPtr(window, GWL_STYLE) & WS_CHILD) == 0)
        {
            return false;
        }
        window = ::GetParent(window);
    }
    return true;
}

// The same or hidden: the user cannot work it. A window that is not redrawn for a while is taken
// for hidden.
inline bool IsOutOfReach(HWND window)
{
    return !::IsWindowVisible(window) || IsShutOff(window);
}

// The direct children in their order, collected: what is done to one may end others, or move it
// among them.
inline std::vector<HWND> ChildrenNow(HWND parent)
{
    // One after the other and not by the system's enumeration, which asks for the children of each
    // child too.
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        children.push_back(child);
    }
    return children;
}

// Does something to each of some collected windows that is still there when its turn comes.
template <class Act> void ForEachLeft(std::span<const HWND> windows, Act act)
{
    for (const HWND window : windows)
    {
        if (::IsWindow(window))
        {
            act(window);
        }
    }
}

template <class Act> void ForEachChild(HWND parent, Act act)
{
    ForEachLeft(ChildrenNow(parent), act);
}
