#pragma once

// A finger that rests on a window is a right click to the system, which tells of no press before
// the finger lifts or moves: nothing would look pressed, no arrow would repeat, and who presses
// firmly would not press at all. A window may refuse that, and is told of each press at once.

#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"

#include <tpcshrd.h>

// Where a control has no use for such a right click: on all of it, or on its bars, while that on
// its rows is the host's.
enum class Refused
{
    Everywhere,
    OnBars
};

// WM_TABLET_QUERYSYSTEMGESTURESTATUS, of a point of the screen: refuses it on-board, and asks the
// platform for the rest.
template <class Platform>
LRESULT AnswerGestures(const CWnd& control, Refused where, LPARAM screen, Platform platform)
{
    const auto isBar = [&](LRESULT hit) { return hit == HTVSCROLL || hit == HTHSCROLL; };
    const WindowAlive alive(control); // it may end in the question
    if (COnBoardUIGeneral::InOnBoardMode() &&
        (where == Refused::Everywhere ||
         isBar(::SendMessage(control.GetSafeHwnd(), WM_NCHITTEST, 0, screen))))
    {
        return TABLET_DISABLE_PRESSANDHOLD;
    }
    return alive ? platform() : 0;
}
