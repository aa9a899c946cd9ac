#pragma once

// What controls have in common when their parent gives them back the messages that they send it.

#include "framework/Wnd.h"

namespace framework {

// A parent that expects no value passes no place for it.
inline BOOL Answered(LRESULT* result, LRESULT value)
{
    if (result != nullptr)
    {
        *result = value;
    }
    return TRUE;
}

// WM_DRAWITEM: the control's class draws what its owner was asked to draw.
template <class Control> BOOL DrawReflected(Control& control, LPARAM lParam, LRESULT* result)
{
    control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return Answered(result, TRUE);
}

} // namespace framework
