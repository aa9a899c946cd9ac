#pragma once

#include "OnBoardUIGeneral.h"
#include "modes/KeyState.h"
#include "modes/WindowAlive.h"

#include <tuple>

// Gives a control the focus for a press that it is about to begin. Whoever loses the focus may do
// anything to the control, or open a box, over which the finger is lifted: then the press is none.
// A press that a program sends has the button up before and after.
inline bool TakeFocusForPress(CWnd& control)
{
    const auto circumstances = [&control] {
        return std::tuple(COnBoardUIGeneral::GetAppMode(), control.IsWindowEnabled(),
                          control.IsWindowVisible(), IsKeyDown(VK_LBUTTON));
    };
    const auto before = circumstances();
    const WindowAlive alive(control);
    control.SetFocus();
    return alive && circumstances() == before;
}
