// The report list: fonts, life, frame and messages.

#include "CustomListCtrl.h"

#include "OnBoardUIGeneral.h"
#include "access/Answers.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListCtrlMessages.h"
#include "listctrl/ListLayout.h"
#include "modes/PressAndHold.h"
#include "modes/TakenOver.h"
#include "modes/WindowAlive.h"
#include "paint/Palette.h"
#include "paint/SharedObjects.h"
#include "scroll/NcBands.h"

#include <utility>

namespace {

constexpr LPARAM CommonControlsVersion = 5;

} // namespace

IMPLEMENT_DYNCREATE(CCustomListCtrl, CListCtrl)

BEGIN_MESSAGE_MAP(CCustomListCtrl, CListCtrl)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CCustomListCtrl::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_NCPAINT()
    ON_WM_NCCALCSIZE()
    ON_WM_SIZE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_STYLECHANGED()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_TABLET_QUERYSYSTEMGESTURESTATUS, &CCustomListCtrl::OnQueryGestures)
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_MESSAGE(WM_NCMOUSELEAVE, &CCustomListCtrl::OnNCMouseLeave)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSEHOVER, &CCustomListCtrl::OnMouseHover)
    ON_WM_MOUSEWHEEL()
    ON_WM_CANCELMODE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_TIMER()
    ON_MESSAGE(listctrl::SubclassHeaderMessage, &CCustomListCtrl::OnSubclassCustomHeader)
    ON_MESSAGE(access::ActMessage, &CCustomListCtrl::OnAct)
    ON_MESSAGE(listctrl::TakeBackMessage, &CCustomListCtrl::OnTakeBackPress)
    ON_MESSAGE(WM_SETREDRAW, &CCustomListCtrl::OnSetRedraw)
    ON_MESSAGE(LVM_INSERTCOLUMNA, &CCustomListCtrl::OnInsertColumn)
    ON_MESSAGE(LVM_INSERTCOLUMNW, &CCustomListCtrl::OnInsertColumn)
    ON_MESSAGE(LVM_DELETECOLUMN, &CCustomListCtrl::OnDeleteColumn)
    ON_MESSAGE(LVM_SETCOLUMNWIDTH, &CCustomListCtrl::OnSetColumnWidth)
    ON_MESSAGE(LVM_SETVIEW, &CCustomListCtrl::OnSetView)
    ON_MESSAGE(LVM_DELETEALLITEMS, &CCustomListCtrl::OnDeleteAllItems)
    ON_MESSAGE(LVM_EDITLABELA, &CCustomListCtrl::OnEditLabel)
    ON_MESSAGE(LVM_EDITLABELW, &CCustomListCtrl::OnEditLabel)
    ON_MESSAGE(LVM_ENSUREVISIBLE, &CCustomListCtrl::OnEnsureVisible)
    ON_MESSAGE(LVM_SCROLL, &CCustomListCtrl::OnScroll)
    ON_NOTIFY(HDN_TRACKA, 0, &CCustomListCtrl::OnHdnTrack)
    ON_NOTIFY(HDN_TRACKW, 0, &CCustomListCtrl::OnHdnTrack)
    ON_NOTIFY(HDN_ENDTRACKA, 0, &CCustomListCtrl::OnHdnEndtrack)
    ON_NOTIFY(HDN_ENDTRACKW, 0, &CCustomListCtrl::OnHdnEndtrack)
    ON_NOTIFY_REFLECT(LVN_INSERTITEM, &CCustomListCtrl::OnLvnInsertitem)
    ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CCustomListCtrl::OnLvnColumnclick)
END_MESSAGE_MAP()

UINT CCustomListCtrl::m_timerid = 101;
UINT CCustomListCtrl::m_timerperiod = 130;
UINT CCustomListCtrl::m_timerInitialWaitID = 104;
UINT CCustomListCtrl::m_timerInitialWaitPeriod = 300;
CPen CCustomListCtrl::m_OutlinePen;
CBrush CCustomListCtrl::m_OutlineBrush;
CFont CCustomListCtrl::m_OBFont;
CFont CCustomListCtrl::m_StdFont;

