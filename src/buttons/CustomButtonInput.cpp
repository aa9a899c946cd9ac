// The buttons' pointer, capture, focus and keys.

#include "CustomButton.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/WindowAlive.h"

// Mouse -----------------------------------------------------------------------------------------

void CCustomButton::OnLButtonDown(UINT, CPoint)
{
    if (!FollowOrPass())
    {
        return;
    }
    const WindowAlive alive(*this);
    StartTracking();
    if (alive)
    {
        m_mouseDown = true;
    }
}

void CCustomButton::OnLButtonUp(UINT, CPoint point)
{
    const WindowAlive alive(*this);
    const bool inside = InButtonRect(point);
    const auto onBoard = FollowMode();
    if (!onBoard)
    {
        return;
    }
    if (!*onBoard)
    {
        Default();
    }
    else
    {
        if (m_tracking && inside)
        {
            OnBMClick(0, 0);
            if (!alive)
            {
                return;
            }
        }
        EndTracking();
        if (alive)
        {
            m_mouseDown = false;
        }
    }
    if (alive && inside)
    {
        HandleGroupClick();
    }
}

// A double click is a second press.
void CCustomButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CCustomButton::OnMouseMove(UINT, CPoint point)
{
    if (!FollowOrPass())
    {
        return;
    }
    if (m_tracking)
    {
        const bool inside = InButtonRect(point);
        if (inside != m_pressed)
        {
            m_pressed = inside; // meant: not drawn, the look of a held button stays
            access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE);
        }
    }
}

void CCustomButton::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    // The platform's button has presses of its own: those of the standard mode and the space key.
    Default();
    if (alive && taker != this && (m_tracking || m_spaceHeld))
    {
        EndTracking();
        if (alive && COnBoardUIGeneral::InOnBoardMode())
        {
            DrawOB();
        }
    }
}

void CCustomButton::OnCancelMode()
{
    if (FollowMode())
    {
        Default(); // releases the capture, and with it the press
    }
}

// Keyboard --------------------------------------------------------------------------------------

void CCustomButton::OnSetFocus(CWnd*)
{
    if (!FollowOrPass())
    {
        return;
    }
    m_focused = true;
    DrawOB();
}

void CCustomButton::OnKillFocus(CWnd*)
{
    if (!FollowOrPass())
    {
        return;
    }
    m_focused = false;
    if (SurvivesEnd())
    {
        DrawOB();
    }
}

void CCustomButton::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (!FollowOrPass())
    {
        return;
    }
    const WindowAlive alive(*this);
    HandleKeyDown(key, repeat, flags);
    if (alive && key == VK_SPACE)
    {
        m_spaceHeld = m_pressed && !m_tracking && ::GetCapture() == m_hWnd;
    }
}

// The platform's button takes the space key when it goes down, but it asks its own pushed state
// before it clicks, and that state is kept here: so the click is made here too.
void CCustomButton::OnKeyUp(UINT key, UINT, UINT)
{
    const auto onBoard = FollowMode();
    if (!onBoard)
    {
        return;
    }
    if (!*onBoard || !m_spaceHeld || key != VK_SPACE)
    {
        Default();
    }
    else if (SurvivesEnd())
    {
        OnBMClick(0, 0);
    }
}
