// The list box: fonts, frame, layout of the bars, painting, and following the display mode.

#include "CustomListBox.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "lists/ListBoxBars.h"
#include "modes/ChildRestyling.h"
#include "modes/Meanwhile.h"
#include "modes/PressAndHold.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"
#include "scroll/NcBands.h"

#include <utility>

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
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomListBox::OnQueryGestures)
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_MESSAGE(WM_NCMOUSELEAVE, &CCustomListBox::OnNCMouseLeave)
    ON_WM_SETFOCUS()
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
    ON_WM_CHAR()
    ON_MESSAGE(SystemTimer, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETTOPINDEX, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETCURSEL, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETSEL, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_FINDSTRING, &CCustomListBox::OnFindString)
    ON_MESSAGE(LB_FINDSTRINGEXACT, &CCustomListBox::OnFindString)
    ON_MESSAGE(LB_SELECTSTRING, &CCustomListBox::OnSelectString)
    ON_MESSAGE(LB_SETCARETINDEX, &CCustomListBox::OnMayScroll)
    ON_MESSAGE(LB_SETHORIZONTALEXTENT, &CCustomListBox::OnSetHorizontalExtent)
    ON_MESSAGE(LB_GETHORIZONTALEXTENT, &CCustomListBox::OnGetHorizontalExtent)
    ON_MESSAGE(access::ActMessage, &CCustomListBox::OnAct)
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
    , m_bars(std::make_unique<Bars>(*this))
{
    EnableActiveAccessibility();
    MakeControlPen(m_OutlinePen, palette::Outline);
    m_bars->HideBars();
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
    ShowTakenOver(*this);
}

// An object may get another window, and whatever the last one was in the middle of is over.
void CCustomListBox::BeginAfresh()
{
    m_bars->BeginAfresh();
    // Asked now: later the platform takes the style of a bar that it does not show.
    m_bars->SetPlatformStyles(GetStyle() & (WS_VSCROLL | WS_HSCROLL));
    m_hostExtent = 0;
    m_averageWidth = 0;
    m_made = m_refitting = false;
    m_standardKnown = !COnBoardUIGeneral::InOnBoardMode();
    m_bars->filling.BeginAfresh();
    m_bars->givesPlaceBack = m_bars->layingOut = m_bars->endsFilling = false;
    m_bars->size.BeginAfresh();
    m_bars->ForgetRows();
    HideBars();
}

void CCustomListBox::HideBars()
{
    m_bars->HideBars();
    m_vBarNeeded = m_hBarNeeded = false;
    m_widths.clear();
}

int CCustomListBox::OnCreate(LPCREATESTRUCT)
{
    const WindowAlive alive(*this);
    const int result = m_bars->Create();
    if (alive)
    {
        m_made = true;
        // Only a list made by us is known to paint at once, unless it was made not to.
        m_bars->filling.SetRedrawKnown((GetStyle() & LBS_NOREDRAW) == 0);
        m_standardKnown = !COnBoardUIGeneral::InOnBoardMode();
    }
    return result;
}

bool CCustomListBox::FollowMode()
{
    return m_bars->Follow();
}

void CCustomListBox::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_hostExtent = Ask(LB_GETHORIZONTALEXTENT);
    m_bars->size.Keep(false, m_standardKnown);
    m_stdItemHeight = m_standardKnown ? Ask(LB_GETITEMHEIGHT) : 0;
    m_bars->standardHeights.clear();
    if (m_standardKnown && (GetStyle() & LBS_OWNERDRAWVARIABLE) != 0)
    {
        for (int row = 0; row < Ask(LB_GETCOUNT); ++row)
        {
            m_bars->standardHeights.push_back(Ask(LB_GETITEMHEIGHT, WPARAM(row)));
        }
    }
    m_averageWidth = 0;
    SCROLLINFO sideways = {};
    sideways.cbSize = sizeof(sideways);
    sideways.fMask = SIF_POS;
    // Columns are asked for their place afterwards.
    const bool scrolled = !InColumns() && (GetStyle() & WS_HSCROLL) != 0 &&
                          ::GetScrollInfo(GetSafeHwnd(), SB_HORZ, &sideways) && sideways.nPos > 0;
    // What the list was to get back in a place that has not come.
    const bool kept = m_bars->givesPlaceBack;
    const int pixels = kept ? m_bars->scrolledPixels : (scrolled ? sideways.nPos : 0);
    const int place = kept ? m_bars->standardPlace : (InColumns() ? Ask(LB_GETTOPINDEX) : pixels);
    DisableScrollBars();
    if (alive && !m_made && (m_bars->PlatformStyles() & WS_HSCROLL) == 0 && !InColumns())
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
    m_bars->standardPlace = place;
    m_bars->placeBar = m_hBar.GetScrollPos(); // until the list is in its place
    m_bars->scrolledPixels = pixels;
    m_bars->LayOutInPlace();
}