CCustomListCtrl::CCustomListCtrl()
    : m_vBar(SB_VERT)
    , m_hBar(SB_HORZ)
    , m_bars(std::make_unique<Bars>(*this))
{
    EnableActiveAccessibility();
    MakeControlPen(m_OutlinePen, palette::Outline);
    MakeControlBrush(m_OutlineBrush, palette::Outline);
    m_bars->HideBars();
}

CCustomListCtrl::~CCustomListCtrl()
{
    GetSafeHwnd() == nullptr ? LeaveHeader() : m_header.LeaveWindow();
}

CFont& CCustomListCtrl::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

CFont& CCustomListCtrl::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

void CCustomListCtrl::SetMinColWidth(int width)
{
    if (width >= 0)
    {
        m_minColWidth = width;
    }
}

CScrollBar* CCustomListCtrl::GetScrollBarCtrl(int bar) const
{
    const CFauxScrollBar* const faux = bar == SB_VERT   ? &m_vBar
                                       : bar == SB_HORZ ? &m_hBar
                                                        : nullptr;
    return reinterpret_cast<CScrollBar*>(const_cast<CFauxScrollBar*>(faux));
}

// A message for the platform's list alone, past the handlers of this class and its heirs.
LRESULT CCustomListCtrl::Ask(UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProc(message, wParam, lParam);
}

// The question of every handler: the window has followed the mode before the message came to it.
bool CCustomListCtrl::InOnBoard() const
{
    return m_bars->InOnBoard();
}

// Life ------------------------------------------------------------------------------------------

void CCustomListCtrl::PreSubclassWindow()
{
    const WindowAlive alive(*this);
    ForgetWindow();
    TakeHeader();
    if (m_header.GetSafeHwnd() == nullptr)
    {
        PostMessage(listctrl::SubclassHeaderMessage);
    }
    CListCtrl::PreSubclassWindow();
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        m_bars->TakePlatformBars();
    }
    else if (alive && AreColumnsScaled())
    {
        ScalePlatformColumns(false); // let go in an on-board mode
    }
    if (!alive)
    {
        return;
    }
    SendMessage(CCM_SETVERSION, WPARAM(CommonControlsVersion));
    if (alive)
    {
        ShowTakenOver(*this);
    }
}

// What belonged to a window before: one object may serve several, one after the other.
void CCustomListCtrl::ForgetWindow()
{
    m_bars->BeginAfresh();
    m_drawOffset = CPoint(0, 0);
    m_furtherOffset = CPoint(0, 0);
    m_scrollUnit = CSize(0, 0);
    m_wheel = 0;
    m_selChanging = FALSE;
    m_gridLines.Clear();
    m_creating = false;
    m_settling = false;
    m_fitting = false;
    m_activating = false;
    m_labelDue = false;
    m_fittedColumn = -1;
    m_columnWidths.clear();
    m_view.reset();
    m_paintedRows.reset();
    m_focusRow = -1;
    m_pressNote.reset();
    m_heldActivation.reset();
    m_pressedRow = -1;
    m_pressedTop = 0;
    m_measured = Measured();
    LeaveHeader();
}

// The header's window belongs to the list's, which may outlive this object or go on without it:
// then the platform's list knows again that its labels can be edited.
void CCustomListCtrl::LeaveHeader()
{
    const HWND list = m_header.ListWindow();
    const bool edits = std::exchange(m_bars->editsLabels, true);
    m_header.LeaveWindow();
    if (!edits && ::IsWindow(list))
    {
        const auto style = DWORD(::GetWindowLongPtr(list, GWL_STYLE));
        STYLESTRUCT styles = {style, style};
        ::SendMessage(list, WM_STYLECHANGED, WPARAM(GWL_STYLE), reinterpret_cast<LPARAM>(&styles));
    }
}

void CCustomListCtrl::TakeHeader()
{
    const WindowAlive alive(*this);
    const auto header = reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
    if (alive && m_header.GetSafeHwnd() == nullptr && ::IsWindow(header))
    {
        m_header.SubclassWindow(header);
    }
}

LRESULT CCustomListCtrl::OnSubclassCustomHeader(WPARAM, LPARAM)
{
    TakeHeader();
    return 0;
}

