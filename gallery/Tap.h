#pragma once

#include <afxwin.h>

// A press and its release at a point of the client area, as the pointer sends them.
inline void Tap(CWnd& window, CPoint point)
{
    const LPARAM place = MAKELPARAM(point.x, point.y);
    window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
    window.SendMessage(WM_LBUTTONUP, 0, place);
}
