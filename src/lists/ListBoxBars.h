#pragma once

// What the list box does in its own way with its bars: a press becomes scroll messages to itself.

#include "CustomListBox.h"
#include "lists/KeptSize.h"
#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"
#include "scroll/Filling.h"
#include "scroll/ScrollCodes.h"

#include <vector>

class CCustomListBox::Bars final : public scroll::BarHost
{
public:
    explicit Bars(CCustomListBox& list)
        : BarHost(list, {.repeatTimer = m_timerid,
                         .repeatPeriod = m_timerperiod,
                         .waitTimer = &m_timerInitialWaitID,
                         .waitPeriod = &m_timerInitialWaitPeriod})
        , size(list, *this)
        , m_list(list)
    {}

    scroll::Filling filling{*this};
    bool endsFilling = false;
    lists::KeptSize size;

    // As the standard mode had it, to be given back as long as nobody has changed it meanwhile: the
    // heights of rows that differ, and the place sideways (pixels, or the first row of columns)
    // with the bar's position for it.
    std::vector<int> standardHeights;
    int standardPlace = 0;
    int placeBar = 0;
    bool givesPlaceBack = false; // and has not yet
    int scrolledPixels = 0;      // sideways, in the standard mode
    bool layingOut = false;      // so that a new size is not the host's

    // Before the font that comes with another mode: which rows are in sight. Until the list has its
    // place, too, the platform may have to scroll them away.
    void KeepRows();
    void ForgetRows() { m_topRow = m_caretRow = -1; }

    // The rest of entering or leaving a mode, in the new frame.
    void Finish();

    // Of the standard mode. The platform takes its bars away from rows that fit, but only when
    // their range changes; one beside columns, which go on to the right alone, has none that would.
    void TakeNeedlessBars();

    // WM_SIZE in a place that no change of the mode waits for.
    void Sized();

    LRESULT Default() override { return m_list.Default(); }
    LRESULT Ask(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return m_list.DefWindowProc(message, wParam, lParam);
    }

private:
    CCustomListBox& m_list;
    int m_topRow = -1; // in sight before a change of the mode
    int m_caretRow = -1;

    void ShowKeptRows();
    void FinishEntering();
    void FinishLeaving();

    void EndPlatformPress() override;
    void EnterOnBoard() override { m_list.EnterOnBoard(); }
    void LeaveOnBoard() override { m_list.LeaveOnBoard(); }
    void LayOut() override;
    void Foresee(const CSize& window) override;

    CFauxScrollBar* BarOf(int axis) override { return &m_list.Bar(axis); }
    void StripBars() override { m_list.DisableScrollBars(); }
    void PlaceBars() override { m_list.ResizeOBScrollBars(); }
    void DrawBars() override { m_list.DrawOBScrollBars(); }
    void DrawFrame() override
    {
        const WindowAlive alive(m_list);
        m_list.DrawOBBorders();
        if (alive)
        {
            DrawBars();
        }
    }
    bool IsPainted(int axis) override
    {
        return IsShown(axis) && !(axis == SB_VERT && m_list.m_vBarSuppressed);
    }

    bool& Held() override { return m_list.m_tracking; }
    Part& PartOf(int axis) override
    {
        return axis == SB_VERT ? m_list.m_vPressed : m_list.m_hPressed;
    }
    void PressAxis(int axis) override
    {
        axis == SB_VERT ? m_list.ProcessVScroll() : m_list.ProcessHScroll();
    }
    void Move(const CPoint& point) override { m_list.HandleMouseMoveScroll(point); }
    void Step(int axis, int code) override
    {
        m_list.SendMessage(scroll::MessageOf(axis), WPARAM(code));
    }
    void Dragged(int axis, int, int after) override
    {
        const WindowAlive alive(m_list);
        DrawBars();
        if (alive)
        {
            m_list.SendMessage(scroll::MessageOf(axis), MAKEWPARAM(SB_THUMBPOSITION, after));
        }
    }
};
