#pragma once

#include "CustomDialogTemplate.h"

namespace dialogs {

// A dialog on its way from a template rewritten for on-board display to its initialisation. Shared
// by the dialog and by the call that creates it, which may outlive the dialog.
class Opening
{
public:
    CCustomDialogTemplate& Template() { return m_template; }

    // Whether the dialog has still to be initialised.
    bool IsPending() const { return m_pending; }
    void End() { m_pending = false; }

    // Puts the controls where they stand in the standard mode, in its font, so that scaling them
    // starts from there whatever dialog units and font the rewritten template has.
    void PlaceControls(HWND dialog)
    {
        const auto font = WPARAM(m_template.StandardFont());
        HWND child = ::GetWindow(dialog, GW_CHILD);
        for (const CCustomDialogTemplate::Control& control : m_template.Controls())
        {
            // A control that could not be created has left no window, and the dialog may have made
            // children that the template knows nothing of.
            const HWND found = FirstWithId(child, control.id);
            if (found == nullptr)
            {
                continue;
            }
            child = found;
            const HWND next = ::GetWindow(child, GW_HWNDNEXT);
            // First the size, then the font, as when the platform creates a control: a list of
            // whole rows makes its height fit at either step.
            ::SendMessage(child, WM_SETFONT, 0, FALSE);
            ::SetWindowPos(child, nullptr, control.place.left, control.place.top,
                           control.place.Width(), control.place.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
            ::SendMessage(child, WM_SETFONT, font, FALSE);
            child = ::IsWindow(next) ? next : nullptr;
        }
    }

private:
    static HWND FirstWithId(HWND from, DWORD id)
    {
        while (from != nullptr && LOWORD(::GetDlgCtrlID(from)) != LOWORD(id))
        {
            from = ::GetWindow(from, GW_HWNDNEXT);
        }
        return from;
    }

    CCustomDialogTemplate m_template;
    bool m_pending = true;
};

} // namespace dialogs
