// The list box: fonts, frame, layout of the bars, painting, and following the display mode.

#include "CustomListBox.h"

#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/ControlFonts.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"

namespace {

// The platform's own timer message; the list box scrolls by it while a selection is dragged out.
constexpr UINT SystemTimer = 0x0118;

} // namespace

IMPLEMENT_DYNAMIC(CCustomListBox, CListBox)

BEGIN_MESSAGE_MAP(CCustomListBox, CListBox)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_MESSAGE(WM_NCMOUSELEAVE, &CCustomListBox::OnNCMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_UPDATEUISTATE()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_CAPTURECHANGED()
    ON_WM_CANCELMODE()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_TIMER()
    ON_MESSAGE(LB_ADDSTRING, &CCustomListBox::OnAddString)
    ON_MESSAGE(LB_ADDFILE, &CCustomListBox::OnAddString)
    ON_MESSAGE(LB_INSERTSTRING, &CCustomListBox::OnInsertString)
    ON_MESSAGE(LB_DELETESTRING, &CCustomListBox::OnDeleteString)
    ON_MESSAGE(LB_RESETCONTENT, &CCustomListBox::OnResetContent)
    ON_MESSAGE(LB_DIR, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(LB_SETCOUNT, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(LB_SETITEMHEIGHT, &CCustomListBox::OnRowsMeasured)
    ON_MESSAGE(LB_SETCOLUMNWIDTH, &CCustomListBox::OnRowsMeasured)
    ON_MESSAGE(WM_SETFONT, &CCustomListBox::OnSetFont)
    ON_MESSAGE(WM_SETREDRAW, &CCustomListBox::OnSetRedraw)
    ON_MESSAGE(WM_CHAR, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(SystemTimer, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETTOPINDEX, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETCURSEL, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETSEL, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SELECTSTRING, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETCARETINDEX, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETHORIZONTALEXTENT, &CCustomListBox::OnSetHorizontalExtent)
    ON_MESSAGE(LB_GETHORIZONTALEXTENT, &CCustomListBox::OnGetHorizontalExtent)
END_MESSAGE_MAP()

UINT CCustomListBox::m_timerid = 101;
UINT CCustomListBox::m_timerperiod = 130;
UINT CCustomListBox::m_timerInitialWaitID = 104;
UINT CCustomListBox::m_timerInitialWaitPeriod = 300;
CPen CCustomListBox::m_OutlinePen;
CFont CCustomListBox::m_OBFont;
CFont CCustomListBox::m_StdFont;

CCustomListBox::CCustomListBox()
    : m_frameWidth(::GetSystemMetrics(SM_CXFRAME))
    , m_frameHeight(::GetSystemMetrics(SM_CYFRAME))
    , m_vBar(SB_VERT)
    , m_hBar(SB_HORZ)
    , m_vPainter(std::make_unique<scroll::BarPainter>())
    , m_hPainter(std::make_unique<scroll::BarPainter>())
{
    if (m_OutlinePen.GetSafeHandle() == nullptr)
    {
        CreateOnBoardOutlinePen(m_OutlinePen, palette::Outline);
    }
    // Hidden until the content asks for them.
    m_vBar.ShowScrollBar(FALSE);
    m_hBar.ShowScrollBar(FALSE);
}

CCustomListBox::~CCustomListBox() = default;

CFont& CCustomListBox::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, SmallOnBoardFont);
}

CFont& CCustomListBox::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

// Following the display mode --------------------------------------------------------------------

void CCustomListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    BeginAfresh();
    // A list box that exists already gets no message by which it would notice the mode.
    if (COnBoardUIGeneral::InOnBoardMode() && IsWindowVisible())
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
    }
}

// An object may get another window, and whatever the last one was in the middle of is over.
void CCustomListBox::BeginAfresh()
{
    // Asked now: later the platform takes the style of a bar that it does not show.
    m_platformBars = GetStyle() & (WS_VSCROLL | WS_HSCROLL);
    m_hostExtent = 0;
    m_averageWidth = 0;
    m_made = m_onBoard = m_following = m_refitting = false;
    m_standardKnown = !COnBoardUIGeneral::InOnBoardMode();
    m_tracking = m_leaveRequested = false;
    m_vPressed = m_hPressed = CFauxScrollBar::PRESSED_NONE;
    m_lastNcHit = 0;
    m_filling = m_endPosted = m_redrawKnown = false;
    m_hostRedraw = true;
    HideBars();
    m_vPainter->Invalidate();
    m_hPainter->Invalidate();
}

