// The report list: presses on its bars, holds, drags and the wheel.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "scroll/BarDrag.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

namespace {

constexpr int WheelThreshold = 100; // beyond it a turn scrolls one row

} // namespace

// Presses ---------------------------------------------------------------------------------------

LRESULT CCustomListCtrl::OnNcHitTest(CPoint point)
{
    if (!InOnBoard())
    {
        return Default();
    }
    m_vPart = CFauxScrollBar::PRESSED_NONE;
    m_hPart = CFauxScrollBar::PRESSED_NONE;
    ResizeOBScrollBars();
    const CPoint inWindow = scroll::ScreenToWindow(*this, point);
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (Bar(axis).ShowScrollBar())
        {
            if (const UINT hit = Bar(axis).GetHitTest(inWindow))
            {
                Part(axis) = Bar(axis).GetLastHit();
                return LRESULT(hit);
            }
        }
    }
    return Default();
}

void CCustomListCtrl::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

// Fast touches on an arrow arrive as double clicks; each of them scrolls.
void CCustomListCtrl::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

void CCustomListCtrl::PressNc(UINT hitTest, const CPoint& screen)
{
    m_lastNcHit = hitTest;
    if (!InOnBoard() || (hitTest != HTVSCROLL && hitTest != HTHSCROLL))
    {
        Default();
        return;
    }
    // A drag starts here, also when a touch came without a move before it.
    m_lastPoint = screen;
    ScreenToClient(&m_lastPoint);
    const WindowAlive alive(*this);
    if (hitTest == HTVSCROLL)
    {
        ProcessVScroll();
    }
    else
    {
        ProcessHScroll();
    }
    if (alive)
    {
        DrawScrollBars();
    }
}

void CCustomListCtrl::ProcessVScroll()
{
    Press(SB_VERT);
}

void CCustomListCtrl::ProcessHScroll()
{
    Press(SB_HORZ);
}

void CCustomListCtrl::Press(int axis)
{
    const CFauxScrollBar::ePRESSED part = Part(axis);
    const int code = scroll::CodeOf(part);
    if (code == scroll::NoCode)
    {
        return;
    }
    // A press on the right arrow is not held: it is meant, and such a list relies on it.
    m_pressed = m_pressed || axis == SB_VERT || part != CFauxScrollBar::PRESSED_SECOND;
    m_heldPart = part;
    const WindowAlive alive(*this);
    if (part != CFauxScrollBar::PRESSED_THUMB)
    {
        Step(axis, code);
    }
    // What was told on the way may have ended the list or the press.
    if (!alive || m_heldPart != part)
    {
        return;
    }
    if (scroll::Repeats(part))
    {
        SetTimer(m_timerInitialWaitID, m_timerInitialWaitPeriod, nullptr);
    }
    else
    {
        // Released outside, no message would tell: leaving ends the press.
        m_leaveRequested = true;
        scroll::RequestNcLeave(*this);
    }
}

void CCustomListCtrl::ForgetPress()
{
    m_pressed = false;
    m_heldPart = CFauxScrollBar::PRESSED_NONE;
    m_vPart = CFauxScrollBar::PRESSED_NONE;
    m_hPart = CFauxScrollBar::PRESSED_NONE;
}

// The one way out of a press that is cut off.
void CCustomListCtrl::EndTracking()
{
    ForgetPress();
    const bool leave = m_leaveRequested;
    m_leaveRequested = false;
    if (GetSafeHwnd() != nullptr)
    {
        KillTimer(m_timerid);
        KillTimer(m_timerInitialWaitID);
        if (leave)
        {
            scroll::CancelNcLeave(*this);
        }
    }
}

void CCustomListCtrl::OnLButtonUp(UINT, CPoint)
{
    ReleaseButton();
}

void CCustomListCtrl::OnNcLButtonUp(UINT, CPoint)
{
    ReleaseButton();
}

// The repeat timer sees by itself that the button is up.
void CCustomListCtrl::ReleaseButton()
{
    ForgetPress();
    if (m_leaveRequested)
    {
        m_leaveRequested = false;
        scroll::CancelNcLeave(*this);
    }
    const WindowAlive alive(*this);
    Default();
    if (alive && InOnBoard())
    {
        KillTimer(m_timerInitialWaitID);
        DrawScrollBars();
    }
}

