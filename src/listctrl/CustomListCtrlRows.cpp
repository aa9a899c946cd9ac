// The report list: selecting rows by clicks and keys, and painting them.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "scroll/NcBands.h"

namespace {

constexpr UINT SelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

// A cell's text is drawn like this: it is meant that a row's text may have several lines.
constexpr UINT CellText = DT_END_ELLIPSIS | DT_VCENTER;

} // namespace

// Selecting -------------------------------------------------------------------------------------

void CCustomListCtrl::ClearSelection()
{
    const WindowAlive alive(*this);
    const int focus = GetNextItem(-1, LVNI_FOCUSED);
    if (focus >= 0)
    {
        SetItemState(focus, 0, LVIS_SELECTED);
    }
    // All of them only when the usual one was not the only one: it takes a look at every row.
    if (alive && GetSelectedCount() > 0)
    {
        SetItemState(-1, 0, LVIS_SELECTED);
    }
}

void CCustomListCtrl::SelectRange(int from, int to, bool select)
{
    const WindowAlive alive(*this);
    for (int row = std::min(from, to); alive && row <= std::max(from, to); ++row)
    {
        SetItemState(row, select ? UINT(LVIS_SELECTED) : 0U, LVIS_SELECTED);
    }
}

// Selects a row, as the platform does for a key or a click on it: alone, up to it from where the
// selection began (extend), or as one more or less (toggle).
void CCustomListCtrl::SelectRow(int row, bool extend, bool toggle)
{
    if (row < 0 || row >= GetItemCount())
    {
        return;
    }
    const WindowAlive alive(*this);
    const bool single = (GetStyle() & LVS_SINGLESEL) != 0;
    const int mark = GetSelectionMark();
    const int focus = GetNextItem(-1, LVNI_FOCUSED);
    if (extend && !single && mark >= 0)
    {
        // The rows between the old end of the range and the new one are all that changes if the
        // range is all that is selected.
        const bool grows = focus >= 0 && int(GetSelectedCount()) == std::abs(focus - mark) + 1 &&
                           GetItemState(mark, LVIS_SELECTED) != 0 &&
                           GetItemState(focus, LVIS_SELECTED) != 0;
        if (!grows)
        {
            ClearSelection();
            SelectRange(mark, row, true);
        }
        else
        {
            const bool sameSide = (row >= mark) == (focus >= mark);
            const int kept = !sameSide                                       ? mark
                             : std::abs(row - mark) < std::abs(focus - mark) ? row
                                                                             : focus;
            if (kept != focus)
            {
                SelectRange(focus, kept < focus ? kept + 1 : kept - 1, false);
            }
            if (alive)
            {
                SelectRange(kept, row, true);
            }
        }
        if (alive)
        {
            SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        return;
    }
    if (toggle && !single)
    {
        const bool selected = GetItemState(row, LVIS_SELECTED) != 0;
        SetItemState(row, LVIS_FOCUSED | (selected ? 0U : UINT(LVIS_SELECTED)), SelectedAndFocused);
    }
    else
    {
        ClearSelection();
        if (alive)
        {
            SetItemState(row, SelectedAndFocused, SelectedAndFocused);
        }
    }
    if (alive)
    {
        SetSelectionMark(row);
    }
}

void CCustomListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    if (!InOnBoard())
    {
        Default();
        return;
    }
    m_lastPoint = point;
    SelectClicked(point, flags);
}

void CCustomListCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    if (!InOnBoard() || TopRow() == 0)
    {
        Default();
        return;
    }
    SelectClicked(point, flags);
}

