#pragma once

// How a control tells its parent. Whoever is told may end the control or change the mode.

#include "modes/WindowFacts.h"

#include <afxwin.h>

// A WM_COMMAND with the control's id and handle; nothing without a parent.
inline void TellCommand(HWND control, UINT code)
{
    ::SendMessage(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code),
                  reinterpret_cast<LPARAM>(control));
}

// The same, once the messages that wait have been handled.
inline void PostCommand(HWND control, UINT code)
{
    if (const HWND parent = ::GetParent(control); parent != nullptr) // null would be the thread
    {
        ::PostMessage(parent, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code),
                      reinterpret_cast<LPARAM>(control));
    }
}

// What the platform's static tells when it is enabled or disabled, for one that must not be told of
// it: it would draw itself. The style's bit means something else to a button.
inline void TellEnabled(HWND control, BOOL enabled)
{
    if ((::GetWindowLongPtr(control, GWL_STYLE) & SS_NOTIFY) != 0 && !IsOfClass(control, "Button"))
    {
        TellCommand(control, enabled ? STN_ENABLE : STN_DISABLE);
    }
}

// A WM_NOTIFY, whose header gets the control's handle and id, and the parent's answer; 0 without a
// parent.
inline LRESULT TellNotify(HWND control, NMHDR& header)
{
    header.hwndFrom = control;
    header.idFrom = UINT_PTR(::GetDlgCtrlID(control));
    return ::SendMessage(::GetParent(control), WM_NOTIFY, header.idFrom,
                         reinterpret_cast<LPARAM>(&header));
}
