#pragma once

#include "CustomDialogTemplate.h"
#include "modes/WindowFacts.h"

#include <afxcmn.h>

#include <algorithm>
#include <vector>

namespace dialogs {

// How large a control of the platform has made itself in the standard mode, where its template
// gives it a size: a picture as large as what it shows, a line thin, an up-down control of one
// width.
inline CSize ChosenSize(HWND control, const CSize& given)
{
    const DWORD style = DWORD(::GetWindowLongPtr(control, GWL_STYLE));
    CRect window;
    ::GetWindowRect(control, &window);
    if (IsOfClass(control, UPDOWN_CLASS))
    {
        return (style & UDS_HORZ) != 0 ? given : CSize(window.Width(), given.cy);
    }
    if (!IsOfClass(control, WC_STATIC))
    {
        return given;
    }
    CRect client; // it gave itself a frame, too
    ::GetClientRect(control, &client);
    const CSize framed = given + window.Size() - client.Size();
    switch (style & SS_TYPEMASK)
    {
    case SS_ETCHEDHORZ:
        return CSize(framed.cx, window.Height());
    case SS_ETCHEDVERT:
        return CSize(window.Width(), framed.cy);
    case SS_BITMAP:
    case SS_ICON:
    {
        const WPARAM kind = (style & SS_TYPEMASK) == SS_BITMAP ? IMAGE_BITMAP : IMAGE_ICON;
        const bool keeps = (style & (SS_CENTERIMAGE | SS_REALSIZECONTROL)) != 0 ||
                           ::SendMessage(control, STM_GETIMAGE, kind, 0) == 0;
        return keeps ? given : window.Size();
    }
    default:
        return given;
    }
}

// Whether it is an up-down control that has looked for its buddy and taken its place beside it.
inline bool StandsBesideBuddy(HWND control)
{
    const DWORD style = DWORD(::GetWindowLongPtr(control, GWL_STYLE));
    return (style & UDS_AUTOBUDDY) != 0 && (style & (UDS_ALIGNLEFT | UDS_ALIGNRIGHT)) != 0 &&
           IsOfClass(control, UPDOWN_CLASS);
}

// A dialog on its way from a template rewritten for on-board display to its initialisation. Shared
// by the dialog and by the call that creates it, which may outlive the dialog.
class Opening
{
public:
    CCustomDialogTemplate& Template() { return m_template; }

    // Whether the dialog has still to be initialised.
    bool IsPending() const { return m_pending; }
    void End() { m_pending = false; }

    // Gives the first control with an id its place in the mode in advance.
    void Fix(DWORD id, const CRect& place) { m_fixed.push_back({id, place}); }

    // The controls that have theirs and are not scaled.
    const std::vector<HWND>& Fixed() const { return m_fixedControls; }

    // Puts the controls where they stand in the standard mode, in its font, so that scaling them
    // starts from there whatever dialog units and font the rewritten template has.
    void PlaceControls(HWND dialog)
    {
        const auto font = WPARAM(m_template.StandardFont());
        const std::vector<HWND> children = ChildrenNow(dialog);
        std::vector<HWND> besideBuddies;
        auto next = children.begin();
        for (const CCustomDialogTemplate::Control& control : m_template.Controls())
        {
            // A control that could not be created has left no window, and the dialog may have made
            // children that the template knows nothing of.
            const auto hasId = [&](HWND child) {
                return ::IsWindow(child) && LOWORD(::GetDlgCtrlID(child)) == LOWORD(control.id);
            };
            const auto found = std::find_if(next, children.end(), hasId);
            if (found == children.end())
            {
                continue;
            }
            const HWND child = *found;
            next = found + 1;
            const CRect place = PlaceOf(control, child);
            // First the size, then the font, as when the platform creates a control: a list of
            // whole rows makes its height fit at either step.
            ::SendMessage(child, WM_SETFONT, 0, FALSE);
            ::SetWindowPos(child, nullptr, place.left, place.top, place.Width(), place.Height(),
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
            ::SendMessage(child, WM_SETFONT, font, FALSE);
            if (StandsBesideBuddy(child))
            {
                besideBuddies.push_back(child);
            }
        }
        // A buddy has the width of the template again.
        ForEachLeft(besideBuddies, [](HWND child) {
            const LRESULT buddy = ::SendMessage(child, UDM_GETBUDDY, 0, 0);
            ::SendMessage(child, UDM_SETBUDDY, WPARAM(buddy), 0);
        });
    }

private:
    CRect PlaceOf(const CCustomDialogTemplate::Control& control, HWND window)
    {
        const auto hasId = [&](const auto& fixed) { return fixed.id == control.id; };
        const auto found = std::ranges::find_if(m_fixed, hasId);
        if (found == m_fixed.end())
        {
            const CRect& place = control.place;
            return CRect(place.TopLeft(), ChosenSize(window, place.Size()));
        }
        m_fixedControls.push_back(window);
        const CRect place = found->place;
        m_fixed.erase(found);
        return place;
    }

    CCustomDialogTemplate m_template;
    bool m_pending = true;
    std::vector<CCustomDialogTemplate::Control> m_fixed; // as yet without their windows
    std::vector<HWND> m_fixedControls;
};

} // namespace dialogs