void CCustomListBox::Bars::LayOut()
{
    const WindowAlive alive(m_list);
    const Meanwhile now(m_list, layingOut);
    scroll::RecalculateFrame(m_list, false);
    if (alive)
    {
        Finish();
    }
}

void CCustomListBox::Bars::Sized()
{
    if (!IsBeingPlaced(m_list))
    {
        if (!IsFollowing() && !layingOut)
        {
            size.Sized();
        }
    }
    else if (!IsPlaceToCome(m_list))
    {
        size.GiveBack();
    }
}

void CCustomListBox::Bars::Finish()
{
    const WindowAlive alive(m_list);
    IsLaidOut() ? FinishEntering() : FinishLeaving();
    if (alive)
    {
        ShowKeptRows();
    }
}

void CCustomListBox::Bars::KeepRows()
{
    if (!IsPlaceToCome(m_list) || IsLaidOut() == COnBoardUIGeneral::InOnBoardMode() ||
        m_list.InColumns())
    {
        return;
    }
    CRect row;
    m_topRow = int(Ask(LB_GETTOPINDEX, 0, 0));
    m_caretRow = int(Ask(LB_GETCARETINDEX, 0, 0));
    if (!m_list.Exists(m_caretRow) || !m_list.IsInSight(m_caretRow, row))
    {
        m_caretRow = -1;
    }
}

// The first one, or as far down as brings the caret's into sight.
void CCustomListBox::Bars::ShowKeptRows()
{
    const int caret = m_caretRow;
    int top = m_topRow;
    ForgetRows();
    if (top < 0)
    {
        return;
    }
    const WindowAlive alive(m_list);
    CRect client;
    m_list.GetClientRect(&client);
    do
    {
        Ask(LB_SETTOPINDEX, WPARAM(top), 0);
    } while (alive && top++ < caret && m_list.RowRect(caret).bottom > client.bottom);
    if (alive && IsLaidOut())
    {
        m_list.MirrorContent();
        DrawBars();
    }
}

void CCustomListBox::Bars::FinishEntering()
{
    const WindowAlive alive(m_list);
    const auto goesOn = [&] { return alive && IsLaidOut(); }; // the mode may go back on the way
    m_list.ResizeOBScrollBars();
    if (goesOn() && scrolledPixels > 0)
    {
        // Rows that all fit now go back to their beginning.
        m_list.m_hBar.SetScrollPos(scrolledPixels / m_list.AverageCharWidth(), TRUE);
        placeBar = m_list.m_hBar.GetScrollPos();
        m_list.MoveContent(SB_HORZ);
    }
    if (goesOn())
    {
        m_list.MirrorContent();
        placeBar = m_list.m_hBar.GetScrollPos();
        size.GiveBack();
    }
}

