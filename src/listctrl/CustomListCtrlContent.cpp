// The report list: columns and rows, and keeping ranges, offset and header in step with them.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "scroll/NcBands.h"

#include <cstring>
#include <utility>

// Asking the platform ----------------------------------------------------------------------------

HWND CCustomListCtrl::HeaderWindow() const
{
    return m_header.GetSafeHwnd() != nullptr ? m_header.GetSafeHwnd()
                                             : reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER));
}

int CCustomListCtrl::ColumnCount() const
{
    const HWND header = HeaderWindow();
    return header == nullptr ? 0 : std::max(0, int(::SendMessage(header, HDM_GETITEMCOUNT, 0, 0)));
}

bool CCustomListCtrl::HeaderItemRect(int column, CRect& rect) const
{
    const HWND header = HeaderWindow();
    return header != nullptr && ::SendMessage(header, HDM_GETITEMRECT, WPARAM(column),
                                              reinterpret_cast<LPARAM>(&rect)) != FALSE;
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
    return GetItemCount() > 0 && GetItemRect(0, &rect, LVIR_BOUNDS) != FALSE;
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

void CCustomListCtrl::GetSelectedRows(std::set<int>& rows) const
{
    if (m_paintedRows)
    {
        // A paint is to cost the same however many rows there are.
        for (int row = m_paintedRows->first; row < m_paintedRows->end; ++row)
        {
            if (GetItemState(row, LVIS_SELECTED) != 0)
            {
                rows.insert(row);
            }
        }
        return;
    }
    POSITION position = GetSelectedCount() == 0 ? nullptr : GetFirstSelectedItemPosition();
    while (position != nullptr)
    {
        rows.insert(GetNextSelectedItem(position));
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
    case WM_VSCROLL:
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

} // namespace

void CCustomListCtrl::KeepInStep(UINT message)
{
    if (ChoosesView(message))
    {
        m_view.reset();
    }
    const WindowAlive alive(*this);
    if (m_onBoard && !m_settling && !m_following && MayChangeContent(message))
    {
        m_settling = true;
        // Columns that are being inserted keep their widths, also the last one until the next
        // occasion to fit it.
        const bool inserted = message == LVM_INSERTCOLUMNA || message == LVM_INSERTCOLUMNW;
        m_fitting = inserted && m_fittedColumn == -1;
        TakeHeader();
        HoldPlatform();
        // What is told on the way may change the content once more.
        for (int turn = 0; alive && turn < 4 && !(Measure() == m_measured); ++turn)
        {
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
    }
}

CCustomListCtrl::Measured CCustomListCtrl::Measure()
{
    Measured now;
    CRect rect;
    now.items = GetItemCount();
    now.rowHeight = FirstRowRect(rect) ? rect.Height() : 0;
    now.columns = ColumnCount();
    now.right = now.columns > 0 && HeaderItemRect(now.columns - 1, rect) ? int(rect.right) : 0;
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
        Ask(LVM_SCROLL, WPARAM(first.left), down);
        Invalidate(FALSE);
    }
}

// Columns ----------------------------------------------------------------------------------------

namespace {

// The description of a new column for the platform, with another width. The caller's may be
// shorter than the structure of today, so only what its mask names is read.
LVCOLUMN WithWidth(const LVCOLUMN& given, int width)
{
    constexpr UINT oldFields = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
    LVCOLUMN column = {};
    const bool old = (given.mask & ~oldFields) == 0;
    std::memcpy(&column, &given, old ? offsetof(LVCOLUMN, iImage) : sizeof(column));
    column.cx = width;
    return column;
}

} // namespace

LRESULT CCustomListCtrl::OnInsertColumn(WPARAM wParam, LPARAM lParam)
{
    const auto* given = reinterpret_cast<const LVCOLUMN*>(lParam);
    if (!COnBoardUIGeneral::InOnBoardMode() || given == nullptr)
    {
        return Default();
    }
    const WindowAlive alive(*this);
    const bool sized = (given->mask & LVCF_WIDTH) != 0;
    ColumnWidth width = {sized ? given->cx : 0, sized ? listctrl::OnBoardWidth(given->cx) : 0};
    const int before = ColumnCount();
    LVCOLUMN scaled = sized ? WithWidth(*given, width.onBoard) : LVCOLUMN();
    const bool settling = std::exchange(m_settling, true); // not half way
    const LRESULT index = Ask(GetCurrentMessage()->message, wParam,
                              sized ? reinterpret_cast<LPARAM>(&scaled) : lParam);
    if (alive)
    {
        m_settling = settling;
    }
    if (!alive || index < 0 || size_t(before) != m_columnWidths.size())
    {
        return index;
    }
    if (!sized || given->cx < 0)
    {
        width.onBoard = GetColumnWidth(int(index));
        width.standard = listctrl::StandardWidth(width.onBoard);
    }
    m_columnWidths.insert(m_columnWidths.begin() + std::min<LRESULT>(index, before), width);
    // What filled the list is the last column no longer.
    if (m_fittedColumn != -1 && m_fittedColumn == before - 1)
    {
        const bool stillLast = index < before;
        m_fittedColumn = stillLast ? before : -1;
        if (!stillLast)
        {
            Ask(LVM_SETCOLUMNWIDTH, WPARAM(before - 1),
                MAKELPARAM(m_columnWidths[size_t(before - 1)].onBoard, 0));
        }
    }
    return index;
}

LRESULT CCustomListCtrl::OnDeleteColumn(WPARAM wParam, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT deleted = Default();
    if (alive && deleted && wParam < m_columnWidths.size())
    {
        m_columnWidths.erase(m_columnWidths.begin() + std::ptrdiff_t(wParam));
    }
    if (alive && deleted && m_fittedColumn != -1)
    {
        m_fittedColumn = ColumnCount() - 1; // the new last column fills the list
        m_fittedTo.SetRectEmpty();
    }
    return deleted;
}

LRESULT CCustomListCtrl::OnSetColumnWidth(WPARAM wParam, LPARAM lParam)
{
    const int last = ColumnCount() - 1;
    if (InOnBoard() && last >= 0 && int(wParam) == last &&
        short(LOWORD(lParam)) == LVSCW_AUTOSIZE_USEHEADER)
    {
        m_fittedTo.SetRectEmpty();
        FitLastColumn();
        return TRUE;
    }
    return Default();
}

// What a column's heading takes, with its margins and its arrow.
int CCustomListCtrl::HeadingWidth(int column)
{
    const HWND header = HeaderWindow();
    char text[256] = "";
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = text;
    item.cchTextMax = sizeof(text);
    if (header == nullptr ||
        !::SendMessage(header, HDM_GETITEM, WPARAM(column), reinterpret_cast<LPARAM>(&item)) ||
        item.pszText == nullptr)
    {
        return 0;
    }
    CClientDC dc(this);
    const Selected font(dc, reinterpret_cast<HGDIOBJ>(::SendMessage(header, WM_GETFONT, 0, 0)));
    const int arrow = (item.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0 ? metrics::HeaderArrowRoom : 0;
    return int(dc.GetTextExtent(item.pszText, ::lstrlen(item.pszText)).cx) +
           2 * metrics::ListRowMargin + arrow;
}

// The last column fills what the others leave of the list, and is at least as wide as its heading.
void CCustomListCtrl::FitLastColumn()
{
    const int last = ColumnCount() - 1;
    CRect column;
    if (last < 0 || m_fitting || !HeaderItemRect(last, column))
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const CRect fitted(column.left, 0, column.right, client.Width());
    if (m_fittedColumn == last && fitted == m_fittedTo)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_fitting = true;
    m_fittedColumn = last;
    Ask(LVM_SETCOLUMNWIDTH, WPARAM(last), MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0));
    // Where nothing is left to fill, platforms differ.
    const int wanted = alive ? std::max(HeadingWidth(last), int(client.Width() - column.left)) : 0;
    if (alive && GetColumnWidth(last) != wanted)
    {
        Ask(LVM_SETCOLUMNWIDTH, WPARAM(last), MAKELPARAM(wanted, 0));
    }
    if (!alive)
    {
        return;
    }
    m_fitting = false;
    if (HeaderItemRect(last, column))
    {
        m_fittedTo = CRect(column.left, 0, column.right, client.Width());
    }
    Invalidate(FALSE);
}

// Widths of all columns for the other kind of mode. The last one fills the list in the on-board
// modes and gets back what it had.
void CCustomListCtrl::ScalePlatformColumns(bool toOnBoard)
{
    const WindowAlive alive(*this);
    const int count = ColumnCount();
    if (toOnBoard || m_columnWidths.size() != size_t(count))
    {
        m_columnWidths.clear();
        for (int column = 0; column < count; ++column)
        {
            const int width = GetColumnWidth(column);
            m_columnWidths.push_back(toOnBoard
                                         ? ColumnWidth{width, listctrl::OnBoardWidth(width)}
                                         : ColumnWidth{listctrl::StandardWidth(width), width});
        }
    }
    const std::vector<ColumnWidth> widths = m_columnWidths;
    for (int column = 0; column < count && alive; ++column)
    {
        const ColumnWidth& width = widths[size_t(column)];
        const int now = GetColumnWidth(column);
        const bool kept = toOnBoard || column == count - 1 || now == width.onBoard;
        const int wanted = toOnBoard ? width.onBoard
                           : kept    ? width.standard
                                     : listctrl::StandardWidth(now);
        Ask(LVM_SETCOLUMNWIDTH, WPARAM(column), MAKELPARAM(wanted, 0));
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
    return Default();
}

void CCustomListCtrl::OnLvnInsertitem(NMHDR*, LRESULT* result)
{
    *result = 0;
    if (!InOnBoard() || m_settling)
    {
        return;
    }
    const WindowAlive alive(*this);
    StripBars();
    UpdateVScrollData();
    if (alive)
    {
        DrawScrollBars();
    }
    if (alive && GetItemCount() == 1)
    {
        HomeSideways();
    }
}

BOOL CCustomListCtrl::OnLvnColumnclick(NMHDR*, LRESULT* result)
{
    *result = 0;
    return FALSE;
}

// The platform tells its parent of clicks on its unscrolled rows; this names the one that is drawn
// there instead.
BOOL CCustomListCtrl::OnNmClick(NMHDR* header, LRESULT*)
{
    auto* click = reinterpret_cast<NMITEMACTIVATE*>(header);
    if (InOnBoard() && click->iItem >= 0)
    {
        const int row = click->iItem + TopRow();
        click->iItem = row < GetItemCount() ? row : -1;
    }
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

void CCustomListCtrl::InvalidateRows(int first, int last)
{
    CRect row;
    CRect client;
    if (!FirstRowRect(row))
    {
        Invalidate(FALSE);
        return;
    }
    GetClientRect(&client);
    const LONGLONG height = row.Height();
    const LONGLONG top = row.top + first * height + m_drawOffset.y;
    const LONGLONG bottom = row.top + (LONGLONG{last} + 1) * height + m_drawOffset.y;
    if (top < client.bottom && bottom > 0)
    {
        client.top = std::max<LONG>(HeaderBottom(), scroll::Saturated(top));
        client.bottom = std::min<LONG>(client.bottom, scroll::Saturated(bottom));
        InvalidateRect(client, FALSE);
    }
}

// The platform invalidates its unscrolled rows; these are the places where they are drawn.
void CCustomListCtrl::InvalidateChangedRows(UINT message, WPARAM wParam, LPARAM lParam)
{
    constexpr int end = INT_MAX - 1;
    const int row = int(wParam);
    switch (message)
    {
    case LVM_SETITEMTEXTA:
    case LVM_SETITEMTEXTW:
    case LVM_SETITEMSTATE:
    case LVM_UPDATE:
        InvalidateRows(row < 0 ? 0 : row, row < 0 ? end : row);
        break;
    case LVM_SETITEMA:
    case LVM_SETITEMW:
        if (lParam != 0)
        {
            const int changed = reinterpret_cast<const LVITEM*>(lParam)->iItem;
            InvalidateRows(changed, changed);
        }
        break;
    case LVM_REDRAWITEMS:
        InvalidateRows(row, int(lParam));
        break;
    case LVM_DELETEITEM:
        InvalidateRows(row, end);
        break;
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
        if (lParam != 0)
        {
            InvalidateRows(std::clamp(reinterpret_cast<const LVITEM*>(lParam)->iItem, 0,
                                      std::max(0, GetItemCount() - 1)),
                           end);
        }
        break;
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SETITEMCOUNT:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNORDERARRAY:
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
        Invalidate(FALSE);
        break;
    default:
        break;
    }
}
