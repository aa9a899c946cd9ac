// The report list: columns and rows, and keeping ranges, offset and header in step with them.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListCtrlMessages.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"
#include "scroll/NcBands.h"

#include <utility>

// Asking the platform, past our own handlers, which might end the list --------------------------

HWND CCustomListCtrl::HeaderWindow() const
{
    return m_header.GetSafeHwnd() != nullptr
               ? m_header.GetSafeHwnd()
               : reinterpret_cast<HWND>(m_bars->Ask(LVM_GETHEADER, 0, 0));
}

LRESULT CCustomListCtrl::AskHeader(UINT message, WPARAM wParam, LPARAM lParam) const
{
    auto& header = const_cast<CCustomListCtrlHdr&>(m_header);
    return header.GetSafeHwnd() != nullptr
               ? header.DefWindowProc(message, wParam, lParam)
               : ::SendMessage(HeaderWindow(), message, wParam, lParam); // not ours yet, or none
}

int CCustomListCtrl::ColumnCount() const
{
    return std::max(0, int(AskHeader(HDM_GETITEMCOUNT)));
}

// A view that was set past the style is known to platforms only that set it.
bool CCustomListCtrl::IsReport() const
{
    return m_bars->viewSet ? m_bars->Ask(LVM_GETVIEW, 0, 0) == LV_VIEW_DETAILS
                           : (GetStyle() & LVS_TYPEMASK) == LVS_REPORT;
}

// The column that stands last, in whatever order; -1 without columns.
int CCustomListCtrl::LastColumn() const
{
    const int count = ColumnCount();
    return count == 0 ? -1 : int(AskHeader(HDM_ORDERTOINDEX, WPARAM(count - 1)));
}

bool CCustomListCtrl::HeaderItemRect(int column, CRect& rect) const
{
    return column >= 0 &&
           AskHeader(HDM_GETITEMRECT, WPARAM(column), reinterpret_cast<LPARAM>(&rect)) != FALSE;
}

// Client coordinate below the header; 0 when none is shown.
int CCustomListCtrl::HeaderBottom() const
{
    const HWND header = HeaderWindow();
    if (header == nullptr || (::GetWindowLongPtr(header, GWL_STYLE) & WS_VISIBLE) == 0)
    {
        return 0;
    }
    CRect rect;
    ::GetWindowRect(header, &rect);
    ScreenToClient(&rect);
    return std::max(0, int(rect.bottom));
}

// Of the unscrolled list.
bool CCustomListCtrl::FirstRowRect(CRect& rect) const
{
    rect.left = LVIR_BOUNDS;
    return m_bars->Ask(LVM_GETITEMCOUNT, 0, 0) > 0 &&
           m_bars->Ask(LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&rect)) != FALSE;
}

// Whole rows between the header and the lower edge.
int CCustomListCtrl::RowsInSight() const
{
    CRect client;
    GetClientRect(&client);
    return m_scrollUnit.cy <= 0
               ? 0
               : std::max(0, int(client.Height() - HeaderBottom()) / int(m_scrollUnit.cy));
}

int CCustomListCtrl::TopRow() const
{
    return listctrl::FirstDrawnRow(int(m_drawOffset.y), int(m_scrollUnit.cy));
}

int CCustomListCtrl::NextRow(int after, UINT state) const
{
    return int(m_bars->Ask(LVM_GETNEXTITEM, WPARAM(after), LPARAM(state)));
}

void CCustomListCtrl::GetSelectedRows(std::set<int>& rows) const
{
    const WindowAlive alive(*this); // an owner may be asked for the states of its rows
    if (m_paintedRows)
    {
        // A paint is to cost the same however many rows there are.
        const RowSpan painted = *m_paintedRows;
        for (int row = painted.first; row < painted.end && alive; ++row)
        {
            if (m_bars->Ask(LVM_GETITEMSTATE, WPARAM(row), LVIS_SELECTED) != 0)
            {
                rows.insert(row);
            }
        }
        return;
    }
    int row = m_bars->Ask(LVM_GETSELECTEDCOUNT, 0, 0) == 0 ? -1 : NextRow(-1, LVNI_SELECTED);
    while (row >= 0)
    {
        rows.insert(row);
        row = alive ? NextRow(row, LVNI_SELECTED) : -1;
    }
}

