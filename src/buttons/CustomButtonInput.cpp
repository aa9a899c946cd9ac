// The buttons' pointer, capture, focus and keys, and the messages by which programs work them.

#include "CustomButton.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "modes/PressAndHold.h"
#include "modes/WindowAlive.h"

// Mouse -----------------------------------------------------------------------------------------

LRESULT CCustomButton::OnQueryGestures(WPARAM, LPARAM screen)
{
    return AnswerGestures(*this, Refused::Everywhere, screen, [this] { return Default(); });
}

void CCustomButton::OnLButtonDown(UINT, CPoint)
{
    if (!EndOutOfReach() || !FollowOrPass())
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
    const auto onBoard = EndOutOfReach() ? FollowMode() : std::nullopt;
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
            const HWND window = m_hWnd;
            OnBMClick(0, 0);
            if (!alive)
            {
                // The window may be another's by now, who knows nothing of this press.
                if (::GetCapture() == window)
                {
                    ::ReleaseCapture();
                }
                return;
            }
        }
        EndTracking();
    }
    if (alive)
    {
        m_mouseDown = false;
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
    if (!EndOutOfReach() || !FollowOrPass())
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

// The button's own messages ---------------------------------------------------------------------

LRESULT CCustomButton::OnBMClick(WPARAM, LPARAM)
{
    LRESULT answer = 0;
    if (!FollowOrPass(&answer))
    {
        return answer;
    }
    const WindowAlive alive(*this);
    HandleBMClick();
    if (alive && !m_focused)
    {
        SetFocus();
    }
    if (alive)
    {
        NotifyParentClicked();
    }
    return 0;
}

LRESULT CCustomButton::OnBMSetCheck(WPARAM wParam, LPARAM)
{
    LRESULT answer = 0;
    if (FollowOrPass(&answer) && SurvivesEnd())
    {
        ChangeCheck(int(wParam));
    }
    return answer;
}

LRESULT CCustomButton::OnBMSetState(WPARAM wParam, LPARAM)
{
    LRESULT answer = 0;
    if (!FollowOrPass(&answer) || !SurvivesEnd())
    {
        return answer;
    }
    const bool changes = m_pressed != (wParam != 0);
    m_pressed = wParam != 0;
    if (GetSafeHwnd() == nullptr)
    {
        return 0;
    }
    const WindowAlive alive(*this); // the platform tells assistive programs
    // A press of the standard mode that the mode change cut off leaves the platform's button
    // pushed.
    if (!m_pressed && (DefWindowProc(BM_GETSTATE, 0, 0) & BST_PUSHED) != 0)
    {
        DefWindowProc(BM_SETSTATE, FALSE, 0);
    }
    if (alive)
    {
        Invalidate(FALSE);
    }
    if (alive && changes)
    {
        access::Tell(m_hWnd, EVENT_OBJECT_STATECHANGE);
    }
    return 0;
}

LRESULT CCustomButton::OnBMGetCheck(WPARAM, LPARAM)
{
    LRESULT answer = 0;
    return FollowOrPass(&answer) ? m_check : answer;
}

LRESULT CCustomButton::OnBMGetState(WPARAM, LPARAM)
{
    LRESULT answer = 0;
    return FollowOrPass(&answer) ? LRESULT(m_pressed) : answer;
}

// On-board kept as every window keeps its text: the platform's button would show it.
LRESULT CCustomButton::OnSetText(WPARAM wParam, LPARAM lParam)
{
    LRESULT answer = FALSE;
    if (!FollowOrPass(&answer))
    {
        return answer;
    }
    const WindowAlive alive(*this);
    answer = ::DefWindowProc(m_hWnd, WM_SETTEXT, wParam, lParam);
    if (alive)
    {
        DrawOB();
    }
    return answer;
}
