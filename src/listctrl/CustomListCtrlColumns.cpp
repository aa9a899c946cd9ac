// The report list: its columns, their widths in either kind of mode, and the header's messages.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Metrics.h"
#include "scroll/NcBands.h"

#include <cstddef>
#include <cstring>
#include <utility>

namespace {

// Of a window whose columns have their on-board widths: the next object may be another.
constexpr char ScaledProperty[] = "OnBoardUIScaledColumns";

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
    if (!InOnBoard() || given == nullptr)
    {
        return Default();
    }
    const WindowAlive alive(*this);
    const bool sized = (given->mask & LVCF_WIDTH) != 0;
    ColumnWidth width = {sized ? given->cx : 0, sized ? listctrl::OnBoardWidth(given->cx) : 0};
    const int before = ColumnCount();
    LVCOLUMN scaled = sized ? WithWidth(*given, width.onBoard) : LVCOLUMN();
    LRESULT index = 0;
    {
        const Meanwhile settling(*this, m_settling); // not half way
        index = Ask(GetCurrentMessage()->message, wParam,
                    sized ? reinterpret_cast<LPARAM>(&scaled) : lParam);
    }
    if (!alive || index < 0 || size_t(before) != m_columnWidths.size())
    {
        return index;
    }
    if (!sized || given->cx < 0)
    {
        width.onBoard = int(Ask(LVM_GETCOLUMNWIDTH, index));
        width.standard = listctrl::StandardWidth(width.onBoard);
    }
    m_columnWidths.insert(m_columnWidths.begin() + std::min<LRESULT>(index, before), width);
    if (m_fittedColumn != -1)
    {
        m_fittedColumn += index <= m_fittedColumn ? 1 : 0;
        if (m_fittedColumn != LastColumn())
        {
            GiveOwnWidth(std::exchange(m_fittedColumn, -1));
        }
    }
    return index;
}

LRESULT CCustomListCtrl::OnDeleteColumn(WPARAM wParam, LPARAM)
{
    const WindowAlive alive(*this);
    const bool fitted = m_fittedColumn != -1 && int(wParam) == m_fittedColumn;
    LRESULT deleted = 0;
    {
        const Meanwhile settling(*this, m_settling); // not half way
        deleted = Default();
    }
    if (alive && deleted && wParam < m_columnWidths.size())
    {
        m_columnWidths.erase(m_columnWidths.begin() + std::ptrdiff_t(wParam));
    }
    if (alive && deleted && m_fittedColumn != -1)
    {
        m_fittedColumn = LastColumn(); // fills the list, also if it has not been last so far
        m_fittedTo.SetRectEmpty();
        if (fitted)
        {
            NoteOwnWidth(m_fittedColumn);
        }
    }
    return deleted;
}

