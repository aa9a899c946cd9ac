#pragma once

// What windows with parts side by side, headings or buttons, answer of them. A part's child id is
// its index and one; parts are no objects of their own.

#include "access/Rows.h"

namespace access {

inline HRESULT GivePart(IDispatch** object, const VARIANT& child, int count)
{
    *object = nullptr;
    return RowOf(child, count) < 0 ? E_INVALIDARG : S_FALSE;
}

inline HRESULT GivePartRole(VARIANT& place, const VARIANT& child, int count, long strip, long part)
{
    if (IsSelf(child))
    {
        return Give(place, strip);
    }
    return RowOf(child, count) < 0 ? E_INVALIDARG : Give(place, part);
}

// place is the part's, in client coordinates; more is what only this kind of part says.
inline HRESULT GivePartState(VARIANT& state, const CWnd& window, const CRect& place, long more)
{
    CRect client;
    window.GetClientRect(&client);
    CRect shown;
    const bool inSight = window.IsWindowVisible() && shown.IntersectRect(client, place);
    return Give(state, more | (inSight ? 0 : STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN) |
                           (IsShutOff(window.GetSafeHwnd()) ? STATE_SYSTEM_UNAVAILABLE : 0));
}

// A step from the window to a part, or from one part to the one beside it.
inline HRESULT NavigateStrip(long direction, const VARIANT& start, int count, VARIANT& end)
{
    const long step = direction == NAVDIR_LEFT    ? NAVDIR_PREVIOUS
                      : direction == NAVDIR_RIGHT ? NAVDIR_NEXT
                                                  : direction;
    return Navigate(step, start, count, end);
}

// A click in the middle of a part, as the user's.
inline void Click(CWnd& window, const CRect& place)
{
    const WindowAlive alive(window);
    const CPoint middle = place.CenterPoint();
    const LPARAM point = MAKELPARAM(middle.x, middle.y);
    window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, point);
    if (alive)
    {
        window.SendMessage(WM_LBUTTONUP, 0, point);
    }
}

} // namespace access
