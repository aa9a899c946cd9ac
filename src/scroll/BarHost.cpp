// The controls with faux bars: following the display mode, frame and painting.

#include "scroll/BarHost.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"
#include "modes/ModeFollowing.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"

#include <utility>

namespace scroll {

BarHost::BarHost(CWnd& window, const Manner& manner)
    : m_window(window)
    , m_manner(manner)
{}

// Life and mode ---------------------------------------------------------------------------------

void BarHost::BeginAfresh()
{
    m_onBoard = m_following = m_awaitsPlace = false;
    m_painting = m_paintsAll = m_clientDue = false;
    m_platformStyles = 0;
    Forget();
    m_timed = m_leaveRequested = false;
    m_lastHit = 0;
    HideBars();
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (CFauxScrollBar* const bar = BarOf(axis))
        {
            bar->SetArea(CRect(0, 0, 0, 0));
        }
    }
    InvalidateBars();
}

bool BarHost::Follow()
{
    if (m_part != CFauxScrollBar::PRESSED_NONE && COnBoardUIGeneral::GetAppMode() != m_mode)
    {
        End(); // a change between two on-board modes sends no message either
    }
    if (m_window.GetSafeHwnd() != nullptr && !m_following)
    {
        // What it is about to follow lays it out anew.
        const WindowAlive alive(m_window);
        m_onBoard == COnBoardUIGeneral::InOnBoardMode() ? SettlePlace() : EndPlatformPress();
        if (!alive)
        {
            return false;
        }
    }
    if (m_window.GetSafeHwnd() == nullptr || !IsReady())
    {
        return InOnBoard();
    }
    return FollowMode(
        m_window, m_onBoard, m_following, [this] { EnterOnBoard(); }, [this] { LeaveOnBoard(); });
}

// The beginning of a handler: outside the on-board modes the message is the platform's and done
// with.
bool BarHost::FollowOrPass()
{
    const WindowAlive alive(m_window);
    const bool onBoard = Follow();
    if (alive && !onBoard)
    {
        Default();
    }
    return onBoard;
}

bool BarHost::InOnBoard() const
{
    return m_onBoard && COnBoardUIGeneral::InOnBoardMode();
}

int BarHost::Create()
{
    // The platform decides here, by its style, whether it will ever work a bar of its own. In an
    // on-board mode the frame has taken the styles away already.
    const WindowAlive alive(m_window);
    GivePlatformBars();
    if (!alive)
    {
        return -1;
    }
    const int result = int(Default());
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        StripBars();
    }
    return result;
}

void BarHost::Destroy()
{
    End();
    m_onBoard = m_awaitsPlace = false; // nothing is laid out any more
    m_following = true;
    Default();
}

// Frame -----------------------------------------------------------------------------------------

void BarHost::TakePlatformBars()
{
    const WindowAlive alive(m_window);
    const DWORD had = StripScrollStyles(m_window, m_manner.styles); // tells heirs and hooks of it
    if (alive)
    {
        m_platformStyles |= had;
    }
}

void BarHost::GivePlatformBars()
{
    RestoreScrollStyles(m_window, m_platformStyles);
}

void BarHost::HideBars()
{
    m_frameDone = false;
    m_placingDue = true;
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (CFauxScrollBar* const bar = BarOf(axis))
        {
            bar->ShowScrollBar(FALSE);
            bar->SetScrollRange(0, 0);
        }
    }
}

void BarHost::TellSize()
{
    CRect client;
    m_window.GetClientRect(&client);
    Ask(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
}

void BarHost::RelayoutFrame()
{
    CRect before;
    m_window.GetClientRect(&before);
    const WindowAlive alive(m_window);
    RecalculateFrame(m_window, false);
    CRect client;
    if (alive)
    {
        m_window.GetClientRect(&client);
    }
    if (alive && client == before) // else the platform has told it
    {
        TellSize();
    }
}

void BarHost::NcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params, const CSize& inset)
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    // The platform puts its styles back whenever the content changes.
    const WindowAlive alive(m_window);
    StripBars();
    if (alive && m_manner.platformFirst)
    {
        Default();
    }
    if (!alive)
    {
        return;
    }
    if (calcValidRects && params != nullptr)
    {
        TakeBands(params->rgrc[0], inset, IsShown(SB_VERT), IsShown(SB_HORZ));
    }
    m_frameDone = true;
    m_frame.Note(m_window);
    m_placingDue = true; // a paint of the frame may come before the new size is told
    if (!m_manner.platformFirst)
    {
        Default();
    }
}

