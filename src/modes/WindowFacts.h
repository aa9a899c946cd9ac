#pragma once

// What several floors ask of a window.

#include <afxwin.h>

#include <span>
#include <utility>
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

// The direct children in their order, collected: what is done to one may end others, or move it
// among them.
inline std::vector<HWND> ChildrenNow(HWND parent)
{
    struct Collecting
    {
        HWND parent;
        std::vector<HWND> children;
    } collecting = {parent, {}};
    const auto collect = [](HWND child, LPARAM data) -> BOOL {
        auto& now = *reinterpret_cast<Collecting*>(data);
        if (::GetParent(child) == now.parent) // the enumeration goes deeper
        {
            now.children.push_back(child);
        }
        return TRUE;
    };
    // One question to the system for all. Without a parent it would be about the whole desktop.
    if (parent != nullptr)
    {
        ::EnumChildWindows(parent, collect, reinterpret_cast<LPARAM>(&collecting));
    }
    return std::move(collecting.children);
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
