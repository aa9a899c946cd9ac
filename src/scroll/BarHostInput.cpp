// The controls with faux bars: presses, holds and drags.

#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

namespace scroll {

// Presses ---------------------------------------------------------------------------------------

UINT BarHost::HitBar(const CPoint& screen)
{
    const CPoint point = ScreenToWindow(m_window, screen);
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (IsShown(axis))
        {
            if (const UINT hit = BarOf(axis)->GetHitTest(point))
            {
                return hit;
            }
        }
    }
    return 0;
}

void BarHost::PressNc(UINT hitTest, const CPoint& screen)
{
    m_lastHit = hitTest;
    if (!FollowOrPass())
    {
        return;
    }
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (hitTest == HitCodeOf(axis) && BarOf(axis) != nullptr)
        {
            // A drag starts here, also when a touch came without a move before it.
            m_lastPoint = screen;
            m_window.ScreenToClient(&m_lastPoint);
            PressAxis(axis);
            return;
        }
    }
    PressBeside(hitTest);
}

void BarHost::Press(int axis)
{
    const WindowAlive alive(m_window);
    const Part part = PartHit(axis);
    const int code = CodeOf(part);
    PartOf(axis) = part;
    if (code == NoCode)
    {
        return;
    }
    Held() = Held() || Holds(axis, part);
    m_part = part;
    m_mode = COnBoardUIGeneral::GetAppMode();
    if (part != CFauxScrollBar::PRESSED_THUMB)
    {
        Step(axis, code);
    }
    // What was told on the way may have ended the window, the mode or the press.
    const auto goesOn = [&] { return alive && m_part == part; };
    if (goesOn() && Repeats(part))
    {
        if (m_manner.waits)
        {
            SetTimer(*m_manner.waitTimer, *m_manner.waitPeriod);
        }
        else
        {
            SetTimer(m_manner.repeatTimer, m_manner.repeatPeriod);
        }
    }
    if (alive)
    {
        DrawStep();
    }
    if (goesOn() && !Repeats(part))
    {
        // Released outside, no message would tell: leaving ends the press.
        m_leaveRequested = true;
        RequestNcLeave(m_window);
    }
}

void BarHost::SetTimer(const UINT& timer, const UINT& period)
{
    m_timed = true;
    m_window.SetTimer(timer, period, nullptr);
}

// Ends ------------------------------------------------------------------------------------------

void BarHost::Forget()
{
    const bool dragged = IsDragging();
    m_part = CFauxScrollBar::PRESSED_NONE;
    Held() = false;
    PartOf(SB_VERT) = CFauxScrollBar::PRESSED_NONE;
    PartOf(SB_HORZ) = CFauxScrollBar::PRESSED_NONE;
    if (dragged && m_window.GetSafeHwnd() != nullptr && InOnBoard())
    {
        DragEnded();
    }
}

void BarHost::CancelLeave()
{
    if (m_leaveRequested)
    {
        m_leaveRequested = false;
        CancelNcLeave(m_window);
    }
}

void BarHost::End()
{
    const bool timed = m_timed || m_part != CFauxScrollBar::PRESSED_NONE;
    m_timed = false;
    Forget();
    if (m_window.GetSafeHwnd() == nullptr)
    {
        m_leaveRequested = false;
        return;
    }
    if (timed)
    {
        m_window.KillTimer(m_manner.repeatTimer);
        if (m_manner.waitTimer != nullptr)
        {
            m_window.KillTimer(*m_manner.waitTimer);
        }
    }
    CancelLeave();
}

void BarHost::NcButtonUp()
{
    const WindowAlive alive(m_window);
    const bool onBoard = Follow();
    if (!alive)
    {
        return;
    }
    End();
    if (onBoard && ::GetCapture() == m_window.GetSafeHwnd())
    {
        ::ReleaseCapture();
    }
    if (alive)
    {
        DrawBars();
    }
    if (alive)
    {
        Default();
    }
}

LRESULT BarHost::NcMouseLeave()
{
    const WindowAlive alive(m_window);
    m_leaveRequested = false;
    // A held arrow that goes on does so until its button is released, wherever the pointer is by
    // then.
    if (!m_manner.outlastsLeave || (!Repeats(PartOf(SB_VERT)) && !Repeats(PartOf(SB_HORZ))))
    {
        if (m_manner.outlastsLeave)
        {
            End();
        }
        else
        {
            Forget();
        }
        if (COnBoardUIGeneral::InOnBoardMode())
        {
            if (::GetCapture() == m_window.GetSafeHwnd())
            {
                ::ReleaseCapture();
            }
            if (alive)
            {
                CancelNcLeave(m_window);
            }
        }
        if (alive && Follow())
        {
            DrawBars();
        }
    }
    return alive ? Default() : 0;
}

void BarHost::CutOff()
{
    const WindowAlive alive(m_window);
    End();
    Default();
    if (alive && Follow())
    {
        DrawBars();
    }
}

void BarHost::Enable(bool enable)
{
    const WindowAlive alive(m_window);
    if (!enable)
    {
        End();
    }
    Default();
    if (alive && Follow())
    {
        DrawBars();
    }
}

void BarHost::Show(bool show)
{
    if (!show)
    {
        End();
    }
    Default();
}

// Holds and drags -------------------------------------------------------------------------------

void BarHost::Tick(UINT_PTR timer)
{
    const bool wait = m_manner.waitTimer != nullptr && timer == *m_manner.waitTimer;
    if (!wait && timer != m_manner.repeatTimer)
    {
        Default();
        return;
    }
    if (!FollowOrPass())
    {
        return;
    }
    const WindowAlive alive(m_window);
    const bool down = LeftButtonDown();
    if (wait || !down)
    {
        m_window.KillTimer(timer);
    }
    if (!down)
    {
        End(); // released somewhere else, where no message told of it
    }
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (down && alive && Repeats(PartOf(axis)))
        {
            Step(axis, CodeOf(PartOf(axis)));
            if (wait && alive && Repeats(PartOf(axis)))
            {
                SetTimer(m_manner.repeatTimer, m_manner.repeatPeriod);
            }
        }
    }
    if (alive)
    {
        DrawStep();
    }
}

void BarHost::NcMouseMove(CPoint screen, bool drags)
{
    const WindowAlive alive(m_window);
    Default();
    if (alive && drags)
    {
        m_window.ScreenToClient(&screen);
        Move(screen);
    }
}

// Relative: the thumb follows the pointer's movement, not its place. A finger that slides on a held
// arrow is not dragging.
void BarHost::Drag(const CPoint& point)
{
    const CPoint moved = point - m_lastPoint;
    m_lastPoint = point;
    const WindowAlive alive(m_window);
    if (!Follow() || !IsDragging() || (m_lastHit != HTVSCROLL && m_lastHit != HTHSCROLL))
    {
        return;
    }
    const int axis = m_lastHit == HTVSCROLL ? SB_VERT : SB_HORZ;
    CFauxScrollBar* const bar = BarOf(axis);
    if (bar == nullptr)
    {
        return;
    }
    const int before = bar->GetScrollPos();
    const int after = DragThumb(*bar, Along(axis, moved));
    if (after != before)
    {
        Dragged(axis, before, after);
    }
    if (alive)
    {
        DrawStep();
    }
}

} // namespace scroll