void CCustomListBox::HideBars()
{
    m_ncSizeDone = false;
    m_resizePending = true;
    m_widths.clear();
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        Needed(axis) = false;
        Bar(axis).ShowScrollBar(FALSE);
        Bar(axis).SetScrollRange(0, 0);
    }
}

int CCustomListBox::OnCreate(LPCREATESTRUCT cs)
{
    // The platform decides here, by its style, whether it will ever work a bar of its own. In an
    // on-board mode the frame has taken the styles away already.
    const WindowAlive alive(*this);
    scroll::RestoreScrollStyles(*this, m_platformBars);
    if (!alive)
    {
        return -1;
    }
    const int result = CListBox::OnCreate(cs);
    if (alive)
    {
        m_made = true;
        // Only a list made by us is known to paint at once, unless it was made not to.
        m_redrawKnown = (GetStyle() & LBS_NOREDRAW) == 0;
        m_standardKnown = !COnBoardUIGeneral::InOnBoardMode();
        if (COnBoardUIGeneral::InOnBoardMode())
        {
            DisableScrollBars();
        }
    }
    return result;
}

bool CCustomListBox::FollowMode()
{
    if (m_tracking && COnBoardUIGeneral::GetAppMode() != m_trackedIn)
    {
        EndTracking(); // a change between two on-board modes sends no message either
    }
    if (m_following || GetSafeHwnd() == nullptr)
    {
        return COnBoardUIGeneral::InOnBoardMode();
    }
    const WindowAlive alive(*this);
    // The parent is asked on the way and may change the mode again: the list follows it back, but
    // not for ever.
    for (int change = 0; change < 2 && alive && COnBoardUIGeneral::InOnBoardMode() != m_onBoard;
         ++change)
    {
        m_following = true;
        m_onBoard = !m_onBoard;
        if (m_onBoard)
        {
            EnterOnBoard();
        }
        else
        {
            LeaveOnBoard();
        }
        if (alive)
        {
            m_following = false;
        }
    }
    return alive && m_onBoard && COnBoardUIGeneral::InOnBoardMode();
}

namespace {

CSize SizeOf(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect.Size();
}

} // namespace

void CCustomListBox::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_hostExtent = Ask(LB_GETHORIZONTALEXTENT);
    m_stdSize = SizeOf(*this);
    m_stdItemHeight = m_standardKnown ? Ask(LB_GETITEMHEIGHT) : 0;
    m_averageWidth = 0;
    SCROLLINFO sideways = {};
    sideways.cbSize = sizeof(sideways);
    sideways.fMask = SIF_POS;
    // Columns are asked for their place afterwards.
    const bool scrolled = !InColumns() && (GetStyle() & WS_HSCROLL) != 0 &&
                          ::GetScrollInfo(GetSafeHwnd(), SB_HORZ, &sideways) && sideways.nPos > 0;
    DisableScrollBars();
    if (alive && !m_made && (m_platformBars & WS_HSCROLL) == 0 && !InColumns())
    {
        // The platform had taken the style of a bar that it did not show before this object came.
        // A list made with it shows the bar as soon as there is something to see.
        Ask(LB_SETHORIZONTALEXTENT, WPARAM(MaxOffset));
        if (alive)
        {
            DisableScrollBars();
        }
        if (alive)
        {
            Ask(LB_SETHORIZONTALEXTENT, WPARAM(m_hostExtent));
        }
    }
    if (alive)
    {
        MeasureRows();
    }
    if (!alive)
    {
        return;
    }
    CountAllWidths();
    scroll::RecalculateFrame(*this, false);
    if (!alive)
    {
        return;
    }
    ResizeOBScrollBars();
    if (alive && scrolled)
    {
        // Rows that all fit now go back to their beginning.
        m_hBar.SetScrollPos(sideways.nPos / AverageCharWidth(), TRUE);
        MoveContent(SB_HORZ);
    }
    if (alive)
    {
        MirrorContent();
        m_onBoardSize = SizeOf(*this);
    }
}

