// The list box: what the bars take from its rows, and keeping rows and bars together.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "lists/ListBoxBars.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"
#include "paint/Metrics.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>
#include <string>

namespace {

constexpr double EntryHeightFactor = 1.5; // of the text's height

bool OwnerDrawn(const CListBox& list)
{
    return (list.GetStyle() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) != 0;
}

} // namespace

int CCustomListBox::Ask(UINT message, WPARAM wParam, LPARAM lParam)
{
    return int(DefWindowProc(message, wParam, lParam));
}

bool CCustomListBox::HasText() const
{
    return !OwnerDrawn(*this) || (GetStyle() & LBS_HASSTRINGS) != 0;
}

// Measures --------------------------------------------------------------------------------------

HFONT CCustomListBox::Font()
{
    return reinterpret_cast<HFONT>(DefWindowProc(WM_GETFONT, 0, 0));
}

// The font in which rows are drawn: DrawItem has its own on-board.
HFONT CCustomListBox::RowFont()
{
    return OwnerDrawn(*this) && COnBoardUIGeneral::InOnBoardMode()
               ? static_cast<HFONT>(GetOnBoardFont().GetSafeHandle())
               : Font();
}

int CCustomListBox::GetEntryHeight(const char* text)
{
    CDC& dc = MeasuringDC();
    const Selected font(dc, GetOnBoardFont());
    const CString measured(text == nullptr || *text == '\0' ? " " : text); // a row all the same
    return int(dc.GetTextExtent(measured).cy * EntryHeightFactor);
}

int CCustomListBox::GetEntryWidth(int index)
{
    const int length = HasText() ? Ask(LB_GETTEXTLEN, WPARAM(index)) : LB_ERR;
    if (length == LB_ERR)
    {
        return 0;
    }
    std::string text(size_t(length) + 1, '\0');
    const int copied = std::clamp(
        Ask(LB_GETTEXT, WPARAM(index), reinterpret_cast<LPARAM>(text.data())), 0, length);
    CDC& dc = MeasuringDC();
    const Selected font(dc, RowFont());
    if ((GetStyle() & LBS_USETABSTOPS) != 0 && !OwnerDrawn(*this))
    {
        // Stops that the host has set are not to be had back; these are the platform's own.
        return LOWORD(::GetTabbedTextExtent(dc, text.c_str(), copied, 0, nullptr));
    }
    return int(dc.GetTextExtent(text.c_str(), copied).cx);
}

int CCustomListBox::GetMaxCharWidth()
{
    CDC& dc = MeasuringDC();
    const Selected font(dc, Font());
    TEXTMETRIC measured = {};
    dc.GetTextMetrics(&measured);
    return int(measured.tmMaxCharWidth);
}

int CCustomListBox::AverageCharWidth()
{
    if (m_averageWidth == 0)
    {
        CDC& dc = MeasuringDC();
        const Selected font(dc, Font());
        TEXTMETRIC measured = {};
        dc.GetTextMetrics(&measured);
        m_averageWidth = std::max(1, int(measured.tmAveCharWidth));
    }
    return m_averageWidth;
}

int CCustomListBox::HeightOfRow(int index)
{
    return (GetStyle() & LBS_OWNERDRAWVARIABLE) != 0 ? Ask(LB_GETITEMHEIGHT, WPARAM(index))
                                                     : m_itemHeight;
}

// How many rows fit into a height: whole ones, counted from the last where they differ.
int CCustomListBox::RowsInSight(int count, int height)
{
    if ((GetStyle() & LBS_OWNERDRAWVARIABLE) == 0)
    {
        return height / m_itemHeight;
    }
    int rows = 0;
    for (int used = 0; rows < count; ++rows)
    {
        used += HeightOfRow(count - 1 - rows);
        if (used > height)
        {
            break;
        }
    }
    return rows;
}

int CCustomListBox::RowsInColumn(int height) const
{
    return m_itemHeight <= 0 ? 1 : std::max(1, height / m_itemHeight);
}

int CCustomListBox::RowsInColumn()
{
    CRect client;
    GetClientRect(&client);
    return RowsInColumn(client.Height());
}

