// The report list: painting rows, cells and grid lines.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/Meanwhile.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/PaintContext.h"
#include "paint/Palette.h"

#include <algorithm>
#include <cwchar>

namespace {

// The owner of rows may fetch them all at once.
void TellOfRows(HWND list, int first, int end)
{
    if (first < end)
    {
        NMLVCACHEHINT told = {};
        told.hdr.code = UINT(LVN_ODCACHEHINT);
        told.iFrom = first;
        told.iTo = end - 1;
        TellNotify(list, told.hdr);
    }
}

// A cell's text is drawn like this: it is meant that a row's text may have several lines.
constexpr UINT CellText = DT_END_ELLIPSIS | DT_VCENTER;

} // namespace

// The rows that are drawn from the first in sight down to a lower edge.
CCustomListCtrl::RowSpan CCustomListCtrl::RowsDrawn(int rowHeight, int bottom, int items) const
{
    const auto offset = int(m_drawOffset.y);
    return {listctrl::FirstDrawnRow(offset, rowHeight),
            listctrl::EndOfDrawnRows(offset, rowHeight, bottom, items)};
}

// Before the paint begins: the owner may change rows, places and mode, and what is to be painted
// for that is painted by this. Of the rows that this brings into sight it is told as well, but not
// without an end; one that has it painted at once is not told again.
void CCustomListCtrl::HintOfRows()
{
    if (m_bars->hinting || (GetStyle() & LVS_OWNERDATA) == 0)
    {
        return;
    }
    const WindowAlive alive(*this);
    RowSpan told = {0, 0};
    CRect first;
    CRect client;
    const Meanwhile hinting(*this, m_bars->hinting);
    for (int turn = 0; turn < 4 && InOnBoard(); ++turn)
    {
        const bool known = FirstRowRect(first); // for which the owner may be asked
        if (!alive || !known || first.Height() <= 0)
        {
            return;
        }
        GetClientRect(&client);
        const RowSpan rows =
            RowsDrawn(first.Height(), int(client.bottom), int(Ask(LVM_GETITEMCOUNT)));
        if (rows.first >= told.first && rows.end <= told.end)
        {
            break;
        }
        told = rows;
        TellOfRows(GetSafeHwnd(), rows.first, rows.end);
        if (!alive)
        {
            return;
        }
    }
}

