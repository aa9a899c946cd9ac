// The list box: range, page and visibility of its bars, taken from rows and size.

#include "CustomListBox.h"
#include "lists/ListBoxBars.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"
#include "scroll/FauxScrollGeometry.h"

#include <algorithm>

bool CCustomListBox::VerifyAllowVScrollBar()
{
    return !InColumns();
}

bool CCustomListBox::VerifyAllowHScrollBar()
{
    return (m_bars->PlatformStyles() & WS_HSCROLL) != 0 || InColumns();
}

// Whether all rows are seen once the bars give their bands back.
bool CCustomListBox::FitsWithoutBars()
{
    CRect client;
    GetClientRect(&client);
    m_itemHeight = Ask(LB_GETITEMHEIGHT, 0);
    if (client.IsRectEmpty() || m_itemHeight <= 0)
    {
        return false; // the bands are not taken whole, or there is nothing to judge by
    }
    const int count = Ask(LB_GETCOUNT);
    const int height = client.Height() + metrics::ScrollBand;
    return InColumns() ? ColumnsOutOfSight(count, client.Width(), height) == 0
                       : RowsInSight(count, height) >= count &&
                             ContentWidth() <= client.Width() + metrics::ScrollBand;
}

void CCustomListBox::UpdateScrollData()
{
    const WindowAlive alive(*this);
    if (m_hBarNeeded && (m_vBarNeeded || InColumns()) && m_bars->IsFrameDone() && !m_refitting &&
        FitsWithoutBars())
    {
        // Each bar is judged by the room that the other one leaves, and that of columns by the room
        // that it leaves itself, so they would never go.
        const Meanwhile refitting(*this, m_refitting);
        for (const int axis : {SB_VERT, SB_HORZ})
        {
            Needed(axis) = false;
            Bar(axis).ShowScrollBar(FALSE);
        }
        m_bars->size.RecalculateFrame();
    }
    if (alive)
    {
        UpdateVScrollData();
    }
    if (alive)
    {
        UpdateHScrollData();
    }
}

// Shows the bars that a window of a size will call for, so that its frame is calculated once. What
// is seen otherwise then is mended as ever.
void CCustomListBox::Bars::Foresee(const CSize& window)
{
    if (!InOnBoard())
    {
        return;
    }
    CRect frame(0, 0, 0, 0);
    ::AdjustWindowRectEx(&frame, m_list.GetStyle() & WS_BORDER, FALSE, m_list.GetExStyle());
    const CSize inset(m_list.m_frameWidth - metrics::Border,
                      m_list.m_frameHeight - metrics::Border);
    const int count = int(Ask(LB_GETCOUNT, 0, 0));
    const int height = int(Ask(LB_GETITEMHEIGHT, 0, 0));
    if (count <= 0 || height <= 0)
    {
        return;
    }
    m_list.m_itemHeight = height;
    bool vertical = false;
    bool horizontal = false;
    // The room that one bar takes may call for the other.
    for (int round = 0; round < 2; ++round)
    {
        const int across =
            window.cx - frame.Width() - 2 * inset.cx - (vertical ? metrics::ScrollBand : 0);
        const int down =
            window.cy - frame.Height() - 2 * inset.cy - (horizontal ? metrics::ScrollBand : 0);
        vertical = m_list.VerifyAllowVScrollBar() && m_list.RowsInSight(count, down) < count;
        if (m_list.InColumns())
        {
            horizontal = m_list.ColumnsOutOfSight(count, across, down) > 0;
        }
        else
        {
            horizontal = m_list.VerifyAllowHScrollBar() && m_list.ContentWidth() > across;
        }
    }
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        const bool needed = axis == SB_VERT ? vertical : horizontal;
        m_list.Needed(axis) = needed;
        ShowBar(axis, needed);
    }
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
        const int visible = RowsInSight(count, client.Height());
        needed = visible < count && VerifyAllowVScrollBar();
        if (needed)
        {
            m_vBar.SetScrollRange(0, scroll::Saturated(LONGLONG{count} - visible + 1), TRUE);
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
    // A step is an average character, or a column in a list of columns. The range has no position
    // to spare, unlike the vertical one: a horizontal bar divides its track by all of its steps.
    int hidden = 0;
    int page = 1;
    const int count = Ask(LB_GETCOUNT);
    if (count > 0 && VerifyAllowHScrollBar())
    {
        CRect client;
        GetClientRect(&client);
        int step = AverageCharWidth();
        int content = 0;
        if (InColumns())
        {
            step = ColumnWidth();
            hidden = ColumnsOutOfSight(count, client.Width(), client.Height());
        }
        else
        {
            content = ContentWidth();
            const LONGLONG outside = LONGLONG{content} - client.Width();
            hidden = int(std::clamp((outside + step - 1) / step, 0LL, MaxOffset / step));
            if (!ApplyHorizontalExtent())
            {
                return;
            }
        }
        page = std::max(1, int(client.Width()) / step - 1);
    }
    const int before = m_hBar.GetScrollPos();
    m_hBar.SetScrollRange(0, hidden, TRUE);
    m_hBar.SetPageSize(page, TRUE);
    // Rows that the shorter bar cannot bring back go with it; columns go by themselves.
    if (m_hBar.GetScrollPos() != before && !InColumns() && !MoveContent(SB_HORZ))
    {
        return;
    }
    ShowBar(SB_HORZ, hidden > 0);
}

// The platform scrolls sideways as far as it is told that there is something to see. False when
// the list did not survive it.
bool CCustomListBox::ApplyHorizontalExtent()
{
    const WindowAlive alive(*this);
    const int extent = ContentWidth();
    if (Ask(LB_GETHORIZONTALEXTENT) != extent)
    {
        Ask(LB_SETHORIZONTALEXTENT, WPARAM(extent));
    }
    return bool(alive);
}

void CCustomListBox::ShowBar(int axis, bool needed)
{
    Needed(axis) = needed;
    if (m_bars->ShowBar(axis, needed))
    {
        // The new client size comes back as WM_SIZE, which places the bars. Last: it leaves our
        // code.
        m_bars->size.RecalculateFrame();
    }
}