// The platform picks a row from its unscrolled rows, which is then exchanged for the one that is
// drawn in its place. While it is not yet, IsSelChanging tells so.
void CCustomListCtrl::SelectClicked(const CPoint& point, UINT flags)
{
    const WindowAlive alive(*this);
    LVHITTESTINFO hit = {};
    hit.pt = point;
    Ask(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    const bool several = (flags & (MK_CONTROL | MK_SHIFT)) != 0;
    if (several && hit.iItem >= 0 && TopRow() != 0 && (GetStyle() & LVS_SINGLESEL) == 0)
    {
        // What is selected so far is known by rows that the platform would take for others.
        SetFocus();
        if (alive)
        {
            SelectRow(hit.iItem + TopRow(), (flags & MK_SHIFT) != 0, (flags & MK_CONTROL) != 0);
        }
        if (alive)
        {
            Invalidate();
        }
        return;
    }
    m_selChanging = TRUE;
    Default();
    if (!alive)
    {
        return;
    }
    int picked = -1;
    if (hit.iItem >= 0 && GetItemState(hit.iItem, LVIS_SELECTED) != 0)
    {
        picked = hit.iItem;
    }
    else if (GetSelectedCount() > 0)
    {
        picked = GetNextItem(-1, LVNI_SELECTED);
    }
    if (picked == -1)
    {
        // Selected and deselected again, so that the parent is told of a change in any case.
        if (GetItemCount() > 0)
        {
            SetItemState(0, SelectedAndFocused, SelectedAndFocused);
        }
        if (alive)
        {
            m_selChanging = FALSE;
            SetItemState(0, 0, SelectedAndFocused);
        }
    }
    else if (m_scrollUnit.cy > 0 && !several)
    {
        SetItemState(picked, 0, SelectedAndFocused);
        if (alive)
        {
            m_selChanging = FALSE;
            SetItemState(picked + TopRow(), SelectedAndFocused, SelectedAndFocused);
        }
        if (alive)
        {
            SetSelectionMark(picked + TopRow());
        }
    }
    if (alive)
    {
        m_selChanging = FALSE;
        Invalidate();
    }
}

// The platform would count a page from its own first row, which is not the one in sight.
bool CCustomListCtrl::MoveByPage(UINT key, UINT flags)
{
    if (key != VK_PRIOR && key != VK_NEXT)
    {
        return false;
    }
    const WindowAlive alive(*this);
    NMLVKEYDOWN told = {};
    told.hdr = {GetSafeHwnd(), UINT_PTR(GetDlgCtrlID()), LVN_KEYDOWN};
    told.wVKey = WORD(key);
    told.flags = flags;
    ::SendMessage(::GetParent(GetSafeHwnd()), WM_NOTIFY, told.hdr.idFrom,
                  reinterpret_cast<LPARAM>(&told));
    if (alive && GetItemCount() > 0)
    {
        const bool extend = ::GetKeyState(VK_SHIFT) < 0;
        const int target =
            listctrl::PageTarget(key == VK_NEXT, std::max(0, GetNextItem(-1, LVNI_FOCUSED)),
                                 TopRow(), RowsInSight(), GetItemCount());
        if (::GetKeyState(VK_CONTROL) < 0 && !extend)
        {
            SetItemState(target, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        else
        {
            SelectRow(target, extend, false);
        }
    }
    return true;
}

void CCustomListCtrl::OnKeyDown(UINT key, UINT, UINT flags)
{
    if (!InOnBoard())
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    const int before = GetNextItem(-1, LVNI_FOCUSED);
    if (!MoveByPage(key, flags) && alive)
    {
        Default();
    }
    if (!alive)
    {
        return;
    }
    HoldPlatform();
    const bool sideways = key == VK_LEFT || key == VK_RIGHT;
    const bool moves = (key >= VK_PRIOR && key <= VK_DOWN) && !sideways;
    const int focus = alive ? GetNextItem(-1, LVNI_FOCUSED) : -1;
    if (alive && (moves || focus != before))
    {
        BringIntoSight(focus);
    }
    if (alive && sideways && m_hBar.ShowScrollBar())
    {
        PerformHScroll(key == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
    }
    if (alive)
    {
        Invalidate();
    }
}

// The first letters of a row are looked for by the platform.
void CCustomListCtrl::OnChar(UINT, UINT, UINT)
{
    const WindowAlive alive(*this);
    const int before = InOnBoard() ? GetNextItem(-1, LVNI_FOCUSED) : -1;
    Default();
    const int focus = alive && InOnBoard() ? GetNextItem(-1, LVNI_FOCUSED) : before;
    if (alive && focus != before)
    {
        HoldPlatform();
        BringIntoSight(focus);
        Invalidate();
    }
}

// Painting --------------------------------------------------------------------------------------

void CCustomListCtrl::OnPaint()
{
    if (!InOnBoard())
    {
        Default();
        return;
    }
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const int top = HeaderBottom();
    dc.ExcludeClipRect(0, 0, client.right, top); // the header paints itself
    CRect area(dc.m_ps.rcPaint);
    area.top = std::max<LONG>(area.top, top);
    BackBuffer buffer(dc, area);
    DrawOB(buffer);
}

BOOL CCustomListCtrl::OnEraseBkgnd(CDC* dc)
{
    return InOnBoard() ? TRUE : CListCtrl::OnEraseBkgnd(dc);
}

void CCustomListCtrl::DrawOB(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    const Selected font(dc, reinterpret_cast<HGDIOBJ>(Ask(WM_GETFONT)));
    dc.FillSolidRect(client, palette::Field);
    const BackgroundMode transparent(dc, TRANSPARENT);
    const auto style = DWORD(Ask(LVM_GETEXTENDEDLISTVIEWSTYLE));
    const int columns = ColumnCount();
    const WindowAlive alive(*this);
    m_gridLines.Clear();
    GetVerticalDivides(columns);
    DrawCells(dc, GetItemCount(), columns, (style & LVS_EX_FULLROWSELECT) != 0, client);
    if (alive && (style & LVS_EX_GRIDLINES) != 0)
    {
        DrawGrid(dc, GetItemCount(), client);
    }
    if (alive && m_header.IsHotTracking())
    {
        CPoint pointer;
        ::GetCursorPos(&pointer);
        ScreenToClient(&pointer);
        const Selected pen(dc, ::GetStockObject(BLACK_PEN));
        dc.MoveTo(pointer.x, client.top);
        dc.LineTo(pointer.x, client.bottom);
    }
}

void CCustomListCtrl::GetVerticalDivides(int columns)
{
    m_gridLines.Clear();
    for (int column = 0; column < columns; ++column)
    {
        CRect item;
        if (HeaderItemRect(column, item))
        {
            m_gridLines.Add(std::int32_t(item.right + m_drawOffset.x));
        }
    }
}

namespace {

// Cells of the first row, unscrolled; the first one ends where the second begins.
std::vector<CRect> CellsOfFirstRow(const CListCtrl& list, int columns)
{
    std::vector<CRect> cells(size_t(std::max(0, columns)));
    for (int column = 0; column < columns; ++column)
    {
        list.GetSubItemRect(0, column, LVIR_BOUNDS, cells[size_t(column)]);
    }
    if (columns > 1)
    {
        cells[0].right = cells[1].left;
    }
    return cells;
}

} // namespace

void CCustomListCtrl::DrawCells(CDC& dc, int items, int columns, bool fullRowSelect,
                                const CRect& rect)
{
    CRect first;
    CRect clip;
    if (items <= 0 || !FirstRowRect(first) || first.Height() <= 0)
    {
        return;
    }
    dc.GetClipBox(&clip);
    const int height = first.Height();
    const auto topOf = [&](int row) {
        return scroll::Saturated(LONGLONG{first.top} + LONGLONG{row} * height + m_drawOffset.y);
    };
    RowSpan rows = {listctrl::FirstDrawnRow(int(m_drawOffset.y), height),
                    listctrl::EndOfDrawnRows(int(m_drawOffset.y), height, int(rect.bottom), items)};
    while (rows.first < rows.end && topOf(rows.first) + height <= clip.top)
    {
        ++rows.first;
    }
    while (rows.first < rows.end && topOf(rows.end - 1) >= clip.bottom)
    {
        --rows.end;
    }
    const WindowAlive alive(*this);
    std::set<int> selected;
    m_paintedRows = rows;
    GetSelectedRows(selected);
    if (!alive)
    {
        return;
    }
    m_paintedRows.reset();

    std::vector<CRect> cells = CellsOfFirstRow(*this, columns);
    for (CRect& cell : cells)
    {
        cell.OffsetRect(m_drawOffset.x, 0);
    }
    const bool upToDivider = !fullRowSelect && columns > 1;
    for (int row = rows.first; row < rows.end && alive; ++row)
    {
        CRect bounds = first;
        bounds.MoveToY(topOf(row));
        const bool marked = selected.count(row) != 0;
        if (marked)
        {
            bounds.right = fullRowSelect ? rect.right
                           : upToDivider ? LONG(m_gridLines.firstgrid())
                                         : bounds.right;
            if (bounds.Width() > 0)
            {
                dc.FillSolidRect(bounds, palette::Highlight);
            }
        }
        const TextColor color(dc, marked ? palette::HighlightText : palette::FieldText);
        DrawRow(dc, row, bounds, cells, clip);
    }
}

void CCustomListCtrl::DrawRow(CDC& dc, int row, const CRect& rowRect,
                              const std::vector<CRect>& cells, const CRect& clip)
{
    constexpr int longest = 512; // characters; no cell shows as many
    WCHAR text[longest];
    const WindowAlive alive(*this);
    // From the last column on, so that the first one ends on top.
    for (int column = int(cells.size()) - 1; column >= 0 && alive; --column)
    {
        CRect cell = cells[size_t(column)];
        if (cell.Width() <= 0 || cell.right <= clip.left || cell.left >= clip.right)
        {
            continue;
        }
        text[0] = L'\0';
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = longest;
        Ask(LVM_GETITEMTEXTW, WPARAM(row), reinterpret_cast<LPARAM>(&item));
        if (alive && item.pszText != nullptr && *item.pszText != L'\0')
        {
            cell.top = rowRect.top;
            cell.bottom = rowRect.bottom;
            cell.left += metrics::ListRowMargin; // under the heading
            ::DrawTextW(dc.GetSafeHdc(), item.pszText, -1, &cell, CellText);
        }
    }
}

void CCustomListCtrl::DrawGrid(CDC& dc, int items, const CRect& rect)
{
    CRect first;
    const int headerBottom = HeaderBottom();
    int top = headerBottom;
    int height = 0;
    if (items > 0 && FirstRowRect(first))
    {
        height = first.Height();
        // The first row in sight: the rows before it have no place on the screen.
        top = int(first.top) + int((LONGLONG{TopRow()} * height + m_drawOffset.y));
    }
    else
    {
        top += ::GetSystemMetrics(SM_CXFRAME) / 2;
        height = int(dc.GetTextExtent("Aj", 2).cy) + 1;
    }
    CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_GRAYTEXT));
    const Selected selected(dc, pen);
    for (int y = top; height > 0 && y < rect.bottom; y += height)
    {
        dc.MoveTo(rect.left, y);
        dc.LineTo(rect.right, y);
    }
    CRect header;
    const HWND headerWindow = HeaderWindow();
    if (headerWindow != nullptr)
    {
        ::GetWindowRect(headerWindow, &header);
        ScreenToClient(&header);
    }
    const auto& dividers = m_gridLines.Positions();
    for (size_t divider = 0; divider + 1 < dividers.size(); ++divider)
    {
        dc.MoveTo(dividers[divider], header.top);
        dc.LineTo(dividers[divider], rect.bottom);
    }
}

// Headers' messages ------------------------------------------------------------------------------

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
