// The tool bar: keys, and what shows where they go.

#include "CustomToolbar.h"

#include "access/Strip.h"
#include "modes/WindowAlive.h"

namespace {

constexpr UINT WasDownBefore = 0x4000; // in the flags of a key message

} // namespace

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

// The button that shows the focus, or -1. One that was disabled keeps it until a key goes on.
int CustomToolbar::FocusedButton() const
{
    const int focused = ::GetFocus() == GetSafeHwnd() ? m_focused : -1;
    return focused < GetCount() ? focused : -1; // the bar may end in the question
}

// To the next button that can be pressed; where there is none the focus stays.
void CustomToolbar::FocusNext(int from, int step)
{
    const WindowAlive alive(*this);
    const int count = GetCount();
    for (int button = from + step; alive && button >= 0 && button < count; button += step)
    {
        const bool found = IsPressable(button);
        if (found && alive)
        {
            FocusButton(button);
            return;
        }
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
    CRgn painted; // what was inverted before is inverted anew only there
    painted.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(m_hWnd, painted, FALSE);
    Default();
    const int button = alive && WorksKeys() ? FocusedButton() : -1;
    CRect place(0, 0, 0, 0);
    if (alive && button >= 0)
    {
        GetItemRect(button, &place);
    }
    if (alive && !place.IsRectEmpty())
    {
        place.DeflateRect(3, 3);
        CClientDC dc(this);
        dc.SelectClipRgn(&painted);
        dc.DrawFocusRect(&place);
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
        FocusNext(button, -1);
        break;
    case VK_RIGHT:
    case VK_DOWN:
        FocusNext(button, 1);
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
            Press(button);
        }
        break;
    default:
        CToolBar::OnKeyDown(key, repeat, flags);
    }
}

// As a click, which the platform tells its parent of.
void CustomToolbar::Press(int button)
{
    const WindowAlive alive(*this);
    const bool pressable = IsPressable(button);
    CRect place(0, 0, 0, 0);
    if (alive && pressable)
    {
        GetItemRect(button, &place);
    }
    if (alive && !place.IsRectEmpty())
    {
        access::PostClick(*this, place);
    }
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
        FocusNext(-1, 1);
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
