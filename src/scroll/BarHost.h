#pragma once

#include "FauxScrollBar.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"

#include <afxwin.h>

namespace scroll {

// The half that the controls with faux bars have in common: it follows the display mode, keeps the
// platform's bars away, makes room for wide ones and paints them, and tells what a press on one of
// them means until it ends. A control keeps one, hands its messages on to it and supplies what is
// its own in the virtual functions.
//
// An axis is SB_VERT or SB_HORZ, a point is in client coordinates unless it is said otherwise.
// Any of them may leave our code and end the window, the control and this object.
class BarHost
{
public:
    using Part = CFauxScrollBar::ePRESSED;

    // What the controls do each in its way. The timers are the control's public ones, asked each
    // time; periods are in milliseconds.
    struct Manner
    {
        const UINT& repeatTimer;
        const UINT& repeatPeriod;
        const UINT* waitTimer = nullptr; // a longer wait before the first repeat; null: none
        const UINT* waitPeriod = nullptr;
        bool waits = false;         // a press on an arrow begins with that wait
        bool outlastsLeave = true;  // a held arrow goes on when the pointer leaves the frame
        bool platformFirst = false; // the platform's frame is taken off before the bands
        DWORD styles = WS_VSCROLL | WS_HSCROLL; // the platform's bars that are not to be seen
    };

    BarHost(CWnd& window, const Manner& manner);
    virtual ~BarHost() = default;
    BarHost(const BarHost&) = delete;
    BarHost& operator=(const BarHost&) = delete;

    // The message in progress, and a message past every handler of ours, for the platform.
    virtual LRESULT Default() = 0;
    virtual LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) = 0;

    // Life and mode ------------------------------------------------------------------------------

    // The control has another window, and whatever the last one was in the middle of is over.
    void BeginAfresh();
    // WM_CREATE and WM_DESTROY.
    int Create();
    void Destroy();
    // Lays the window out for the mode of the moment when it is still laid out for the other kind.
    // Returns whether it is laid out for an on-board mode and has survived: the first question of
    // every handler. A press ends here when the mode has changed, which is told by no message.
    bool Follow();
    bool IsFollowing() const { return m_following; }
    // Laid out for an on-board mode; and the mode still is one.
    bool IsLaidOut() const { return m_onBoard; }
    bool InOnBoard() const;

    // Frame --------------------------------------------------------------------------------------

    // The platform's bars that the window was made with or got since, to be given back.
    DWORD PlatformStyles() const { return m_platformStyles; }
    void SetPlatformStyles(DWORD styles) { m_platformStyles = styles; }
    // Takes them away, and gives them back; the frame is not recalculated.
    void TakePlatformBars();
    void GivePlatformBars();
    // Hides the bars, without range, until the content asks for them.
    void HideBars();
    // Whether the on-board frame has been calculated, and whether the bars are to be placed again.
    bool IsFrameDone() const { return m_frameDone; }
    bool IsPlacingDue() const { return m_placingDue; }
    void SetPlacingDue(bool due) { m_placingDue = due; }
    // Has the platform lay the window out again, which it does when it is told a size.
    void TellSize();
    // The frame recalculated, and then that.
    void RelayoutFrame();

    void NcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params, const CSize& inset);
    void WindowPosChanging(WINDOWPOS* position);
    void NcPaint(const MSG& message);

    // Place --------------------------------------------------------------------------------------

    // A control that gets its font and then its place for another mode (IsBeingPlaced) is laid out
    // in its place alone: the end of following the mode, or of taking the font, for as long as that
    // has not come.
    void LayOutInPlace();
    bool AwaitsPlace() const { return m_awaitsPlace; }
    // WM_SIZE, after the platform: whether the place has come by that, and the rest is to be done
    // in its frame.
    bool TakePlace();
    // A size on the way to the mode, where the one that counts is still to come.
    bool IsSizePassing() const;
    // Lays out what waits for a place that does not come any more; in the place of the moment if
    // somebody asks for the layout or changes it.
    void SettlePlace(bool asked = false);

    // Painting -----------------------------------------------------------------------------------

    bool IsShown(int axis);
    // Shows a bar or hides it; whether the frame is to be recalculated for that.
    bool ShowBar(int axis, bool shown);
    // What is on the screen is gone or out of date.
    void InvalidateBars();
    // Paints a bar that looks different from what is on the screen; true when it was painted.
    bool DrawBar(int axis, bool force = false);
    // Paints a bar through a context that somebody else has, with the origin of the whole window.
    void DrawBar(CDC& dc, int axis);
    // @{
    // WM_PAINT, from before it begins. The frame is drawn as it begins, and drawing it invalidates
    // the client area: one that is painted and erased as a whole then would be painted twice.
    void BeginPaint() { m_painting = true; }
    void Erased() { m_clientDue = false; }
    void EndPaint();
    void InvalidateClient();
    // @}
    // The frame round the client area and the bars, and the corner where two bands meet.
    void DrawBorder(CPen& pen, HGDIOBJ brush, COLORREF corner);

    // Presses ------------------------------------------------------------------------------------

    // The hit code of the bar under a point of the screen; 0: none.
    UINT HitBar(const CPoint& screen);
    // WM_NCLBUTTONDOWN, and WM_NCLBUTTONDBLCLK: fast touches on an arrow arrive as double clicks,
    // and each of them scrolls.
    void PressNc(UINT hitTest, const CPoint& screen);
    // A press on a bar, by the part that is under the pointer.
    void Press(int axis);
    // The part that is held down, and whether it is a thumb.
    Part HeldPart() const { return m_part; }
    bool IsDragging() { return m_part == CFauxScrollBar::PRESSED_THUMB && Held(); }
    UINT LastHit() const { return m_lastHit; } // hit code of the last press

    // The pointer moved outside the client area (a point of the screen); and drags what it holds.
    void NcMouseMove(CPoint screen, bool drags = true);
    void Drag(const CPoint& point);
    // A tick of the timers above; any other is the platform's.
    void Tick(UINT_PTR timer);

    // The one way out of a press, however it ends.
    void End();
    // Nothing is held any more; a timer sees by itself that the button is up.
    void Forget();
    void CancelLeave();
    // Messages by which a press ends, with what the platform does on them.
    void NcButtonUp();
    LRESULT NcMouseLeave();
    void CutOff(); // the capture or the whole interaction is taken away
    void Enable(bool enable);
    void Show(bool show);

