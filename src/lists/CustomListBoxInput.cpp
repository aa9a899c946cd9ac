// The list box: presses on its bars, holds, drags, wheel and keys.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "scroll/BarDrag.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>
#include <optional>

// Presses ---------------------------------------------------------------------------------------

LRESULT CCustomListBox::OnNcHitTest(CPoint point)
{
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        const CPoint inWindow = scroll::ScreenToWindow(*this, point);
        for (const int axis : {SB_VERT, SB_HORZ})
        {
            if (Bar(axis).ShowScrollBar())
            {
                if (const UINT hit = Bar(axis).GetHitTest(inWindow))
                {
                    return LRESULT(hit);
                }
            }
        }
    }
    return alive ? Default() : HTNOWHERE;
}

void CCustomListBox::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

// Fast touches on an arrow arrive as double clicks; each of them scrolls.
void CCustomListBox::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

void CCustomListBox::PressNc(UINT hitTest, const CPoint& screen)
{
    m_lastNcHit = hitTest;
    const WindowAlive alive(*this);
    const bool ours = FollowMode() && (hitTest == HTVSCROLL || hitTest == HTHSCROLL);
    if (!alive)
    {
        return;
    }
    if (!ours)
    {
        Default();
        return;
    }
    // A drag starts here, also when a touch came without a move before it.
    m_lastPoint = screen;
    ScreenToClient(&m_lastPoint);
    if (hitTest == HTVSCROLL)
    {
        ProcessVScroll();
    }
    else
    {
        ProcessHScroll();
    }
}

void CCustomListBox::ProcessVScroll()
{
    Press(SB_VERT);
}

void CCustomListBox::ProcessHScroll()
{
    Press(SB_HORZ);
}

void CCustomListBox::Press(int axis)
{
    const WindowAlive alive(*this);
    const CFauxScrollBar::ePRESSED part = Bar(axis).GetLastHit();
    Pressed(axis) = part;
    m_tracking = true;
    m_trackedIn = COnBoardUIGeneral::GetAppMode();
    if (part == CFauxScrollBar::PRESSED_THUMB)
    {
        DrawOBScrollBars();
    }
    else if (const int code = scroll::CodeOf(part); code != scroll::NoCode)
    {
        SendMessage(scroll::MessageOf(axis), WPARAM(code));
    }
    // The message may have ended the list, the mode or the press.
    if (!alive || !m_tracking)
    {
        return;
    }
    if (scroll::Repeats(part))
    {
        SetTimer(m_timerid, m_timerperiod, nullptr); // sees by itself when the button is up
    }
    else
    {
        // Released outside, no message would tell: leaving ends the press.
        m_leaveRequested = true;
        scroll::RequestNcLeave(*this);
    }
}

// The one way out of a press, however it ends.
void CCustomListBox::EndTracking()
{
    m_vPressed = CFauxScrollBar::PRESSED_NONE;
    m_hPressed = CFauxScrollBar::PRESSED_NONE;
    if (GetSafeHwnd() == nullptr || !m_tracking)
    {
        m_tracking = false;
        return;
    }
    m_tracking = false;
    KillTimer(m_timerid);
    KillTimer(m_timerInitialWaitID);
    if (m_leaveRequested)
    {
        m_leaveRequested = false;
        scroll::CancelNcLeave(*this);
    }
}

void CCustomListBox::OnNcLButtonUp(UINT, CPoint)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return;
    }
    EndTracking();
    if (onBoard && ::GetCapture() == GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
    if (alive)
    {
        DrawOBScrollBars();
        Default();
    }
}

LRESULT CCustomListBox::OnNCMouseLeave(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    m_leaveRequested = false;
    // A held arrow goes on until its button is released, wherever the pointer is by then.
    if (!scroll::Repeats(m_vPressed) && !scroll::Repeats(m_hPressed))
    {
        EndTracking();
        if (::GetCapture() == GetSafeHwnd() && COnBoardUIGeneral::InOnBoardMode())
        {
            ::ReleaseCapture();
        }
        if (alive && FollowMode())
        {
            DrawOBScrollBars();
        }
    }
    return alive ? Default() : 0;
}

void CCustomListBox::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    EndTracking();
    CListBox::OnCaptureChanged(taker);
    if (alive && FollowMode())
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnCancelMode()
{
    const WindowAlive alive(*this);
    EndTracking();
    CListBox::OnCancelMode();
    if (alive && FollowMode())
    {
        DrawOBScrollBars();
    }
}

// Holds -----------------------------------------------------------------------------------------

void CCustomListBox::SendLine(int axis)
{
    if (scroll::Repeats(Pressed(axis)))
    {
        SendMessage(scroll::MessageOf(axis), WPARAM(scroll::CodeOf(Pressed(axis))));
    }
}

// False when the list did not survive it.
bool CCustomListBox::SendHeldLines()
{
    const WindowAlive alive(*this);
    SendLine(SB_VERT);
    if (alive)
    {
        SendLine(SB_HORZ);
    }
    return bool(alive);
}

void CCustomListBox::OnTimer(UINT_PTR id)
{
    const WindowAlive alive(*this);
    const bool ours = (id == m_timerid || id == m_timerInitialWaitID) && FollowMode();
    if (!alive)
    {
        return;
    }
    if (!ours)
    {
        Default();
        return;
    }
    const bool initial = id == m_timerInitialWaitID;
    const bool down = scroll::LeftButtonDown();
    if (initial || !down)
    {
        KillTimer(id);
    }
    if (down && !SendHeldLines())
    {
        return;
    }
    if (down && initial && m_tracking)
    {
        SetTimer(m_timerid, m_timerperiod, nullptr);
    }
    if (!down && !initial)
    {
        EndTracking(); // released somewhere else, where no message told of it
    }
    DrawOBScrollBars();
}