LRESULT CCustomListCtrl::OnSetColumnWidth(WPARAM wParam, LPARAM lParam)
{
    const int last = LastColumn();
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
    char text[CCustomListCtrlHdr::LongestText] = "";
    HDITEM item = {};
    item.mask = HDI_TEXT | HDI_FORMAT;
    item.pszText = text;
    item.cchTextMax = CCustomListCtrlHdr::LongestText;
    if (header == nullptr ||
        !::SendMessage(header, HDM_GETITEM, WPARAM(column), reinterpret_cast<LPARAM>(&item)) ||
        item.pszText == nullptr)
    {
        return 0;
    }
    CDC& dc = MeasuringDC();
    const Selected font(dc, reinterpret_cast<HGDIOBJ>(::SendMessage(header, WM_GETFONT, 0, 0)));
    const int arrow = (item.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0 ? metrics::HeaderArrowRoom : 0;
    return int(dc.GetTextExtent(item.pszText, ::lstrlen(item.pszText)).cx) +
           2 * metrics::ListRowMargin + arrow;
}

// The width in the kind of mode that the list is laid out for, to the platform alone.
void CCustomListCtrl::GiveOwnWidth(int column)
{
    if (column >= 0 && size_t(column) < m_columnWidths.size())
    {
        const ColumnWidth& own = m_columnWidths[size_t(column)];
        const int width = m_bars->IsLaidOut() ? own.onBoard : own.standard;
        Ask(LVM_SETCOLUMNWIDTH, WPARAM(column),
            MAKELPARAM(std::min(width, listctrl::WidestColumn), 0));
    }
}

// Keeps the width that the user or the host has given a column by now, before it fills the list.
void CCustomListCtrl::NoteOwnWidth(int column)
{
    CRect heading;
    if (HeaderItemRect(column, heading) && size_t(column) < m_columnWidths.size() &&
        heading.Width() != m_columnWidths[size_t(column)].onBoard)
    {
        m_columnWidths[size_t(column)] = {listctrl::StandardWidth(heading.Width()),
                                          heading.Width()};
    }
}

// The last column fills what the others leave of the list, and is at least as wide as its heading.
void CCustomListCtrl::FitLastColumn()
{
    const int last = LastColumn();
    CRect column;
    if (m_fitting || !HeaderItemRect(last, column))
    {
        return;
    }
    if (!IsReport())
    {
        m_fittedTo.SetRectEmpty(); // when it is a report again
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
    const int before = std::exchange(m_fittedColumn, last);
    if (before != last)
    {
        NoteOwnWidth(last);
        GiveOwnWidth(before);
    }
    if (alive)
    {
        Ask(LVM_SETCOLUMNWIDTH, WPARAM(last), MAKELPARAM(LVSCW_AUTOSIZE_USEHEADER, 0));
    }
    if (alive)
    {
        HeaderItemRect(last, column);
    }
    // Where nothing is left to fill, platforms differ.
    const int wanted = alive ? std::max(HeadingWidth(last), int(client.Width() - column.left)) : 0;
    if (alive && m_bars->IsLaidOut() && int(Ask(LVM_GETCOLUMNWIDTH, WPARAM(last))) != wanted)
    {
        Ask(LVM_SETCOLUMNWIDTH, WPARAM(last), MAKELPARAM(wanted, 0));
    }
    if (!alive)
    {
        return;
    }
    m_fitting = false;
    if (!m_bars->IsLaidOut())
    {
        // The list has left the mode on the way; the columns had their widths back before these.
        GiveOwnWidth(last);
        if (alive && before != last)
        {
            GiveOwnWidth(before);
        }
        return;
    }
    m_fittedColumn = last; // also where the mode has gone and come back on the way
    if (HeaderItemRect(last, column))
    {
        m_fittedTo = CRect(column.left, 0, column.right, client.Width());
    }
    Invalidate(FALSE);
}

bool CCustomListCtrl::AreColumnsScaled() const
{
    return ::GetProp(GetSafeHwnd(), ScaledProperty) != nullptr;
}

// Widths of all columns for the other kind of mode. The one that fills the list in the on-board
// modes gets back what it had.
void CCustomListCtrl::ScalePlatformColumns(bool toOnBoard)
{
    const WindowAlive alive(*this);
    const int count = ColumnCount();
    // Of the header: the list tells of columns in a report only.
    const auto widthNow = [this](int column) {
        CRect heading(0, 0, 0, 0);
        HeaderItemRect(column, heading);
        return int(heading.Width());
    };
    const bool scaled = AreColumnsScaled();
    if (toOnBoard || m_columnWidths.size() != size_t(count))
    {
        m_columnWidths.clear();
        for (int column = 0; column < count; ++column)
        {
            const int width = widthNow(column);
            m_columnWidths.push_back(!scaled ? ColumnWidth{width, listctrl::OnBoardWidth(width)}
                                             : ColumnWidth{listctrl::StandardWidth(width), width});
        }
    }
    if (toOnBoard)
    {
        ::SetProp(GetSafeHwnd(), ScaledProperty, GetSafeHwnd());
    }
    else
    {
        ::RemoveProp(GetSafeHwnd(), ScaledProperty);
    }
    const std::vector<ColumnWidth> widths = m_columnWidths;
    const int fitted = std::exchange(m_fittedColumn, -1);
    const Meanwhile fitting(*this, m_fitting); // not half way
    for (int column = 0; column < count && alive; ++column)
    {
        const ColumnWidth& width = widths[size_t(column)];
        const int now = widthNow(column);
        const bool kept = toOnBoard || column == fitted || now == width.onBoard;
        const int wanted = toOnBoard ? width.onBoard
                           : kept    ? width.standard
                                     : listctrl::StandardWidth(now);
        // Not by LVM_SETCOLUMNWIDTH, which the list takes in a report only.
        LVCOLUMN wide = {};
        wide.mask = LVCF_WIDTH;
        const bool answers = Ask(LVM_GETCOLUMN, WPARAM(column), LPARAM(&wide)) != 0;
        wide.cx = wanted;
        if (alive && answers)
        {
            Ask(LVM_SETCOLUMN, WPARAM(column), LPARAM(&wide)); // which the parent may refuse
        }
        else if (alive)
        {
            // While the object goes over the window the list does not answer yet.
            HDITEM heading = {};
            heading.mask = HDI_WIDTH;
            heading.cxy = wanted;
            AskHeader(HDM_SETITEM, WPARAM(column), reinterpret_cast<LPARAM>(&heading));
        }
    }
}

// What the header tells --------------------------------------------------------------------------

BOOL CCustomListCtrl::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* header = reinterpret_cast<const NMHEADER*>(lParam);
    if ((header->hdr.code == HDN_ENDTRACKA || header->hdr.code == HDN_ENDTRACKW) &&
        m_minColWidth != -1 && header->pitem != nullptr && header->pitem->cxy < m_minColWidth)
    {
        header->pitem->cxy = m_minColWidth;
    }
    return CListCtrl::OnNotify(wParam, lParam, result);
}

void CCustomListCtrl::OnHdnTrack(NMHDR*, LRESULT* result)
{
    if (!InOnBoard())
    {
        *result = Default();
        return;
    }
    *result = 0;
    Invalidate(FALSE);
}

void CCustomListCtrl::OnHdnEndtrack(NMHDR*, LRESULT* result)
{
    const WindowAlive alive(*this);
    *result = 0;
    Default();
    if (!alive || !InOnBoard())
    {
        return;
    }
    bool frameChanged = false;
    UpdateHScrollData(frameChanged);
    if (alive && !frameChanged)
    {
        scroll::RecalculateFrame(*this);
    }
    if (alive)
    {
        Invalidate();
    }
}