void CCustomListBox::LeaveOnBoard()
{
    const WindowAlive alive(*this);
    m_bars->size.Keep(true, m_standardKnown);
    m_bars->givesPlaceBack = m_bars->standardPlace > 0 && m_hBar.GetScrollPos() == m_bars->placeBar;
    m_bars->End();
    HideBars();
    m_standardKnown = true;
    if (m_stdItemHeight > 0 && (GetStyle() & LBS_OWNERDRAWFIXED) != 0)
    {
        Ask(LB_SETITEMHEIGHT, 0, m_stdItemHeight); // as the host had it
    }
    else if (const auto heights = std::exchange(m_bars->standardHeights, {}); !heights.empty())
    {
        for (size_t row = 0; alive && row < heights.size(); ++row)
        {
            if (Ask(LB_GETITEMHEIGHT, row) != heights[row])
            {
                Ask(LB_SETITEMHEIGHT, row, heights[row]);
            }
        }
    }
    else
    {
        MeasureRows();
    }
    if (!alive)
    {
        return;
    }
    m_bars->GivePlatformBars();
    if (alive)
    {
        Ask(LB_SETHORIZONTALEXTENT, WPARAM(m_hostExtent));
    }
    if (alive)
    {
        m_bars->LayOutInPlace();
    }
}

void CCustomListBox::Bars::TakeNeedlessBars()
{
    DWORD needless = 0;
    for (const int axis : {SB_HORZ, SB_VERT})
    {
        SCROLLINFO info = {};
        info.cbSize = sizeof(info);
        info.fMask = SIF_RANGE | SIF_PAGE;
        if ((axis == SB_VERT && m_list.InColumns()) ||
            (::GetScrollInfo(m_list, axis, &info) &&
             info.nMax - info.nMin < std::max(1, int(info.nPage))))
        {
            needless |= scroll::StyleOf(axis);
        }
    }
    const WindowAlive alive(m_list);
    if ((m_list.GetStyle() & LBS_DISABLENOSCROLL) == 0 &&
        scroll::StripScrollStyles(m_list, needless) != 0 && alive)
    {
        scroll::RecalculateFrame(m_list, false);
    }
}

void CCustomListBox::Bars::FinishLeaving()
{
    const WindowAlive alive(m_list);
    const auto goesOn = [&] { return alive && !IsLaidOut(); }; // the mode may come back on the way
    TakeNeedlessBars();
    if (goesOn())
    {
        size.GiveBack();
    }
    if (goesOn() && std::exchange(givesPlaceBack, false))
    {
        const LONGLONG place = std::min<LONGLONG>(standardPlace, MaxOffset);
        m_list.InColumns() ? Ask(LB_SETTOPINDEX, WPARAM(standardPlace), 0)
                           : Ask(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, place), 0);
    }
    if (goesOn())
    {
        TellSize();
    }
    if (goesOn())
    {
        m_list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
    }
}

void CCustomListBox::DisableScrollBars()
{
    m_bars->TakePlatformBars();
}

void CCustomListBox::OnDestroy()
{
    m_bars->Destroy();
}

// Frame -----------------------------------------------------------------------------------------

void CCustomListBox::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    m_bars->NcCalcSize(calcValidRects, params,
                       CSize(m_frameWidth - metrics::Border, m_frameHeight - metrics::Border));
}

void CCustomListBox::OnWindowPosChanging(WINDOWPOS* position)
{
    const WindowAlive alive(*this);
    m_bars->WindowPosChanging(position);
    if (alive && IsPlaceToCome(*this))
    {
        m_bars->size.Keep(m_bars->IsLaidOut(), m_standardKnown);
    }
}

void CCustomListBox::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CListBox::OnSize(type, width, height);
    if (!alive || m_bars->IsSizePassing())
    {
        return;
    }
    const bool came = m_bars->TakePlace();
    if (came)
    {
        m_bars->Finish(); // by now the platform may have cut the list to whole rows
    }
    if (alive && FollowMode())
    {
        ResizeOBScrollBars();
        if (alive)
        {
            MirrorContent();
            DrawOBBorders();
        }
        if (alive)
        {
            DrawOBScrollBars();
        }
    }
    if (alive && !came)
    {
        m_bars->Sized(); // with the bars that it calls for
    }
}

void CCustomListBox::ResizeOBScrollBars()
{
    m_bars->SetPlacingDue(false);
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

void CCustomListBox::OnShowWindow(BOOL show, UINT)
{
    m_bars->Show(show != FALSE);
}
