// The tool bar: keys, and what shows where they go.

#include "CustomToolbar.h"

#include "access/Strip.h"
#include "modes/KeyState.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"

#include <algorithm>

// A platform whose bar wants the arrows works them by itself.
bool CustomToolbar::WorksKeys()
{
    return (DefWindowProc(WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS) == 0;
}

bool CustomToolbar::IsPressable(int button) const
{
    TBBUTTON data = {};
    SendMessage(TB_GETBUTTON, WPARAM(button), reinterpret_cast<LPARAM>(&data));
    return (data.fsStyle & BTNS_SEP) == 0 &&
           (data.fsState & (TBSTATE_ENABLED | TBSTATE_HIDDEN)) == TBSTATE_ENABLED;
}

// The button that shows the focus, or -1. One that was disabled keeps it until a key goes on; a
// place that shows no button any more has none.
int CustomToolbar::FocusedButton() const
{
    const int focused = ::GetFocus() == GetSafeHwnd() ? m_focused : -1;
    TBBUTTON data = {};
    const bool shows = focused >= 0 &&
                       SendMessage(TB_GETBUTTON, WPARAM(focused), LPARAM(&data)) != 0 &&
                       (data.fsStyle & BTNS_SEP) == 0 && (data.fsState & TBSTATE_HIDDEN) == 0;
    return shows ? focused : -1; // the bar may end in the question
}

// To the next button that can be pressed; where there is none the focus stays.
void CustomToolbar::FocusNext(int from, int step)
{
    const WindowAlive alive(*this);
    const int count = GetCount();
    for (int button = std::min(from, count) + step; alive && button >= 0 && button < count;
         button += step)
    {
        const bool found = IsPressable(button);
        if (found && alive)
        {
            FocusButton(button);
            return;
        }
    }
}

// From the place that has the focus, or had it: from one that shows no button any more also the
// other way.
void CustomToolbar::StepFocus(int step)
{
    const WindowAlive alive(*this);
    const int place = m_focused;
    FocusNext(place, step);
    if (alive && FocusedButton() < 0 && alive)
    {
        FocusNext(place, -step);
    }
}

void CustomToolbar::FocusButton(int button)
{
    const WindowAlive alive(*this);
    InvalidateFocus();
    if (alive)
    {
        m_focused = button;
        InvalidateFocus();
    }
    if (alive)
    {
        access::TellChild(m_hWnd, EVENT_OBJECT_FOCUS, access::ChildOf(button));
    }
}

void CustomToolbar::InvalidateFocus()
{
    const WindowAlive alive(*this);
    CRect place(0, 0, 0, 0);
    GetItemRect(m_focused, &place); // for which the platform may lay the bar out, and tell of it
    if (alive)
    {
        InvalidateRect(&place);
    }
}

// The platform's own mark, a hot button, is for flat bars alone and goes with the pointer.
void CustomToolbar::OnPaint()
{
    if (::GetFocus() != GetSafeHwnd())
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    const int button = WorksKeys() ? FocusedButton() : -1;
    CRect place(0, 0, 0, 0);
    if (alive && button >= 0)
    {
        GetItemRect(button, &place);
    }
    if (!alive)
    {
        return;
    }
    place.DeflateRect(3, 3);
    CRgn painted;
    painted.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(m_hWnd, painted, FALSE);
    const bool shows = !place.IsRectEmpty() && painted.RectInRegion(&place);
    if (shows)
    {
        // It inverts what stands there, which is to be the ground: not every button fills its own.
        InvalidateRect(&place);
    }
    Default();
    if (alive && shows)
    {
        if (OwnContext dc(m_hWnd, OwnContext::Client); dc)
        {
            dc.DrawFocusRect(&place);
        }
    }
}

UINT CustomToolbar::OnGetDlgCode()
{
    const auto* const asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool enter =
        asked != nullptr && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
    const WindowAlive alive(*this);
    const UINT wanted = CToolBar::OnGetDlgCode();
    if (!alive || (wanted & DLGC_WANTARROWS) != 0)
    {
        return wanted;
    }
    return wanted | DLGC_WANTARROWS | (enter && FocusedButton() >= 0 ? DLGC_WANTMESSAGE : 0);
}

void CustomToolbar::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (::GetFocus() != GetSafeHwnd() || !WorksKeys())
    {
        CToolBar::OnKeyDown(key, repeat, flags);
        return;
    }
    const WindowAlive alive(*this);
    const int button = FocusedButton();
    const int count = GetCount();
    if (!alive)
    {
        return;
    }
    switch (key)
    {
    case VK_LEFT:
    case VK_UP:
        StepFocus(-1);
        break;
    case VK_RIGHT:
    case VK_DOWN:
        StepFocus(1);
        break;
    case VK_HOME:
        FocusNext(-1, 1);
        break;
    case VK_END:
        FocusNext(count, -1);
        break;
    case VK_SPACE:
    case VK_RETURN:
        if ((flags & WasDownBefore) == 0 && button >= 0)
        {
            access::PostAct(*this, button);
        }
        break;
    default:
        CToolBar::OnKeyDown(key, repeat, flags);
    }
}

// As a click, which the platform tells its parent of. The button may have gone meanwhile.
LRESULT CustomToolbar::OnAct(WPARAM button, LPARAM)
{
    return access::DoAct(*this, [this, button, alive = WindowAlive(*this)] {
        const bool pressable = IsPressable(int(button));
        CRect place(0, 0, 0, 0);
        if (alive && pressable)
        {
            GetItemRect(int(button), &place);
        }
        if (alive && !place.IsRectEmpty())
        {
            access::Click(*this, place);
        }
    });
}

void CustomToolbar::OnSetFocus(CWnd* old)
{
    const WindowAlive alive(*this);
    CToolBar::OnSetFocus(old);
    const int button = alive ? FocusedButton() : -1;
    if (!alive || !WorksKeys())
    {
        return;
    }
    if (button >= 0)
    {
        FocusButton(button);
    }
    else
    {
        StepFocus(1);
    }
}

void CustomToolbar::OnKillFocus(CWnd* taker)
{
    const WindowAlive alive(*this);
    CToolBar::OnKillFocus(taker);
    if (alive)
    {
        InvalidateFocus();
    }
}