// In step ----------------------------------------------------------------------------------------

namespace {

// After these the platform may have scrolled by itself, or have other rows, columns or sizes.
bool MayChangeContent(UINT message)
{
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
    case LVM_SETITEMCOUNT:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNA:
    case LVM_SETCOLUMNW:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SETCOLUMNORDERARRAY:
    case LVM_SETIMAGELIST:
    case LVM_SETVIEW:
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
    case LVM_EDITLABELA:
    case LVM_EDITLABELW:
    case WM_PARENTNOTIFY: // the edit of a label is made: scrolled back later, the list would end it
    case WM_CREATE:
    case WM_SETFONT:
    case WM_STYLECHANGED:
    case WM_NOTIFY:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_TIMER:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_MOUSEMOVE:
    case WM_SETFOCUS:
    case WM_HSCROLL:
    case WM_SETREDRAW:
        return true;
    default:
        return false;
    }
}

// After these the user or the host has chosen what is in sight, whatever a change of mode kept.
bool ChoosesView(UINT message)
{
    switch (message)
    {
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_MOUSEWHEEL:
    case WM_VSCROLL:
    case LVM_ENSUREVISIBLE:
    case LVM_SCROLL:
    case LVM_DELETEALLITEMS:
    case LVM_SETITEMCOUNT:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
        return true;
    default:
        return false;
    }
}

// After these a row may have another index.
bool MovesRows(UINT message)
{
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
        return true;
    default:
        return false;
    }
}

// After these there may be a header, which a list that was made hidden or in another view has not
// had.
bool MayBringHeader(UINT message)
{
    switch (message)
    {
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_SETVIEW:
    case WM_STYLECHANGED:
        return true;
    default:
        return false;
    }
}

} // namespace

bool listctrl::ConcernsView(UINT message)
{
    return ChoosesView(message) || message == LVM_GETTOPINDEX || message == LVM_GETCOUNTPERPAGE;
}

void CCustomListCtrl::KeepInStep(UINT message, bool sameMode)
{
    if (ChoosesView(message) && sameMode)
    {
        m_view.reset();
    }
    if (MovesRows(message))
    {
        m_pressedRow = -1;
        m_bars->labelRow = -1;
        m_pressedTop = TopRow(); // a row that is held is the one that is drawn there by now
    }
    const WindowAlive alive(*this);
    const bool edits = message == LVM_EDITLABELA || message == LVM_EDITLABELW;
    if (edits && std::exchange(m_labelDue, false) && m_drawOffset != CPoint(0, 0))
    {
        FollowLabelEdit();
        if (!alive)
        {
            return;
        }
    }
    if (MayBringHeader(message))
    {
        TakeHeader();
    }
    if (alive && message == WM_SETFONT && !COnBoardUIGeneral::InOnBoardMode() &&
        std::exchange(m_bars->themeFontDue, false) && m_header.m_created)
    {
        m_header.TakeThemeFont(); // the platform's list has handed its own on
    }
    if (!alive || m_bars->AwaitsPlace())
    {
        return; // with the size that it gets
    }
    // Widths on the way to that of the last column are told of, too, and may bring a platform's
    // bar: by them a list that is scrolled to its right edge would step back.
    const bool halfWay =
        m_settling || (m_fitting && (message == WM_NOTIFY || message == WM_STYLECHANGED));
    if (m_bars->IsLaidOut() && !halfWay && !m_bars->IsFollowing() && MayChangeContent(message))
    {
        m_settling = true;
        // Columns that are being inserted keep their widths, also the last one until the next
        // occasion to fit it.
        const bool inserted = message == LVM_INSERTCOLUMNA || message == LVM_INSERTCOLUMNW;
        m_fitting = inserted && m_fittedColumn == -1;
        TakeHeader();
        if (alive)
        {
            HoldPlatform();
        }
        // What is told on the way may change the content once more.
        for (int turn = 0; alive && turn < 4 && !(Measure() == m_measured); ++turn)
        {
            if (alive && Measure().items != m_measured.items)
            {
                m_pressedRow = -1; // it may be another one by now
            }
            UpdateScrollData();
        }
        if (!alive)
        {
            return;
        }
        m_settling = false;
        m_fitting = false;
    }
    if (alive && message == WM_SETFONT)
    {
        m_fittedTo.SetRectEmpty(); // the heading has another width
        RestoreView();
        if (alive)
        {
            FollowLabelEdit(m_bars->IsLaidOut());
        }
    }
}

