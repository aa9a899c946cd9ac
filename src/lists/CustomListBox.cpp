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
#include "scroll/ScrollCodes.h"

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
    ON_MESSAGE(LB_INSERTSTRING, &CCustomListBox::OnInsertString)
    ON_MESSAGE(LB_DELETESTRING, &CCustomListBox::OnDeleteString)
    ON_MESSAGE(LB_RESETCONTENT, &CCustomListBox::OnResetContent)
    ON_MESSAGE(LB_DIR, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(LB_ADDFILE, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(LB_SETCOUNT, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(LB_SETITEMHEIGHT, &CCustomListBox::OnContentReplaced)
    ON_MESSAGE(WM_SETFONT, &CCustomListBox::OnSetFont)
    ON_MESSAGE(WM_SETREDRAW, &CCustomListBox::OnSetRedraw)
    ON_MESSAGE(WM_CHAR, &CCustomListBox::OnMayScroll)
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
    // A list box that exists already gets no message by which it would notice the mode.
    if (COnBoardUIGeneral::InOnBoardMode() && IsWindowVisible())
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
    }
}

int CCustomListBox::OnCreate(LPCREATESTRUCT cs)
{
    // The platform decides here, by its style, whether it will ever work a bar of its own. In an
    // on-board mode the frame has taken the styles away already.
    const WindowAlive alive(*this);
    scroll::RestoreScrollStyles(*this, m_platformBars);
    const int result = CListBox::OnCreate(cs);
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        DisableScrollBars();
    }
    return result;
}

// Lays the window out for the mode of the moment when it is still laid out for the other kind.
// Returns whether the mode is on-board: the first question of every handler.
bool CCustomListBox::FollowMode()
{
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    if (onBoard != m_onBoard && !m_following && GetSafeHwnd() != nullptr)
    {
        m_following = true;
        m_onBoard = onBoard;
        if (onBoard)
        {
            EnterOnBoard();
        }
        else
        {
            LeaveOnBoard();
        }
        m_following = false;
    }
    return onBoard;
}

void CCustomListBox::EnterOnBoard()
{
    m_hostExtent = Ask(LB_GETHORIZONTALEXTENT);
    DisableScrollBars();
    MeasureRows();
    CountAllWidths();
    m_resizePending = true;
    scroll::RecalculateFrame(*this, false);
    ResizeOBScrollBars();
    MirrorContent();
}

void CCustomListBox::LeaveOnBoard()
{
    EndTracking();
    m_ncSizeDone = false;
    m_resizePending = true;
    m_vBarNeeded = false;
    m_hBarNeeded = false;
    m_vBar.ShowScrollBar(FALSE);
    m_hBar.ShowScrollBar(FALSE);
    m_widths.clear();
    MeasureRows();
    scroll::RestoreScrollStyles(*this, m_platformBars);
    m_platformBars = 0;
    Ask(LB_SETHORIZONTALEXTENT, WPARAM(m_hostExtent));
    scroll::RecalculateFrame(*this, false);
    // The platform's list box sets its own bars up again when its size is told.
    CRect client;
    GetClientRect(&client);
    Ask(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
}

void CCustomListBox::DisableScrollBars()
{
    m_platformBars |= scroll::StripScrollStyles(*this);
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
    DisableScrollBars();
    if (calcValidRects)
    {
        scroll::TakeBands(params->rgrc[0],
                          CSize(m_frameWidth - metrics::Border, m_frameHeight - metrics::Border),
                          m_vBar.ShowScrollBar() != 0, m_hBar.ShowScrollBar() != 0);
    }
    m_ncSizeDone = true;
    Default();
}

void CCustomListBox::OnWindowPosChanging(WINDOWPOS* position)
{
    CListBox::OnWindowPosChanging(position);
    // The platform shows the bar that its content asks for by adding the style and recalculating
    // the frame. Taking the style away again here saves the recalculation, row after row.
    constexpr UINT frameOnly = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED;
    if (m_onBoard && COnBoardUIGeneral::InOnBoardMode() && m_ncSizeDone &&
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
    CListBox::OnSize(type, width, height);
    if (FollowMode())
    {
        m_resizePending = true;
        ResizeOBScrollBars();
        MirrorContent();
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
    if (FollowMode())
    {
        DisableScrollBars();
        CountAllWidths();
        ResizeOBScrollBars();
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

// Painting --------------------------------------------------------------------------------------

void CCustomListBox::OnNcPaint()
{
    if (!FollowMode())
    {
        Default();
        return;
    }
    if (m_resizePending)
    {
        ResizeOBScrollBars();
    }
    if (!scroll::TouchesFrame(*this, reinterpret_cast<HRGN>(GetCurrentMessage()->wParam)))
    {
        return;
    }
    m_vPainter->Invalidate();
    m_hPainter->Invalidate();
    DrawOBBorders();
    DrawOBScrollBars();
}

void CCustomListBox::DrawOBBorders()
{
    CWindowDC dc(this);
    CRect frame;
    GetWindowRect(&frame);
    frame.OffsetRect(-frame.TopLeft());
    // Only round the client area: a frame narrower than the pen must not be painted over rows.
    dc.ExcludeClipRect(scroll::ClientRectInWindow(*this));
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (Needed(axis) && !(axis == SB_VERT && m_vBarSuppressed))
        {
            dc.ExcludeClipRect(Bar(axis).GetArea());
        }
    }
    dc.FillSolidRect(frame, palette::Outline);
    if (m_vBarNeeded && m_hBarNeeded)
    {
        // Where the two bands meet belongs to neither bar.
        CRect corner(m_vBar.GetArea().left, m_hBar.GetArea().top, frame.right, frame.bottom);
        corner.DeflateRect(metrics::Border, metrics::Border);
        dc.FillSolidRect(corner, palette::Panel);
    }
}

void CCustomListBox::DrawOBScrollBars()
{
    DrawOBVScrollBar();
    DrawOBHScrollBar();
}

void CCustomListBox::DrawOBVScrollBar()
{
    if (!m_vBarSuppressed)
    {
        DrawBar(SB_VERT);
    }
}

void CCustomListBox::DrawOBHScrollBar()
{
    DrawBar(SB_HORZ);
}

void CCustomListBox::DrawBar(int axis)
{
    if (m_onBoard && COnBoardUIGeneral::InOnBoardMode() && GetSafeHwnd() != nullptr)
    {
        scroll::BarPainter& painter = axis == SB_VERT ? *m_vPainter : *m_hPainter;
        painter.Draw(*this, Bar(axis), m_tracking ? Pressed(axis) : CFauxScrollBar::PRESSED_NONE);
    }
}

void CCustomListBox::OnEnable(BOOL enable)
{
    if (!enable)
    {
        EndTracking();
    }
    CListBox::OnEnable(enable);
    if (FollowMode())
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnUpdateUIState(UINT action, UINT element)
{
    CListBox::OnUpdateUIState(action, element);
}