// Of a list with rows.
int CCustomListBox::ColumnWidth()
{
    CRect row;
    Ask(LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    return std::max(1, row.Width());
}

// How many columns a client area of this size does not hold.
int CCustomListBox::ColumnsOutOfSight(int count, int width, int height)
{
    const LONGLONG rows = RowsInColumn(height);
    const int inSight = std::max(1, width / ColumnWidth());
    return int(std::max(0LL, (count + rows - 1) / rows - inSight));
}

// The widths of all rows are kept counted, so that the widest is known without measuring what has
// not changed. Lists that never scroll sideways, and those that keep nothing for each row, are
// spared the measuring.
bool CCustomListBox::CountsWidths()
{
    return VerifyAllowHScrollBar() && !InColumns() && (GetStyle() & LBS_NODATA) == 0;
}

void CCustomListBox::CountWidth(int index, int change)
{
    if (index >= 0 && CountsWidths())
    {
        const int width = GetEntryWidth(index);
        int& count = m_widths[width];
        count += change;
        if (count <= 0)
        {
            m_widths.erase(width);
        }
    }
}

void CCustomListBox::CountAllWidths()
{
    m_widths.clear();
    m_widthsFont = RowFont();
    if (CountsWidths())
    {
        const int count = Ask(LB_GETCOUNT);
        for (int index = 0; index < count; ++index)
        {
            CountWidth(index, 1);
        }
    }
}

int CCustomListBox::ContentWidth() const
{
    const int text = m_widths.empty() ? 0 : m_widths.rbegin()->first + 2 * metrics::ListRowMargin;
    return std::max(text, m_hostExtent);
}

// Rows and bars together ------------------------------------------------------------------------

// The content goes where the bar is; what the platform makes of it is mirrored back, so that the
// bar never runs ahead of the rows. False when the list did not survive it.
bool CCustomListBox::MoveContent(int axis)
{
    const WindowAlive alive(*this);
    const int position = Bar(axis).GetScrollPos();
    if (axis == SB_VERT)
    {
        Ask(LB_SETTOPINDEX, WPARAM(position));
    }
    else if (InColumns())
    {
        Ask(LB_SETTOPINDEX, WPARAM(position) * WPARAM(RowsInColumn()));
    }
    else
    {
        const LONGLONG pixels = LONGLONG{position} * AverageCharWidth();
        Ask(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, std::min(pixels, MaxOffset)));
    }
    if (alive)
    {
        MirrorContent(axis);
    }
    return bool(alive);
}

void CCustomListBox::MirrorContent(int axis)
{
    // Sideways the platform tells no position, except in columns: there the bar leads.
    if (!Needed(axis) || (axis == SB_HORZ && !InColumns()))
    {
        return;
    }
    const int top = Ask(LB_GETTOPINDEX);
    const int shown = axis == SB_VERT ? top : top / RowsInColumn();
    // A drag leaves the thumb between two positions; a position that holds is not set again.
    if (shown != Bar(axis).GetScrollPos())
    {
        Bar(axis).SetScrollPos(shown, TRUE);
    }
}

void CCustomListBox::MirrorContent()
{
    MirrorContent(SB_VERT);
    MirrorContent(SB_HORZ);
}

// False when the list did not survive it.
bool CCustomListBox::ContentChanged()
{
    const WindowAlive alive(*this);
    UpdateScrollData();
    if (alive)
    {
        MirrorContent();
        DrawOBScrollBars();
    }
    return bool(alive);
}

LRESULT CCustomListBox::OnAddString(WPARAM wParam, LPARAM lParam)
{
    const UINT message = GetCurrentMessage()->message;
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        BeginFilling();
    }
    // Its own parameters and not the message's: an heir may keep something else with the row.
    const LRESULT result = alive ? DefWindowProc(message, wParam, lParam) : LB_ERR;
    if (alive && result >= 0 && FollowMode())
    {
        m_bars->standardHeights.clear();
        InvalidateFrom(int(result));
        CountWidth(int(result), 1);
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnInsertString(WPARAM wParam, LPARAM lParam)
{
    return OnAddString(wParam, lParam);
}

LRESULT CCustomListBox::OnDeleteString(WPARAM wParam, LPARAM)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return LB_ERR;
    }
    const int index = int(wParam);
    const bool counted = onBoard && index >= 0 && index < Ask(LB_GETCOUNT);
    if (counted)
    {
        CountWidth(index, -1);
    }
    const int top = Ask(LB_GETTOPINDEX);
    // The owner hears of the deletion (WM_DELETEITEM) and may end the list there.
    const LRESULT result = Default();
    if (alive && result < 0 && counted)
    {
        CountWidth(index, 1);
    }
    if (alive && result >= 0 && FollowMode())
    {
        m_bars->standardHeights.clear();
        if (index < top)
        {
            Invalidate(); // not every platform does, though all rows in sight are others
        }
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnResetContent(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive && FollowMode())
    {
        m_widths.clear();
        m_bars->standardHeights.clear();
        m_hBar.SetScrollPos(0, TRUE);
        if (!m_hBarNeeded || MoveContent(SB_HORZ))
        {
            ContentChanged();
        }
    }
    return result;
}