// The header has been given another order of columns past the list.
void CCustomListCtrl::FollowColumnOrder()
{
    const WindowAlive alive(*this);
    m_bars->Follow();
    if (alive && m_bars->IsLaidOut())
    {
        KeepInStep(LVM_SETCOLUMNORDERARRAY, true);
    }
    if (alive && m_bars->IsLaidOut())
    {
        Invalidate(FALSE);
    }
}

CCustomListCtrl::Measured CCustomListCtrl::Measure()
{
    Measured now;
    CRect rect;
    now.items = int(Ask(LVM_GETITEMCOUNT));
    now.rowHeight = FirstRowRect(rect) ? rect.Height() : 0;
    now.columns = ColumnCount();
    now.last = LastColumn();
    now.right = HeaderItemRect(now.last, rect) ? int(rect.right) : 0;
    GetClientRect(&rect);
    now.client = rect.Size();
    return now;
}

void CCustomListCtrl::UpdateScrollData()
{
    const WindowAlive alive(*this);
    bool frameChanged = false;
    m_measured = Measure();
    UpdateHScrollData(frameChanged);
    if (alive)
    {
        UpdateVScrollData();
    }
    if (alive)
    {
        UpdateHScrollData(frameChanged); // the vertical bar takes some of the width
    }
    if (alive)
    {
        DrawBars();
    }
}

// The platform's list stays at its first row and column: what it has scrolled by itself is taken
// back at once.
void CCustomListCtrl::HoldPlatform()
{
    CRect first;
    if (!FirstRowRect(first))
    {
        return;
    }
    const LPARAM down = -Ask(LVM_GETTOPINDEX) * first.Height();
    if (down != 0 || first.left != 0)
    {
        const WindowAlive alive(*this);
        Ask(LVM_SCROLL, WPARAM(first.left), down);
        if (alive)
        {
            Invalidate(FALSE);
        }
    }
}

// Rows -------------------------------------------------------------------------------------------

int CCustomListCtrl::DeleteAllItems()
{
    return int(SendMessage(LVM_DELETEALLITEMS));
}

LRESULT CCustomListCtrl::OnDeleteAllItems(WPARAM, LPARAM)
{
    m_drawOffset = CPoint(0, 0);
    m_furtherOffset = CPoint(0, 0);
    m_vBar.SetScrollPos(0, TRUE);
    m_hBar.SetScrollPos(0, TRUE);
    m_header.OBResetScroll(FALSE);
    if (m_header.GetSafeHwnd() != nullptr)
    {
        m_header.Invalidate(FALSE);
    }
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive)
    {
        DrawBars(); // of a list without rows nothing else changes that would have them drawn
    }
    return result;
}

void CCustomListCtrl::OnLvnInsertitem(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!InOnBoard() || m_settling)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_bars->TakePlatformBars();
    if (alive)
    {
        UpdateVScrollData();
    }
    if (alive)
    {
        DrawScrollBars();
    }
    if (alive && Ask(LVM_GETITEMCOUNT) == 1)
    {
        HomeSideways();
    }
}

BOOL CCustomListCtrl::OnLvnColumnclick(NMHDR*, LRESULT* result)
{
    *result = 0;
    return FALSE;
}

// The first row of a list brings the columns back to the left edge.
void CCustomListCtrl::HomeSideways()
{
    m_hBar.SetScrollPos(0, TRUE);
    m_header.OBResetScroll(FALSE);
    if (m_drawOffset.x != 0)
    {
        m_drawOffset.x = 0;
        Invalidate(FALSE);
        if (m_header.GetSafeHwnd() != nullptr)
        {
            m_header.Invalidate(FALSE);
        }
        DrawBars();
    }
}