protected:
    // Whether the platform's control is there to be laid out.
    virtual bool IsReady() { return true; }
    // Before the control is laid out for the other kind of mode: what the platform is in the middle
    // of goes no further. It may end the window.
    virtual void EndPlatformPress() {}
    virtual void EnterOnBoard() = 0;
    virtual void LeaveOnBoard() = 0;
    // The frame, and the rest of the layout.
    virtual void LayOut() = 0;
    // The place has come: its frame, for a window of this size, is about to be calculated.
    virtual void Foresee(const CSize& window) = 0;
    void ForgetPlace() { m_awaitsPlace = false; }

    // A bar of the control; null: it has none of that axis.
    virtual CFauxScrollBar* BarOf(int axis) = 0;
    virtual void StripBars() { TakePlatformBars(); }
    virtual void PlaceBars() {}
    virtual void DrawFrame() = 0;
    virtual void DrawBars() = 0;
    // After a press, a step or a tick.
    virtual void DrawStep() { DrawBars(); }
    // Whether a bar that is shown is painted; and the part of it that looks pressed.
    virtual bool IsPainted(int axis) { return IsShown(axis); }
    virtual Part DrawnPart(int axis);

    // Where the control keeps what its heirs see of a press.
    virtual bool& Held() = 0;
    virtual Part& PartOf(int axis) = 0;
    // What is about to be pressed.
    virtual Part PartHit(int axis) { return BarOf(axis)->GetLastHit(); }
    // Whether a press on the part counts as held.
    virtual bool Holds(int, Part) { return true; }
    // A press in the frame beside the bars.
    virtual void PressBeside(UINT) { Default(); }
    // Presses and moves, by the way of the control's own virtual functions.
    virtual void PressAxis(int axis) = 0;
    virtual void Move(const CPoint& point) { Drag(point); }
    // A scroll code; and a thumb that was dragged from one position to another.
    virtual void Step(int axis, int code) = 0;
    virtual void Dragged(int axis, int before, int after) = 0;
    // A thumb is held no more. Must not leave our code.
    virtual void DragEnded() {}

private:
    bool FollowOrPass();
    BarPainter& PainterOf(int axis) { return axis == SB_VERT ? m_vPainter : m_hPainter; }
    void SetTimer(const UINT& timer, const UINT& period);

    CWnd& m_window;
    Manner m_manner;
    BarPainter m_vPainter;
    BarPainter m_hPainter;

    bool m_onBoard = false;   // laid out for an on-board mode
    bool m_following = false; // in Follow, or nothing is laid out any more
    bool m_awaitsPlace = false;
    DWORD m_platformStyles = 0;
    bool m_frameDone = false;
    FrameStyles m_frame;
    bool m_painting = false;
    bool m_paintsAll = false; // the frame is drawn for a paint of the whole window
    bool m_clientDue = false; // and the client area would not be erased for it
    bool m_placingDue = true;

    Part m_part = CFauxScrollBar::PRESSED_NONE;
    APPMODE m_mode = STD; // in which the press began
    UINT m_lastHit = 0;
    CPoint m_lastPoint; // of the pointer
    bool m_timed = false;
    bool m_leaveRequested = false;
};

} // namespace scroll