LRESULT CCustomListCtrl::OnNCMouseLeave(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    ForgetPress();
    m_leaveRequested = false;
    if (InOnBoard())
    {
        if (::GetCapture() == GetSafeHwnd())
        {
            ::ReleaseCapture();
        }
        if (alive)
        {
            scroll::CancelNcLeave(*this);
            DrawBars();
        }
    }
    return alive ? Default() : 0;
}

void CCustomListCtrl::OnCancelMode()
{
    const WindowAlive alive(*this);
    EndTracking();
    CListCtrl::OnCancelMode();
    if (alive)
    {
        DrawBars();
    }
}

// Holds -----------------------------------------------------------------------------------------

void CCustomListCtrl::StepHeld(int axis, bool startRepeat)
{
    if (!scroll::Repeats(Part(axis)))
    {
        return;
    }
    const WindowAlive alive(*this);
    Step(axis, scroll::CodeOf(Part(axis)));
    if (alive && startRepeat)
    {
        SetTimer(m_timerid, m_timerperiod, nullptr);
    }
}

void CCustomListCtrl::OnTimer(UINT_PTR id)
{
    const bool initial = id == m_timerInitialWaitID;
    if (!InOnBoard() || (id != m_timerid && !initial))
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    const bool down = scroll::LeftButtonDown();
    if (initial || !down)
    {
        KillTimer(id);
    }
    if (down)
    {
        StepHeld(SB_VERT, initial);
        if (alive)
        {
            StepHeld(SB_HORZ, initial);
        }
    }
    else
    {
        EndTracking(); // released somewhere else, where no message told of it
    }
    if (alive)
    {
        DrawScrollBars();
    }
}

// Drags -----------------------------------------------------------------------------------------

void CCustomListCtrl::OnNcMouseMove(UINT hitTest, CPoint point)
{
    const WindowAlive alive(*this);
    CListCtrl::OnNcMouseMove(hitTest, point);
    if (alive && (hitTest == HTVSCROLL || hitTest == HTHSCROLL))
    {
        ScreenToClient(&point);
        HandleMouseMoveScroll(point);
    }
}

void CCustomListCtrl::OnMouseMove(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    if (InOnBoard() && flags == MK_LBUTTON)
    {
        HandleMouseMoveScroll(point);
    }
    if (alive)
    {
        CListCtrl::OnMouseMove(flags, point);
    }
}

// Relative: the thumb follows the pointer's movement, not its place. A finger that slides on a held
// arrow is not dragging.
void CCustomListCtrl::HandleMouseMoveScroll(const CPoint& point)
{
    const WindowAlive alive(*this);
    const CPoint moved = point - m_lastPoint;
    m_lastPoint = point;
    if (!InOnBoard() || !m_pressed || m_heldPart != CFauxScrollBar::PRESSED_THUMB)
    {
        return;
    }
    if (m_lastNcHit == HTVSCROLL)
    {
        const int before = m_vBar.GetScrollPos();
        const int after = scroll::DragThumb(m_vBar, int(moved.y));
        if (after != before)
        {
            PerformVScroll(after, before);
        }
    }
    else if (m_lastNcHit == HTHSCROLL)
    {
        const int before = m_hBar.GetScrollPos();
        const int after = scroll::DragThumb(m_hBar, int(moved.x));
        if (after != before)
        {
            PerformHScroll(after, before);
        }
    }
    if (alive)
    {
        DrawScrollBars();
    }
}

// Wheel -----------------------------------------------------------------------------------------

BOOL CCustomListCtrl::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    ForgetPress();
    if (!InOnBoard())
    {
        return CListCtrl::OnMouseWheel(flags, delta, point);
    }
    // The platform would scroll its own rows, so it does not get the message.
    m_wheel += delta;
    if (m_wheel < -WheelThreshold)
    {
        m_wheel = 0;
        m_vPart = CFauxScrollBar::PRESSED_SECOND;
        PerformVScroll(SB_LINEDOWN);
    }
    else if (m_wheel > WheelThreshold)
    {
        m_wheel = 0;
        m_vPart = CFauxScrollBar::PRESSED_FIRST;
        PerformVScroll(SB_LINEUP);
    }
    return TRUE;
}