void CCustomListBox::LeaveOnBoard()
{
    const WindowAlive alive(*this);
    // The platform cuts a list to whole rows whenever its frame changes; unless the host has sized
    // it since, it gets back what it had.
    const bool givesSizeBack = m_stdItemHeight > 0 && SizeOf(*this) == m_onBoardSize;
    EndTracking();
    HideBars();
    m_standardKnown = true;
    if (m_stdItemHeight > 0 && (GetStyle() & LBS_OWNERDRAWFIXED) != 0)
    {
        Ask(LB_SETITEMHEIGHT, 0, m_stdItemHeight); // as the host had it
    }
    else
    {
        MeasureRows();
    }
    if (!alive)
    {
        return;
    }
    scroll::RestoreScrollStyles(*this, m_platformBars);
    if (alive)
    {
        Ask(LB_SETHORIZONTALEXTENT, WPARAM(m_hostExtent));
    }
    if (!alive)
    {
        return;
    }
    scroll::RecalculateFrame(*this, false);
    if (alive && givesSizeBack && SizeOf(*this) != m_stdSize)
    {
        SetWindowPos(nullptr, 0, 0, m_stdSize.cx, m_stdSize.cy,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!alive)
    {
        return;
    }
    // The platform's list box sets its own bars up again when its size is told.
    CRect client;
    GetClientRect(&client);
    Ask(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
    }
}

void CCustomListBox::DisableScrollBars()
{
    const WindowAlive alive(*this);
    const DWORD had = scroll::StripScrollStyles(*this); // tells heirs and hooks of the change
    if (alive)
    {
        m_platformBars |= had;
    }
}

void CCustomListBox::OnDestroy()
{
    EndTracking();
    CListBox::OnDestroy();
}

// Frame -----------------------------------------------------------------------------------------

void CCustomListBox::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    // The platform's list box puts its styles back whenever its content changes.
    const WindowAlive alive(*this);
    DisableScrollBars();
    if (!alive)
    {
        return;
    }
    if (calcValidRects)
    {
        scroll::TakeBands(params->rgrc[0],
                          CSize(m_frameWidth - metrics::Border, m_frameHeight - metrics::Border),
                          m_vBar.ShowScrollBar() != 0, m_hBar.ShowScrollBar() != 0);
    }
    m_ncSizeDone = true;
    m_resizePending = true; // a paint of the frame may come before the new size is told
    Default();
}

void CCustomListBox::OnWindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    CListBox::OnWindowPosChanging(position);
    // The platform shows the bar that its content asks for by adding the style and recalculating
    // the frame. Taking the style away again here saves the recalculation, row after row.
    constexpr UINT frameOnly = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED;
    if (alive && m_onBoard && COnBoardUIGeneral::InOnBoardMode() && m_ncSizeDone &&
        (GetStyle() & (WS_VSCROLL | WS_HSCROLL)) != 0)
    {
        DisableScrollBars();
        if ((position->flags & frameOnly) == frameOnly)
        {
            position->flags &= ~UINT(SWP_FRAMECHANGED);
        }
    }
}

void CCustomListBox::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CListBox::OnSize(type, width, height);
    if (!alive || !FollowMode())
    {
        return;
    }
    ResizeOBScrollBars();
    if (alive)
    {
        MirrorContent();
        DrawOBBorders();
        DrawOBScrollBars();
    }
}

void CCustomListBox::ResizeOBScrollBars()
{
    m_resizePending = false;
    const CRect client = scroll::ClientRectInWindow(*this);
    m_vBar.SetArea(scroll::BarArea(SB_VERT, client));
    m_hBar.SetArea(scroll::BarArea(SB_HORZ, client));
    UpdateScrollData();
}

void CCustomListBox::ReCheckScrollBars()
{
    const WindowAlive alive(*this);
    if (!FollowMode())
    {
        return;
    }
    DisableScrollBars();
    if (alive)
    {
        CountAllWidths();
    }
    if (alive)
    {
        ResizeOBScrollBars();
    }
    if (alive)
    {
        MirrorContent();
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnShowWindow(BOOL show, UINT status)
{
    if (!show)
    {
        EndTracking();
    }
    CListBox::OnShowWindow(show, status);
}
