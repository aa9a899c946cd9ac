// The list box: what the bars take from its rows, and keeping rows and bars together.

#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"
#include "scroll/ScrollCodes.h"

#include <algorithm>
#include <string>

namespace {

constexpr double EntryHeightFactor = 1.5; // of the text's height

} // namespace

// A message for the platform's list box alone, past the handlers of this class and its heirs.
int CCustomListBox::Ask(UINT message, WPARAM wParam, LPARAM lParam)
{
    return int(DefWindowProc(message, wParam, lParam));
}

bool CCustomListBox::HasText() const
{
    const DWORD style = GetStyle();
    return (style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0 ||
           (style & LBS_HASSTRINGS) != 0;
}

// Measures --------------------------------------------------------------------------------------

int CCustomListBox::GetEntryHeight(const char* text)
{
    CClientDC dc(this);
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
    const int copied = Ask(LB_GETTEXT, WPARAM(index), reinterpret_cast<LPARAM>(text.data()));
    CClientDC dc(this);
    const Selected font(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    return int(dc.GetTextExtent(text.c_str(), std::clamp(copied, 0, length)).cx);
}

int CCustomListBox::GetMaxCharWidth()
{
    CClientDC dc(this);
    const Selected font(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    TEXTMETRIC measured = {};
    dc.GetTextMetrics(&measured);
    return int(measured.tmMaxCharWidth);
}

int CCustomListBox::AverageCharWidth()
{
    CClientDC dc(this);
    const Selected font(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    TEXTMETRIC measured = {};
    dc.GetTextMetrics(&measured);
    return std::max(1, int(measured.tmAveCharWidth));
}

// The widths of all rows are kept counted, so that the widest is known without measuring what has
// not changed. Lists that never scroll sideways are spared the measuring.
void CCustomListBox::CountWidth(int index, int change)
{
    if (index >= 0 && VerifyAllowHScrollBar())
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
    if (VerifyAllowHScrollBar())
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

// Scroll data -----------------------------------------------------------------------------------

bool CCustomListBox::VerifyAllowVScrollBar()
{
    return (GetStyle() & LBS_MULTICOLUMN) == 0;
}

bool CCustomListBox::VerifyAllowHScrollBar()
{
    return (m_platformBars & WS_HSCROLL) != 0 && (GetStyle() & LBS_MULTICOLUMN) == 0;
}

void CCustomListBox::UpdateScrollData()
{
    UpdateVScrollData();
    UpdateHScrollData();
}

void CCustomListBox::UpdateVScrollData()
{
    const int count = Ask(LB_GETCOUNT);
    if (count <= 0)
    {
        m_vBar.SetScrollPos(0, TRUE);
    }
    bool needed = false;
    m_itemHeight = Ask(LB_GETITEMHEIGHT, 0);
    if (m_itemHeight > 0)
    {
        CRect client;
        GetClientRect(&client);
        const int visible = client.Height() / m_itemHeight;
        needed = visible < count && VerifyAllowVScrollBar();
        if (needed)
        {
            m_vBar.SetScrollRange(0, count - visible + 1, TRUE);
            m_vBar.SetPageSize(visible <= 1 ? 1 : visible - 1, TRUE);
        }
    }
    if (!needed)
    {
        m_vBar.SetScrollRange(0, 0, TRUE);
    }
    ShowBar(SB_VERT, needed);
}

void CCustomListBox::UpdateHScrollData()
{
    bool needed = false;
    if (VerifyAllowHScrollBar())
    {
        CRect client;
        GetClientRect(&client);
        const int hidden = ContentWidth() - client.Width();
        needed = hidden > 0 && Ask(LB_GETCOUNT) > 0;
        if (needed)
        {
            const int step = AverageCharWidth();
            m_hBar.SetScrollRange(0, (hidden + step - 1) / step + 1, TRUE);
            m_hBar.SetPageSize(std::max(1, int(client.Width()) / step - 1), TRUE);
        }
        ApplyHorizontalExtent();
    }
    if (!needed)
    {
        m_hBar.SetScrollRange(0, 0, TRUE);
    }
    ShowBar(SB_HORZ, needed);
}

// The platform scrolls sideways as far as it is told that there is something to see.
void CCustomListBox::ApplyHorizontalExtent()
{
    const int extent = ContentWidth();
    if (Ask(LB_GETHORIZONTALEXTENT) != extent)
    {
        Ask(LB_SETHORIZONTALEXTENT, WPARAM(extent));
    }
}

void CCustomListBox::ShowBar(int axis, bool needed)
{
    const bool changed = Needed(axis) != needed;
    Needed(axis) = needed;
    if (Bar(axis).ShowScrollBar() != int(needed))
    {
        Bar(axis).ShowScrollBar(needed);
    }
    if (changed && m_ncSizeDone)
    {
        // The new client size comes back as WM_SIZE, which places the bars.
        scroll::RecalculateFrame(*this, false);
    }
}

// Filling ---------------------------------------------------------------------------------------

// For every row that is added the platform's list box shows its own bar again, which recalculates
// the frame and is taken back at once. So its redraw stays off while one row after the other is
// added, and what has to be painted is invalidated here. Whatever else happens ends the filling
// before it is handled; nobody outside can tell.

namespace {

bool IsPartOfFilling(UINT message)
{
    switch (message)
    {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_INITSTORAGE:
    case LB_GETCOUNT:
    case LB_GETITEMDATA:
    case LB_SETITEMDATA:
        return true;
    default:
        return false;
    }
}

} // namespace

LRESULT CCustomListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_filling && !IsPartOfFilling(message))
    {
        EndFilling();
    }
    return CListBox::WindowProc(message, wParam, lParam);
}

void CCustomListBox::BeginFilling()
{
    if (!m_filling && m_hostRedraw && (GetStyle() & LBS_MULTICOLUMN) == 0)
    {
        m_filling = true;
        Ask(WM_SETREDRAW, FALSE);
    }
}

void CCustomListBox::EndFilling()
{
    m_filling = false;
    // Switching on invalidates everything; only what was due stays due.
    CRgn due;
    due.CreateRectRgn(0, 0, 0, 0);
    ::GetUpdateRgn(GetSafeHwnd(), due, FALSE);
    Ask(WM_SETREDRAW, TRUE);
    ::ValidateRect(GetSafeHwnd(), nullptr);
    ::InvalidateRgn(GetSafeHwnd(), due, TRUE);
}

void CCustomListBox::InvalidateFrom(int index)
{
    CRect row;
    CRect client;
    GetClientRect(&client);
    if (m_filling && Ask(LB_GETITEMRECT, WPARAM(index), reinterpret_cast<LPARAM>(&row)) != LB_ERR &&
        row.top < client.bottom)
    {
        client.top = std::max(client.top, row.top);
        InvalidateRect(client, TRUE);
    }
}

LRESULT CCustomListBox::OnSetRedraw(WPARAM wParam, LPARAM lParam)
{
    m_hostRedraw = wParam != FALSE;
    return OnMayScroll(wParam, lParam);
}

// Rows and bars together ------------------------------------------------------------------------

// The content goes where the bar is; what the platform makes of it is mirrored back, so that the
// bar never runs ahead of the rows.
void CCustomListBox::MoveContent(int axis)
{
    if (axis == SB_VERT)
    {
        Ask(LB_SETTOPINDEX, WPARAM(m_vBar.GetScrollPos()));
    }
    else
    {
        const int pixels = std::min<int>(m_hBar.GetScrollPos() * AverageCharWidth(), 0xFFFF);
        Ask(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, pixels));
    }
    MirrorContent(axis);
}

void CCustomListBox::MirrorContent(int axis)
{
    if (!Needed(axis))
    {
        return;
    }
    CFauxScrollBar& bar = Bar(axis);
    int shown = 0;
    if (axis == SB_VERT)
    {
        shown = Ask(LB_GETTOPINDEX);
    }
    else
    {
        // Sideways the platform tells no position: the bar leads, as far as there is content. Its
        // range has one position more, as the vertical one has.
        int minimum = 0;
        int maximum = 0;
        bar.GetScrollRange(&minimum, &maximum);
        shown = std::min(bar.GetScrollPos(), maximum - 1);
    }
    // A drag leaves the thumb between two positions; a position that holds is not set again.
    if (shown != bar.GetScrollPos())
    {
        bar.SetScrollPos(shown, TRUE);
    }
}

void CCustomListBox::MirrorContent()
{
    MirrorContent(SB_VERT);
    MirrorContent(SB_HORZ);
}

void CCustomListBox::ContentChanged()
{
    UpdateScrollData();
    MirrorContent();
    DrawOBScrollBars();
}

LRESULT CCustomListBox::OnAddString(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    if (FollowMode())
    {
        BeginFilling();
    }
    const LRESULT result = Default();
    if (alive && result >= 0 && FollowMode())
    {
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
    const int index = int(wParam);
    const bool exists = index >= 0 && index < Ask(LB_GETCOUNT);
    if (onBoard && exists)
    {
        CountWidth(index, -1);
    }
    // The owner hears of the deletion (WM_DELETEITEM) and may end the list there.
    const LRESULT result = Default();
    if (alive && result >= 0 && FollowMode())
    {
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
        m_hBar.SetScrollPos(0, TRUE);
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnSetFont(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive)
    {
        MeasureRows();
    }
    if (alive && FollowMode())
    {
        CountAllWidths();
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnContentReplaced(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive && FollowMode())
    {
        CountAllWidths();
        ContentChanged();
    }
    return result;
}

LRESULT CCustomListBox::OnMayScroll(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive && FollowMode())
    {
        MirrorContent();
        DrawOBScrollBars();
    }
    return result;
}

LRESULT CCustomListBox::OnSetHorizontalExtent(WPARAM wParam, LPARAM)
{
    if (!FollowMode())
    {
        return Default();
    }
    m_hostExtent = std::max(0, int(wParam));
    ContentChanged();
    return 0;
}

LRESULT CCustomListBox::OnGetHorizontalExtent(WPARAM, LPARAM)
{
    return m_onBoard ? m_hostExtent : Default();
}

int CCustomListBox::SetScrollPos(int bar, int position, int redraw)
{
    if (!FollowMode() || (bar != SB_VERT && bar != SB_HORZ))
    {
        return CListBox::SetScrollPos(bar, position, redraw);
    }
    const int before = Bar(bar).SetScrollPos(position, redraw);
    MoveContent(bar);
    if (redraw)
    {
        DrawOBScrollBars();
    }
    return before;
}
