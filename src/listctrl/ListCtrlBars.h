#pragma once

// What the report list does in its own way with its bars: a press scrolls the drawing at once, by
// the virtual functions of the list, and an arrow repeats after a longer wait.

#include "AppMode.h"
#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "scroll/BarHost.h"
#include "scroll/Filling.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

#include <optional>

class CCustomListCtrl::Bars final : public scroll::BarHost
{
public:
    explicit Bars(CCustomListCtrl& list)
        : BarHost(list, {.repeatTimer = m_timerid,
                         .repeatPeriod = m_timerperiod,
                         .waitTimer = &m_timerInitialWaitID,
                         .waitPeriod = &m_timerInitialWaitPeriod,
                         .waits = true,
                         .outlastsLeave = false})
        , m_list(list)
    {}

    scroll::Filling filling{*this};

    // For another window. pressedIn is set by each press, and editsLabels where the header is left,
    // of which the platform is told.
    void BeginAfresh()
    {
        BarHost::BeginAfresh();
        filling.BeginAfresh();
        viewDue = false;
        themeFontDue = false;
        labelRow = -1;
        labelAwaited = false;
        viewSet = false;
        stepsBack = false;
        hinting = false;
    }

    // What the mode before had in sight is still to be brought back.
    bool viewDue = false;
    // The next font of the standard mode is that of a restyling, which the headings do not share.
    bool themeFontDue = false;
    // The mode in which a button of the pointer last went down on the rows; of the left one until
    // it comes up.
    std::optional<APPMODE> pressedIn;
    // A finger that was down while the mode changed lies on whatever came there.
    bool IsPressOfOtherMode() const
    {
        return pressedIn && *pressedIn != COnBoardUIGeneral::GetAppMode();
    }
    // Its label was clicked, and is edited unless a second click comes before the timer does.
    int labelRow = -1;
    bool labelAwaited = false; // the button has come up over it
    UINT_PTR LabelTimer() const { return reinterpret_cast<UINT_PTR>(this); } // no heir's
    // The platform has been told of a view by LVM_SETVIEW, and understands it.
    bool viewSet = false;
    // The platform's list knows of LVS_EDITLABELS.
    bool editsLabels = true;
    // The list makes a step that nobody has chosen: what is kept in sight stays so.
    bool stepsBack = false;
    // The owner is being told of the rows that are about to be painted.
    bool hinting = false;

    LRESULT Default() override { return m_list.Default(); }
    LRESULT Ask(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return m_list.Ask(message, wParam, lParam);
    }
    // The part under the pointer.
    Part& PartOf(int axis) override { return axis == SB_VERT ? m_list.m_vPart : m_list.m_hPart; }

private:
    CCustomListCtrl& m_list;

    bool IsReady() override { return !m_list.m_creating; }
    void EnterOnBoard() override { m_list.EnterOnBoard(); }
    void LeaveOnBoard() override { m_list.LeaveOnBoard(); }
    void LayOut() override;
    void Foresee(const CSize& window) override;

    CFauxScrollBar* BarOf(int axis) override { return &m_list.Bar(axis); }
    void PlaceBars() override { m_list.ResizeOBScrollBars(); }
    void DrawBars() override { m_list.DrawBars(); }
    void DrawStep() override { m_list.DrawScrollBars(); }
    void DrawFrame() override { m_list.DrawNC(); }
    // What is under the pointer while its button is down for it, and a thumb wherever the pointer
    // is. A press somewhere else does not tell that the pointer has left the bar.
    Part DrawnPart(int axis) override
    {
        if (IsDragging())
        {
            return LastHit() == scroll::HitCodeOf(axis) ? HeldPart() : CFauxScrollBar::PRESSED_NONE;
        }
        const bool pressed = HeldPart() != CFauxScrollBar::PRESSED_NONE && scroll::LeftButtonDown();
        return Held() || pressed ? PartOf(axis) : CFauxScrollBar::PRESSED_NONE;
    }

    bool& Held() override { return m_list.m_pressed; }
    Part PartHit(int axis) override { return PartOf(axis); }
    // A press on the right arrow is not held: it is meant, and such a list relies on it.
    bool Holds(int axis, Part part) override
    {
        return axis == SB_VERT || part != CFauxScrollBar::PRESSED_SECOND;
    }
    void PressAxis(int axis) override
    {
        const WindowAlive alive(m_list);
        axis == SB_VERT ? m_list.ProcessVScroll() : m_list.ProcessHScroll();
        if (alive)
        {
            m_list.DrawScrollBars(); // also for an heir that presses in its own way
        }
    }
    void Move(const CPoint& point) override { m_list.HandleMouseMoveScroll(point); }
    void Step(int axis, int code) override
    {
        axis == SB_VERT ? m_list.PerformVScroll(code) : m_list.PerformHScroll(code);
    }
    void Dragged(int axis, int before, int after) override
    {
        axis == SB_VERT ? m_list.PerformVScroll(after, before)
                        : m_list.PerformHScroll(after, before);
    }
};