// Drags -----------------------------------------------------------------------------------------

void CCustomListBox::OnNcMouseMove(UINT hitTest, CPoint point)
{
    const WindowAlive alive(*this);
    CListBox::OnNcMouseMove(hitTest, point);
    if (alive)
    {
        ScreenToClient(&point);
        HandleMouseMoveScroll(point);
    }
}

void CCustomListBox::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    CListBox::OnMouseMove(flags, point);
    if (alive)
    {
        HandleMouseMoveScroll(point);
        // A selection dragged past the edge scrolls the rows.
        if (alive && (flags & MK_LBUTTON) != 0 && FollowMode())
        {
            MirrorContent();
            DrawOBScrollBars();
        }
    }
}

void CCustomListBox::HandleMouseMoveScroll(const CPoint& point)
{
    const WindowAlive alive(*this);
    const CPoint moved = point - m_lastPoint;
    if (FollowMode() && m_tracking)
    {
        if (m_lastNcHit == HTVSCROLL)
        {
            Drag(SB_VERT, moved.y);
        }
        else if (m_lastNcHit == HTHSCROLL)
        {
            Drag(SB_HORZ, moved.x);
        }
    }
    if (alive)
    {
        m_lastPoint = point;
    }
}

// Relative: the thumb follows the pointer's movement, not its place.
void CCustomListBox::Drag(int axis, int pixels)
{
    if (Pressed(axis) != CFauxScrollBar::PRESSED_THUMB)
    {
        return; // a finger that slides on a held arrow is not dragging
    }
    const WindowAlive alive(*this);
    CFauxScrollBar& bar = Bar(axis);
    const int before = bar.GetScrollPos();
    const int after = scroll::DragThumb(bar, pixels);
    DrawOBScrollBars();
    if (after != before)
    {
        SendMessage(scroll::MessageOf(axis), MAKEWPARAM(SB_THUMBPOSITION, after));
        if (alive)
        {
            DrawOBScrollBars();
        }
    }
}

void CCustomListBox::OnLButtonDown(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    m_lastPoint = point;
    CListBox::OnLButtonDown(flags, point);
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    EndTracking();
    CListBox::OnLButtonUp(flags, point);
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
    }
}

// Wheel and keys --------------------------------------------------------------------------------

BOOL CCustomListBox::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!onBoard)
    {
        return alive ? CListBox::OnMouseWheel(flags, delta, point) : TRUE;
    }
    // One line a turn, however far the wheel was turned.
    SendMessage(WM_VSCROLL, delta > 0 ? SB_LINEUP : SB_LINEDOWN);
    return TRUE;
}

namespace {

std::optional<int> ScrollCodeOfKey(UINT key)
{
    switch (key)
    {
    case VK_DOWN:
        return SB_LINEDOWN;
    case VK_UP:
        return SB_LINEUP;
    case VK_PRIOR:
        return SB_PAGEUP;
    case VK_NEXT:
        return SB_PAGEDOWN;
    default:
        return std::nullopt;
    }
}

} // namespace

void CCustomListBox::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const WindowAlive alive(*this);
    CListBox::OnKeyDown(key, repeat, flags);
    if (!alive || !FollowMode())
    {
        return;
    }
    MirrorContent();
    // The rows move with the key as well as the selection: it is meant, so that the bar follows
    // the keyboard at every step.
    if (const auto code = ScrollCodeOfKey(key))
    {
        SendMessage(WM_VSCROLL, WPARAM(*code));
    }
    if (alive && FollowMode())
    {
        KeepCaretInSight();
    }
    if (alive)
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::KeepCaretInSight()
{
    const int caret = Ask(LB_GETCARETINDEX);
    if (caret < 0 || !m_vBarNeeded)
    {
        return; // all rows are in sight, or the platform scrolls by itself
    }
    CRect client;
    GetClientRect(&client);
    // The first row of all from which the caret's row is still whole.
    int first = caret;
    int height = HeightOfRow(caret);
    while (first > 0 && height + HeightOfRow(first - 1) <= client.Height())
    {
        height += HeightOfRow(--first);
    }
    const int top = Ask(LB_GETTOPINDEX);
    const int wanted = std::clamp(top, first, caret);
    if (wanted != top)
    {
        const WindowAlive alive(*this);
        Ask(LB_SETTOPINDEX, WPARAM(wanted));
        if (alive)
        {
            MirrorContent();
        }
    }
}

// Scroll messages -------------------------------------------------------------------------------

void CCustomListBox::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr)
    {
        Scroll(SB_VERT, code, position);
    }
    else
    {
        CListBox::OnVScroll(code, position, bar);
    }
}

void CCustomListBox::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar == nullptr)
    {
        Scroll(SB_HORZ, code, position);
    }
    else
    {
        CListBox::OnHScroll(code, position, bar);
    }
}

void CCustomListBox::Scroll(int axis, UINT code, UINT position)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return;
    }
    if (!onBoard || !Needed(axis))
    {
        // Without a bar of ours the rows are the platform's to scroll.
        Default();
        return;
    }
    CFauxScrollBar& bar = Bar(axis);
    // A drag has moved the bar already. A thumb message from elsewhere has not; its position holds
    // 16 bits, so the bar's own tells a drag from it.
    const bool thumb = code == SB_THUMBPOSITION || code == SB_THUMBTRACK;
    if (thumb && LOWORD(bar.GetScrollPos()) != LOWORD(position))
    {
        bar.SetScrollPos(int(position), TRUE);
    }
    bar.HandleScroll(code, position, nullptr);
    if (MoveContent(axis))
    {
        DrawOBScrollBars();
    }
}
