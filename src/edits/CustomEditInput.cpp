// The edit: presses on its bar, holds, drags, keys and the on-screen keyboard.

#include "CustomEdit.h"
#include "EFB.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>

namespace {

constexpr UINT CopyCharacter = 0x03;   // Ctrl+C
constexpr UINT DeleteCharacter = 0x7F; // Ctrl+Backspace

bool ControlDown()
{
    return ::GetKeyState(VK_CONTROL) < 0;
}

bool IsFlightBag(APPMODE mode)
{
    return mode == EFB || mode == EFBFS;
}

} // namespace

// Presses ---------------------------------------------------------------------------------------

LRESULT CCustomEdit::OnNcHitTest(CPoint point)
{
    const LRESULT hit = Default();
    if (hit == HTNOWHERE && FollowMode() && m_barShown)
    {
        return LRESULT(m_bar.GetHitTest(scroll::ScreenToWindow(*this, point)));
    }
    return hit;
}

void CCustomEdit::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

// Fast touches on an arrow arrive as double clicks; each of them scrolls.
void CCustomEdit::OnNcLButtonDblClk(UINT hitTest, CPoint point)
{
    PressNc(hitTest, point);
}

void CCustomEdit::PressNc(UINT hitTest, const CPoint& screen)
{
    const WindowAlive alive(*this);
    if (!FollowMode())
    {
        if (alive)
        {
            Default();
        }
        return;
    }
    m_lastPoint = screen; // a drag starts here, also when a touch came without a move before it
    if (hitTest == HTVSCROLL)
    {
        ProcessVScroll();
    }
    else if (hitTest == HTHSCROLL && (GetStyle() & WS_HSCROLL) != 0)
    {
        Default(); // that bar is the platform's
    }
}

void CCustomEdit::ProcessVScroll()
{
    m_lastHit = m_bar.GetLastHit();
    const int code = scroll::CodeOf(m_lastHit);
    if (code == scroll::NoCode)
    {
        return;
    }
    m_scrolling = true;
    m_trackedIn = COnBoardUIGeneral::GetAppMode();
    if (DraggingThumb())
    {
        m_leaveRequested = true;
        scroll::RequestNcLeave(*this);
    }
    else
    {
        PostMessage(WM_VSCROLL, WPARAM(code));
    }
    if (scroll::Repeats(m_lastHit))
    {
        SetTimer(m_timerid, m_timerperiod, nullptr);
    }
    DrawOBScrollBars();
}

// The one way out of a press, however it ends.
void CCustomEdit::EndTracking()
{
    m_lastHit = CFauxScrollBar::PRESSED_NONE;
    if (!m_scrolling)
    {
        return;
    }
    m_scrolling = false;
    if (GetSafeHwnd() == nullptr)
    {
        return;
    }
    KillTimer(m_timerid);
    if (m_leaveRequested)
    {
        m_leaveRequested = false;
        scroll::CancelNcLeave(*this);
    }
}

void CCustomEdit::OnNcLButtonUp(UINT, CPoint)
{
    const WindowAlive alive(*this);
    if (DraggingThumb())
    {
        // The bar has positions past the end of the text; the text is on its way to its end.
        m_bar.SetScrollPos(std::min(m_bar.GetScrollPos(), m_lastTop));
    }
    EndTracking();
    if (FollowMode())
    {
        if (::GetCapture() == GetSafeHwnd())
        {
            ::ReleaseCapture();
        }
        if (alive)
        {
            DrawOBScrollBars();
        }
    }
    if (alive)
    {
        Default();
    }
}

LRESULT CCustomEdit::OnNCMouseLeave(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    m_leaveRequested = false;
    // A held arrow goes on until its button is released, wherever the pointer is by then.
    if (DraggingThumb())
    {
        EndTracking();
        if (FollowMode())
        {
            FollowText(); // a bar past the end of the text comes back to it
        }
    }
    return alive ? Default() : 0;
}

void CCustomEdit::OnCaptureChanged(CWnd* taker)
{
    const WindowAlive alive(*this);
    EndTracking();
    CEdit::OnCaptureChanged(taker);
    if (alive)
    {
        DrawOBScrollBars();
    }
}

void CCustomEdit::OnCancelMode()
{
    const WindowAlive alive(*this);
    EndTracking();
    CEdit::OnCancelMode();
    if (alive)
    {
        DrawOBScrollBars();
    }
}