void CCustomListCtrl::OnPaint()
{
    const WindowAlive alive(*this);
    if (InOnBoard())
    {
        HintOfRows();
    }
    if (!alive)
    {
        return;
    }
    if (!InOnBoard())
    {
        Default();
        return;
    }
    m_bars->BeginPaint();
    PaintContext context(*this);
    if (!alive)
    {
        return;
    }
    m_bars->Erased(); // all of it is painted
    m_bars->EndPaint();
    CRect client;
    GetClientRect(&client);
    const int top = HeaderBottom();
    context.DC().ExcludeClipRect(0, 0, client.right, top); // the header paints itself
    CRect area = context.Area();
    area.top = std::max<LONG>(area.top, top);
    BackBuffer buffer(context, area);
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
    GetVerticalDivides(columns);
    if (!alive)
    {
        return;
    }
    const int items = int(Ask(LVM_GETITEMCOUNT));
    DrawCells(dc, items, columns, (style & LVS_EX_FULLROWSELECT) != 0, client);
    if (alive && (style & LVS_EX_GRIDLINES) != 0)
    {
        DrawGrid(dc, int(Ask(LVM_GETITEMCOUNT)), client);
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

// Cells of the first row, unscrolled. The platform tells the whole row as the first column's; its
// cell stands under its heading, also when the columns were put in another order.
std::vector<CRect> CCustomListCtrl::CellsOfFirstRow(int columns)
{
    std::vector<CRect> cells(size_t(std::max(0, columns)));
    for (int column = 0; column < columns; ++column)
    {
        CRect& cell = cells[size_t(column)];
        cell.left = LVIR_BOUNDS;
        cell.top = column;
        Ask(LVM_GETSUBITEMRECT, 0, reinterpret_cast<LPARAM>(&cell));
    }
    if (columns > 1)
    {
        CRect heading;
        if (HeaderItemRect(0, heading))
        {
            cells[0].left = std::max(cells[0].left, heading.left);
            cells[0].right = heading.right;
        }
        else
        {
            cells[0].right = cells[1].left;
        }
    }
    return cells;
}

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
    RowSpan rows = RowsDrawn(height, int(rect.bottom), items);
    const WindowAlive alive(*this);
    while (rows.first < rows.end && topOf(rows.first) + height <= clip.top)
    {
        ++rows.first;
    }
    while (rows.first < rows.end && topOf(rows.end - 1) >= clip.bottom)
    {
        --rows.end;
    }
    std::set<int> selected;
    m_paintedRows = rows;
    GetSelectedRows(selected);
    if (!alive)
    {
        return;
    }
    m_paintedRows.reset();
    const int focus = RowWithFocus();
    if (!alive)
    {
        return;
    }
    m_focusRow = focus;

    std::vector<CRect> cells = CellsOfFirstRow(columns);
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
        const bool focused = row == m_focusRow;
        if (marked || focused)
        {
            bounds.right = fullRowSelect ? rect.right
                           : upToDivider ? LONG(m_gridLines.firstgrid())
                                         : bounds.right;
        }
        if (marked && bounds.Width() > 0)
        {
            dc.FillSolidRect(bounds, palette::Highlight);
        }
        if (focused && bounds.Width() > 0)
        {
            dc.DrawFocusRect(bounds);
        }
        const TextColor color(dc, marked ? palette::HighlightText : palette::FieldText);
        DrawRow(dc, row, bounds, cells, clip);
    }
}

namespace {

// Most texts fit and are plain; the others are cut, broken and underlined by the platform.
void DrawCellText(HDC dc, const WCHAR* text, CRect cell)
{
    const int length = ::lstrlenW(text);
    SIZE size = {};
    if (std::wcspbrk(text, L"&\r\n\t") == nullptr &&
        ::GetTextExtentPoint32W(dc, text, length, &size) && size.cx <= cell.Width())
    {
        ::ExtTextOutW(dc, cell.left, cell.top, ETO_CLIPPED, &cell, text, UINT(length), nullptr);
    }
    else
    {
        ::DrawTextW(dc, text, length, &cell, CellText);
    }
}

} // namespace

// The text of a cell: in text, which holds the longest one, or where its owner keeps it.
const WCHAR* CCustomListCtrl::ReadCell(int row, int column, WCHAR* text)
{
    *text = L'\0';
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = LongestText;
    Ask(LVM_GETITEMTEXTW, WPARAM(row), reinterpret_cast<LPARAM>(&item));
    return item.pszText == nullptr ? L"" : item.pszText;
}

void CCustomListCtrl::DrawRow(CDC& dc, int row, const CRect& rowRect,
                              const std::vector<CRect>& cells, const CRect& clip)
{
    WCHAR text[LongestText];
    const WindowAlive alive(*this);
    // From the last column on, so that the first one ends on top.
    for (int column = int(cells.size()) - 1; column >= 0 && alive; --column)
    {
        CRect cell = cells[size_t(column)];
        if (cell.Width() <= 0 || cell.right <= clip.left || cell.left >= clip.right)
        {
            continue;
        }
        const WCHAR* const shown = ReadCell(row, column, text);
        if (alive && *shown != L'\0')
        {
            cell.top = rowRect.top;
            cell.bottom = rowRect.bottom;
            cell.left += metrics::ListRowMargin; // under the heading
            DrawCellText(dc.GetSafeHdc(), shown, cell);
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
    const auto end = std::max_element(dividers.begin(), dividers.end());
    for (auto divider = dividers.begin(); divider != dividers.end(); ++divider)
    {
        if (divider != end) // whichever column stands there
        {
            dc.MoveTo(*divider, header.top);
            dc.LineTo(*divider, rect.bottom);
        }
    }
}