int CCustomListCtrl::OnCreate(LPCREATESTRUCT)
{
    const WindowAlive alive(*this);
    const int result = m_bars->Create();
    if (alive)
    {
        m_creating = false;
        m_bars->filling.SetRedrawKnown(true); // a list made by us paints at once
        Ask(CCM_SETVERSION, WPARAM(CommonControlsVersion));
        TakeHeader();
    }
    return result;
}

void CCustomListCtrl::OnDestroy()
{
    m_bars->Destroy();
}

namespace {

// Messages on which a window is not laid out anew: it is being made, ended, or its frame is just
// being calculated.
bool IsTooEarly(UINT message)
{
    switch (message)
    {
    case WM_NCCREATE:
    case WM_CREATE:
    case WM_GETMINMAXINFO:
    case WM_NCCALCSIZE:
    case WM_WINDOWPOSCHANGING:
    case WM_DESTROY:
    case WM_NCDESTROY:
        return true;
    default:
        return false;
    }
}

} // namespace

LRESULT CCustomListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    if (message == WM_NCCREATE)
    {
        m_creating = true;
    }
    if (!IsTooEarly(message))
    {
        m_bars->Follow();
        if (alive && listctrl::ConcernsView(message))
        {
            m_bars->SettlePlace(true);
        }
        if (!alive || !FollowFilling(message))
        {
            return 0;
        }
    }
    const bool laidOut = m_bars->IsLaidOut();
    const LRESULT result = CListCtrl::WindowProc(message, wParam, lParam);
    if (alive && m_bars->IsLaidOut())
    {
        InvalidateChangedRows(message, wParam, lParam, result);
    }
    if (alive)
    {
        KeepInStep(message, laidOut == m_bars->IsLaidOut());
    }
    return result;
}

// Frame -----------------------------------------------------------------------------------------

void CCustomListCtrl::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    // The metrics of the other direction: it is meant.
    m_bars->NcCalcSize(calcValidRects, params,
                       CSize(::GetSystemMetrics(SM_CYFRAME) - metrics::Border,
                             ::GetSystemMetrics(SM_CXFRAME) - metrics::Border));
}

void CCustomListCtrl::OnWindowPosChanging(WINDOWPOS* position)
{
    m_bars->WindowPosChanging(position);
}

void CCustomListCtrl::OnSize(UINT type, int width, int height)
{
    const WindowAlive alive(*this);
    CListCtrl::OnSize(type, width, height);
    if (!alive || m_bars->IsSizePassing())
    {
        return;
    }
    const bool placed = m_bars->TakePlace(); // the list is laid out by this
    m_bars->SetPlacingDue(true);
    m_fittedTo.SetRectEmpty();
    if (InOnBoard())
    {
        const bool barred = (GetStyle() & (WS_VSCROLL | WS_HSCROLL)) != 0;
        m_bars->TakePlatformBars();
        if (alive && width > 0 && barred)
        {
            scroll::RecalculateFrame(*this);
        }
        if (alive)
        {
            m_bars->SetPlacingDue(true);
            ReCheckScrollBars();
        }
    }
    if (alive)
    {
        RestoreView();
    }
    if (alive && (placed || InOnBoard()))
    {
        FollowLabelEdit(InOnBoard()); // a keyboard on the screen may have taken the room
    }
}

void CCustomListCtrl::ResizeOBScrollBars()
{
    if (!m_bars->IsPlacingDue())
    {
        return;
    }
    m_bars->SetPlacingDue(false);
    const CRect client = scroll::ClientRectInWindow(*this);
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        Bar(axis).SetArea(Bar(axis).ShowScrollBar() ? scroll::BarArea(axis, client)
                                                    : CRect(0, 0, 0, 0));
    }
}

void CCustomListCtrl::OnNcPaint()
{
    m_bars->NcPaint(*GetCurrentMessage());
}

void CCustomListCtrl::DrawNC()
{
    m_bars->DrawBorder(m_OutlinePen, m_OutlineBrush, palette::ListCorner);
    m_bars->InvalidateClient();
    DrawBars();
}

void CCustomListCtrl::OnEnable(BOOL enable)
{
    m_bars->Enable(enable != FALSE);
}

void CCustomListCtrl::OnShowWindow(BOOL show, UINT)
{
    m_bars->Show(show != FALSE);
}