void CCustomEdit::OnTimer(UINT_PTR id)
{
    const WindowAlive alive(*this);
    if (id != m_timerid || !FollowMode())
    {
        if (alive)
        {
            Default();
        }
        return;
    }
    if (!scroll::LeftButtonDown())
    {
        EndTracking(); // released somewhere else, where no message told of it
        KillTimer(m_timerid);
    }
    else if (scroll::Repeats(m_lastHit))
    {
        PostMessage(WM_VSCROLL, WPARAM(scroll::CodeOf(m_lastHit)));
    }
    DrawOBScrollBars();
}

// Drags -----------------------------------------------------------------------------------------

bool CCustomEdit::DraggingThumb() const
{
    return m_scrolling && m_lastHit == CFauxScrollBar::PRESSED_THUMB;
}

void CCustomEdit::OnNcMouseMove(UINT hitTest, CPoint point)
{
    const WindowAlive alive(*this);
    CEdit::OnNcMouseMove(hitTest, point);
    if (!alive)
    {
        return;
    }
    if (FollowMode() && DraggingThumb())
    {
        DragThumb(point.y - m_lastPoint.y);
    }
    if (alive)
    {
        m_lastPoint = point;
    }
}

// Relative: the thumb follows the pointer's movement, not its place. The text follows line by line.
void CCustomEdit::DragThumb(int pixels)
{
    const int before = m_bar.GetScrollPos();
    m_bar.IncrementScrollByPixels(pixels);
    const int after = m_bar.GetScrollPos();
    // The bar has positions past the end of the text: coming back out of them scrolls nothing.
    const int lost = std::min(before, m_lastTop) - std::min(after, m_lastTop);
    for (int line = 0; line < lost; ++line)
    {
        PostMessage(WM_VSCROLL, SB_LINEUP);
    }
    for (int line = before; line < after; ++line)
    {
        PostMessage(WM_VSCROLL, SB_LINEDOWN);
    }
    DrawOBScrollBars();
}

// The text and the on-screen keyboard -----------------------------------------------------------

void CCustomEdit::OnLButtonDown(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        SetFocus();
    }
    if (alive)
    {
        CEdit::OnLButtonDown(flags, point);
    }
}

void CCustomEdit::OnLButtonUp(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    EndTracking();
    CEdit::OnLButtonUp(flags, point);
    if (!alive)
    {
        return;
    }
    if (FollowMode())
    {
        DrawOBScrollBars();
        OfferKeyboard();
    }
}

void CCustomEdit::OfferKeyboard()
{
    const WindowAlive alive(*this);
    // Hidden first: a keyboard that is there already has to come afresh for this edit.
    for (const bool show : {false, true})
    {
        if (alive && !m_fauxReadOnly && m_efb != nullptr &&
            IsFlightBag(COnBoardUIGeneral::GetAppMode()))
        {
            m_efb->ShowVKB(show, VKB_FOR_EDIT, GetSafeHwnd());
        }
    }
}

void CCustomEdit::OnContextMenu(CWnd* window, CPoint point)
{
    if (!FollowMode())
    {
        CEdit::OnContextMenu(window, point);
    }
}

void CCustomEdit::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (m_fauxReadOnly && character != CopyCharacter)
    {
        return;
    }
    const WindowAlive alive(*this);
    CEdit::OnChar(character, repeat, flags);
    if (alive && character == DeleteCharacter)
    {
        EmptyText();
    }
}

void CCustomEdit::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    const bool copies =
        ControlDown() && (key == 'C' || (key == VK_INSERT && ::GetKeyState(VK_SHIFT) >= 0));
    if (m_fauxReadOnly && !copies && key != VK_CONTROL)
    {
        return;
    }
    const WindowAlive alive(*this);
    CEdit::OnKeyDown(key, repeat, flags);
    // The code of the character is F16's as a key: it is meant that this key empties the text too.
    if (alive && key == DeleteCharacter)
    {
        EmptyText();
    }
}

// As a user would, so that the parent is told and it can be undone.
void CCustomEdit::EmptyText()
{
    if ((GetStyle() & ES_READONLY) != 0)
    {
        return;
    }
    const WindowAlive alive(*this);
    SetSel(0, -1, TRUE);
    if (alive)
    {
        ReplaceSel("", TRUE);
    }
}