// The platform shows the bar that its content asks for by adding the style and recalculating the
// frame. Taking the style away again here saves the recalculation, row after row.
void BarHost::WindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(m_window);
    Default();
    if (position == nullptr)
    {
        return;
    }
    // In the place the platform may still show bars of its own.
    const bool frameAlone = alive && ChangesFrameAlone(*position);
    if (alive && InOnBoard() && m_frameDone && (m_window.GetStyle() & m_manner.styles) != 0)
    {
        StripBars();
        if (alive)
        {
            m_frame.SaveRecalculation(m_window, *position);
        }
    }
    if (alive && m_awaitsPlace && !m_following && !frameAlone && !IsPlaceToCome(m_window))
    {
        position->flags |= SWP_FRAMECHANGED;
        Foresee((position->flags & SWP_NOSIZE) != 0 ? AreaOf(m_window).Size()
                                                    : CSize(position->cx, position->cy));
    }
}

void BarHost::NcPaint(const MSG& message)
{
    const WindowAlive alive(m_window);
    const auto updated = reinterpret_cast<HRGN>(message.wParam);
    if (!FollowOrPass())
    {
        return;
    }
    if (m_placingDue)
    {
        PlaceBars();
    }
    if (alive && TouchesFrame(m_window, updated))
    {
        InvalidateBars();
        m_paintsAll = m_painting && updated == reinterpret_cast<HRGN>(1);
        DrawFrame();
        if (alive)
        {
            m_paintsAll = false;
        }
    }
}

// Place -----------------------------------------------------------------------------------------

void BarHost::LayOutInPlace()
{
    m_awaitsPlace = IsBeingPlaced(m_window);
    if (!m_awaitsPlace)
    {
        LayOut();
    }
}

bool BarHost::TakePlace()
{
    // For a mode that is over nothing is laid out: the control is about to follow the next one.
    const bool came = m_awaitsPlace && !m_following &&
                      m_onBoard == COnBoardUIGeneral::InOnBoardMode() && !IsPlaceToCome(m_window);
    m_awaitsPlace = m_awaitsPlace && !came;
    return came;
}

bool BarHost::IsSizePassing() const
{
    return m_following ? IsBeingPlaced(m_window) : m_awaitsPlace && IsPlaceToCome(m_window);
}

void BarHost::SettlePlace(bool asked)
{
    if (m_awaitsPlace && !m_following && (asked || !IsBeingPlaced(m_window)))
    {
        m_awaitsPlace = false;
        LayOut();
    }
}

// Painting --------------------------------------------------------------------------------------

bool BarHost::IsShown(int axis)
{
    const CFauxScrollBar* const bar = BarOf(axis);
    return bar != nullptr && bar->ShowScrollBar() != 0;
}

bool BarHost::ShowBar(int axis, bool shown)
{
    if (IsShown(axis) == shown)
    {
        return false;
    }
    BarOf(axis)->ShowScrollBar(shown);
    m_placingDue = true;
    return m_frameDone;
}

void BarHost::InvalidateBars()
{
    m_vPainter.Invalidate();
    m_hPainter.Invalidate();
}

BarHost::Part BarHost::DrawnPart(int axis)
{
    return Held() ? PartOf(axis) : CFauxScrollBar::PRESSED_NONE;
}

bool BarHost::DrawBar(int axis, bool force)
{
    return InOnBoard() && m_window.GetSafeHwnd() != nullptr &&
           PainterOf(axis).Draw(m_window, *BarOf(axis), DrawnPart(axis), force);
}

void BarHost::DrawBar(CDC& dc, int axis)
{
    PainterOf(axis).DrawTo(dc, m_window, *BarOf(axis), DrawnPart(axis));
}

void BarHost::InvalidateClient()
{
    m_clientDue = m_clientDue || m_paintsAll;
    if (!m_paintsAll)
    {
        m_window.Invalidate();
    }
}

void BarHost::EndPaint()
{
    m_painting = false;
    if (std::exchange(m_clientDue, false))
    {
        m_window.Invalidate();
    }
}

void BarHost::DrawBorder(CPen& pen, HGDIOBJ brush, COLORREF corner)
{
    if (!IsFrameSeen(m_window))
    {
        return;
    }
    OwnContext dc(m_window, OwnContext::Whole);
    if (!dc)
    {
        return;
    }
    const CRect frame = AreaOf(m_window);
    // Only round the client area: a frame narrower than the pen must not be painted over rows, and
    // what lies in it is painted in its own time.
    dc.ExcludeClipRect(ClientRectInWindow(m_window));
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (IsPainted(axis))
        {
            dc.ExcludeClipRect(BarOf(axis)->GetArea());
        }
    }
    dc.FillSolidRect(frame, palette::Outline); // the pen leaves the corners out
    {
        const Selected outline(dc, pen);
        const Selected ground(dc, brush);
        dc.Rectangle(frame);
    }
    if (IsShown(SB_VERT) && IsShown(SB_HORZ))
    {
        // Where the two bands meet belongs to neither bar.
        CRect meeting(BarOf(SB_VERT)->GetArea().left, BarOf(SB_HORZ)->GetArea().top, frame.right,
                      frame.bottom);
        meeting.DeflateRect(metrics::Border, metrics::Border);
        dc.FillSolidRect(meeting, corner);
    }
}

} // namespace scroll
