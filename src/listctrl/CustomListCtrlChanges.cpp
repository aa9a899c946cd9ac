// The report list: what is painted anew after rows, their states or the focus have changed.

#include "CustomListCtrl.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"

#include <algorithm>
#include <climits>

namespace {

constexpr int LastRow = INT_MAX - 1; // of whatever number

} // namespace

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

void CCustomListCtrl::InvalidateEach(const std::set<int>& rows)
{
    for (const int row : rows)
    {
        if (row >= 0)
        {
            InvalidateRows(row, row);
        }
    }
}

// The selected ones among the rows that are drawn.
std::set<int> CCustomListCtrl::SelectedInSight()
{
    std::set<int> rows;
    CRect first;
    CRect client;
    if (FirstRowRect(first) && first.Height() > 0)
    {
        const WindowAlive alive(*this); // an owner may be asked for the states of its rows
        GetClientRect(&client);
        m_paintedRows = RowsDrawn(first.Height(), int(client.bottom), int(Ask(LVM_GETITEMCOUNT)));
        GetSelectedRows(rows);
        if (alive)
        {
            m_paintedRows.reset();
        }
    }
    return rows;
}

// The row that shows the focus: none without it.
int CCustomListCtrl::RowWithFocus() const
{
    return ::GetFocus() == GetSafeHwnd() ? NextRow(-1, LVNI_FOCUSED) : -1;
}

void CCustomListCtrl::FollowFocus()
{
    const WindowAlive alive(*this); // an owner may be asked for the states of its rows
    const int row = RowWithFocus();
    if (!alive || row == m_focusRow)
    {
        return;
    }
    InvalidateEach({m_focusRow, row});
    m_focusRow = row;
}

// A row has changed, these states of it among others; -1: all rows.
void CCustomListCtrl::FollowChange(int row, UINT states)
{
    // One that is selected in a list for one takes that from another row, of which nothing is told.
    const bool all =
        row < 0 || ((states & LVIS_SELECTED) != 0 && (GetStyle() & LVS_SINGLESEL) != 0);
    InvalidateRows(all ? 0 : row, all ? LastRow : row);
    if ((states & LVIS_FOCUSED) != 0)
    {
        const WindowAlive alive(*this);
        FollowFocus();
        if (alive)
        {
            HoldPlatform(); // some platforms bring the row with the focus into sight
        }
    }
}

// The platform invalidates its unscrolled rows; these are the places where they are drawn.
void CCustomListCtrl::InvalidateChangedRows(UINT message, WPARAM wParam, LPARAM lParam,
                                            LRESULT result)
{
    const int row = int(wParam);
    const auto* const item = reinterpret_cast<const LVITEM*>(lParam); // for messages of that kind
    switch (message)
    {
    case LVM_SETITEMTEXTA:
    case LVM_SETITEMTEXTW:
    case LVM_UPDATE:
        FollowChange(row, 0);
        break;
    case LVM_SETITEMSTATE:
        FollowChange(row, item != nullptr ? item->stateMask : 0);
        break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        FollowFocus();
        break;
    case LVM_SETITEMA:
    case LVM_SETITEMW:
        if (item != nullptr && item->iItem >= 0)
        {
            FollowChange(item->iItem, (item->mask & LVIF_STATE) != 0 ? item->stateMask : 0);
        }
        break;
    case LVM_REDRAWITEMS:
        InvalidateRows(row, int(lParam));
        break;
    case LVM_DELETEITEM:
        InvalidateRows(row, LastRow);
        FollowFocus(); // a row before may have it then
        break;
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
        if (item != nullptr && result >= 0)
        {
            InvalidateRows(int(result), LastRow); // a sorted list puts it where it belongs
            if ((item->mask & LVIF_STATE) != 0)
            {
                FollowChange(int(result), item->stateMask);
            }
        }
        break;
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_SETCOLUMNA:
    case LVM_SETCOLUMNW:
    case LVM_SETCOLUMNWIDTH:
    case LVM_SETIMAGELIST: // which makes the rows higher, or less high
    case LVM_SETITEMCOUNT:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNORDERARRAY:
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
    case LVM_EDITLABELA: // which selects the row alone, without a message for that
    case LVM_EDITLABELW:
        Invalidate(FALSE);
        break;
    case WM_STYLECHANGED:
        if (const auto* const styles = reinterpret_cast<const STYLESTRUCT*>(lParam);
            styles != nullptr &&
            ((styles->styleOld ^ styles->styleNew) & ~DWORD(WS_VSCROLL | WS_HSCROLL)) != 0)
        {
            Invalidate(FALSE); // the rows stand elsewhere without the headings
        }
        break;
    default:
        break;
    }
}
