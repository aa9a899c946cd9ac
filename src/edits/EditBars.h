#pragma once

// What the edit does in its own way with its bar: a press becomes scroll messages that wait their
// turn, and the text follows a thumb line by line. A horizontal bar stays the platform's.

#include "CustomEdit.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "scroll/BarHost.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>
#include <utility>

class CCustomEdit::Bars final : public scroll::BarHost
{
public:
    explicit Bars(CCustomEdit& edit)
        : BarHost(edit, {.repeatTimer = m_timerid,
                         .repeatPeriod = m_timerperiod,
                         .platformFirst = true,
                         .styles = WS_VSCROLL})
        , m_edit(edit)
    {}

    // The platform breaks all lines several times over for one font. Meanwhile the client area is
    // so wide that there is nothing to break; an edit that is about to get another place breaks
    // them only there.
    LRESULT SetFont()
    {
        const WindowAlive alive(m_edit);
        ForgetPlace();
        if (!m_unbroken && Wraps())
        {
            NoteSight();
            m_unbroken = true;
            m_placed = false;
            scroll::RecalculateFrameUnpainted(m_edit);
        }
        else if (!m_unbroken && IsBeingPlaced(m_edit))
        {
            NoteSight(); // which the next font may hold back in the old place
        }
        const LRESULT result = alive ? Default() : 0;
        if (alive && m_unbroken)
        {
            LayOutInPlace();
        }
        return result;
    }

    // Between the two: there is no layout to follow.
    bool IsUnbroken() const { return m_unbroken; }

    // WM_NCCALCSIZE: whether the client area is to be too wide for a line to be broken, which ends
    // with the first frame of a new place.
    bool KeepsUnbroken()
    {
        if (std::exchange(m_placed, false))
        {
            m_unbroken = false;
            ForgetPlace();
        }
        return m_unbroken;
    }

    // Somebody has chosen what is in sight since.
    void ForgetFirstLine() { m_firstLine = -1; }

    // WM_SIZE: the lines are broken, and the first one in sight is what it was, unless the caret's
    // has to come into sight again.
    void RestoreFirstLine()
    {
        if (m_unbroken || m_firstLine < 0 || IsPlaceToCome(m_edit))
        {
            return;
        }
        const WindowAlive alive(m_edit);
        const int line = std::exchange(m_firstLine, -1);
        if (const int now = m_edit.FirstLine(); now != line)
        {
            Ask(EM_LINESCROLL, 0, line - now);
        }
        if (!alive || m_caret < 0)
        {
            return;
        }
        const View view = m_edit.CurrentView();
        const int caret = int(Ask(EM_LINEFROMCHAR, WPARAM(m_caret), 0));
        if (caret < view.first || caret > view.last)
        {
            Ask(EM_LINESCROLL, 0, caret - (caret < view.first ? view.first : view.last));
        }
    }

    void ForgetUnbroken()
    {
        m_unbroken = m_placed = false;
        m_firstLine = -1;
    }

    LRESULT Default() override { return m_edit.Default(); }
    LRESULT Ask(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return m_edit.Ask(message, wParam, lParam);
    }

private:
    CCustomEdit& m_edit;
    Part m_noPart = CFauxScrollBar::PRESSED_NONE; // of the bar that there is not
    bool m_unbroken = false; // the client area is too wide for a line to be broken
    bool m_placed = false;   // the next frame is that of a new place
    int m_firstLine = -1;    // in sight before that
    int m_caret = -1;        // its character, if it was in sight, too

    void NoteSight()
    {
        const View view = m_edit.CurrentView();
        DWORD end = 0;
        Ask(EM_GETSEL, 0, LPARAM(&end));
        const int line = int(Ask(EM_LINEFROMCHAR, end, 0));
        m_firstLine = view.first;
        m_caret = IsBeingPlaced(m_edit) && line >= view.first && line <= view.last ? int(end) : -1;
    }

    // Whether there are lines that a width breaks.
    bool Wraps()
    {
        return (m_edit.GetStyle() & (ES_MULTILINE | ES_AUTOHSCROLL)) == ES_MULTILINE &&
               Ask(WM_GETTEXTLENGTH, 0, 0) > 0;
    }

    bool IsReady() override { return m_edit.IsReady(); }
    // A press in the text. The platform would go on selecting to whatever letter the other mode
    // lays under the pointer. Past our own handler, which offers the keyboard.
    void EndPlatformPress() override
    {
        if (::GetCapture() == m_edit.GetSafeHwnd())
        {
            Ask(WM_LBUTTONUP, 0, 0);
        }
    }
    void EnterOnBoard() override { m_edit.EnterOnBoard(); }
    void LeaveOnBoard() override { m_edit.LeaveOnBoard(); }
    void Foresee(const CSize&) override
    {
        const WindowAlive alive(m_edit);
        Follow(); // now, so that its frame is the new one's
        if (alive)
        {
            m_placed = true; // unless the frame is kept from it
        }
    }
    // Breaks the lines.
    void LayOut() override
    {
        const WindowAlive alive(m_edit);
        Follow();
        if (!alive)
        {
            return;
        }
        m_unbroken = m_placed = false;
        scroll::RecalculateFrameUnpainted(m_edit);
        if (alive)
        {
            m_edit.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
        }
    }

    CFauxScrollBar* BarOf(int axis) override { return axis == SB_VERT ? &m_edit.m_bar : nullptr; }
    void DrawBars() override { m_edit.DrawOBScrollBars(); }
    void DrawFrame() override
    {
        // A thin frame and a horizontal bar stay the platform's.
        const WindowAlive alive(m_edit);
        if (HasPlatformFrame(m_edit) || (m_edit.GetStyle() & WS_HSCROLL) != 0)
        {
            Default();
        }
        if (alive)
        {
            m_edit.DrawOBNC();
        }
    }

    bool& Held() override { return m_edit.m_scrolling; }
    Part& PartOf(int axis) override { return axis == SB_VERT ? m_edit.m_lastHit : m_noPart; }
    void PressAxis(int) override { m_edit.ProcessVScroll(); }
    void PressBeside(UINT hitTest) override
    {
        if (hitTest == HTHSCROLL && (m_edit.GetStyle() & WS_HSCROLL) != 0)
        {
            Default();
        }
    }
    void Step(int axis, int code) override
    {
        // Of a long drag more steps may wait than the system lets wait.
        if (!m_edit.PostMessage(scroll::MessageOf(axis), WPARAM(code)))
        {
            m_edit.SendMessage(scroll::MessageOf(axis), WPARAM(code));
        }
    }
    void Dragged(int axis, int before, int after) override
    {
        // The bar has positions past the end of the text: coming back out of them scrolls nothing.
        const int end = m_edit.m_lastTop;
        const WindowAlive alive(m_edit);
        for (int line = std::min(after, end); alive && line < std::min(before, end); ++line)
        {
            Step(axis, SB_LINEUP);
        }
        for (int line = before; alive && line < after; ++line)
        {
            Step(axis, SB_LINEDOWN);
        }
    }
    // The bar may stand past the end of the text, or the text was changed under the thumb: it is
    // compared once the steps that still wait are done.
    void DragEnded() override { m_edit.PostMessage(WM_VSCROLL, SB_ENDSCROLL); }
};
