#pragma once

// What the edit does in its own way with its bar: a press becomes scroll messages that wait their
// turn, and the text follows a thumb line by line. A horizontal bar stays the platform's.

#include "CustomEdit.h"
#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>

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

    LRESULT Default() override { return m_edit.Default(); }
    LRESULT Ask(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return m_edit.Ask(message, wParam, lParam);
    }

private:
    CCustomEdit& m_edit;
    Part m_noPart = CFauxScrollBar::PRESSED_NONE; // of the bar that there is not

    bool IsReady() override { return m_edit.IsReady(); }
    void EnterOnBoard() override { m_edit.EnterOnBoard(); }
    void LeaveOnBoard() override { m_edit.LeaveOnBoard(); }

    CFauxScrollBar* BarOf(int axis) override { return axis == SB_VERT ? &m_edit.m_bar : nullptr; }
    void DrawBars() override { m_edit.DrawOBScrollBars(); }
    void DrawFrame() override
    {
        // A thin border and a horizontal bar stay the platform's.
        const WindowAlive alive(m_edit);
        if ((m_edit.GetStyle() & (WS_BORDER | WS_HSCROLL)) != 0)
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
        m_edit.PostMessage(scroll::MessageOf(axis), WPARAM(code));
    }
    void Dragged(int axis, int before, int after) override
    {
        // The bar has positions past the end of the text: coming back out of them scrolls nothing.
        const int end = m_edit.m_lastTop;
        for (int line = std::min(after, end); line < std::min(before, end); ++line)
        {
            Step(axis, SB_LINEUP);
        }
        for (int line = before; line < after; ++line)
        {
            Step(axis, SB_LINEDOWN);
        }
    }
};