LRESULT CCustomListBox::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    m_bars->KeepRows();
    // Whoever restyles a list between two on-board modes gives it the font that it has. Only of the
    // shared font is it known that the handle is still the same font.
    const HFONT onBoard = GetOnBoardFont();
    const bool same =
        reinterpret_cast<HFONT>(wParam) == onBoard && m_bars->InOnBoard() && Font() == onBoard;
    const LRESULT result = same ? 0 : Default();
    if (same && LOWORD(lParam) != 0)
    {
        Invalidate();
    }
    const bool laidOut = alive && FollowMode();
    if (!alive || m_bars->AwaitsPlace())
    {
        return result;
    }
    if (!laidOut)
    {
        if (!m_bars->IsLaidOut() && InColumns() && IsBeingPlaced(*this))
        {
            m_bars->TakeNeedlessBars(); // a change gives every list box a bar before the font
        }
        return result;
    }
    m_averageWidth = 0;
    m_bars->standardHeights.clear();
    MeasureRows();
    // A list that has just entered the mode has counted them. Of another font than the shared one
    // it is not known whether the handle is still the same font.
    if (alive &&
        (RowFont() != m_widthsFont || m_widthsFont != static_cast<HFONT>(GetOnBoardFont())))
    {
        CountAllWidths();
    }
    // The steps have another length; the content goes where the bar says.
    if (alive && ContentChanged() && m_hBarNeeded)
    {
        MoveContent(SB_HORZ);
    }
    return result;
}

LRESULT CCustomListBox::OnContentReplaced(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    const LRESULT result = DefWindowProc(GetCurrentMessage()->message, wParam, lParam);
    if (alive && FollowMode())
    {
        m_bars->standardHeights.clear();
        CountAllWidths();
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnMayScroll(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    const UINT message = GetCurrentMessage()->message;
    const LRESULT result = DefWindowProc(message, wParam, lParam);
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
        CRect row;
        if (alive && message == LB_SETCURSEL && ::GetFocus() == GetSafeHwnd() &&
            Ask(LB_GETITEMRECT, WPARAM(Ask(LB_GETCARETINDEX)), reinterpret_cast<LPARAM>(&row)) !=
                LB_ERR)
        {
            // The platform paints the rectangle of the focus into the new row only next time.
            InvalidateRect(&row, FALSE);
        }
    }
    return result;
}

// Behind a row that is not there comes the first. The platform reads past its rows for some.
WPARAM CCustomListBox::SearchStart(WPARAM after)
{
    return Exists(int(after)) ? after : WPARAM(-1);
}

LRESULT CCustomListBox::OnFindString(WPARAM wParam, LPARAM lParam)
{
    return DefWindowProc(GetCurrentMessage()->message, SearchStart(wParam), lParam);
}

LRESULT CCustomListBox::OnSelectString(WPARAM wParam, LPARAM lParam)
{
    return OnMayScroll(SearchStart(wParam), lParam);
}

void CCustomListBox::RowsFitted()
{
    if (m_bars->InOnBoard() && !m_bars->IsFollowing() && !m_bars->AwaitsPlace())
    {
        ContentChanged();
    }
}

LRESULT CCustomListBox::OnRowsMeasured(WPARAM wParam, LPARAM lParam)
{
    const UINT message = GetCurrentMessage()->message;
    if (message == LB_SETCOLUMNWIDTH && int(wParam) <= 0)
    {
        return 0; // the platform divides by it
    }
    const WindowAlive alive(*this);
    const LRESULT result = DefWindowProc(message, wParam, lParam);
    if (alive && FollowMode())
    {
        m_bars->standardHeights.clear();
        if (!m_bars->AwaitsPlace()) // else it is laid out there
        {
            ContentChanged();
        }
    }
    return result;
}

LRESULT CCustomListBox::OnSetHorizontalExtent(WPARAM wParam, LPARAM)
{
    const WindowAlive alive(*this);
    if (!FollowMode())
    {
        return alive ? Default() : 0;
    }
    m_hostExtent = std::max(0, int(wParam));
    ContentChanged();
    return 0;
}

LRESULT CCustomListBox::OnGetHorizontalExtent(WPARAM, LPARAM)
{
    return m_bars->IsLaidOut() ? m_hostExtent : Default();
}

int CCustomListBox::SetScrollPos(int bar, int position, int redraw)
{
    const WindowAlive alive(*this);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return 0;
    }
    if (!onBoard || (bar != SB_VERT && bar != SB_HORZ))
    {
        return CListBox::SetScrollPos(bar, position, redraw);
    }
    const int before = Bar(bar).SetScrollPos(position, redraw);
    if (MoveContent(bar) && redraw)
    {
        DrawOBScrollBars();
    }
    return before;
}
