// The report list: what its bars show, and scrolling by the drawing offset.

#include "CustomListCtrl.h"
#include "GMSUtil.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/Meanwhile.h"
#include "modes/WindowAlive.h"

#include <algorithm>

// Painting the bars ------------------------------------------------------------------------------

void CCustomListCtrl::DrawBars()
{
    if (!InOnBoard() || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    ResizeOBScrollBars();
    if (alive)
    {
        // The outlines cross in the corner; the vertical bar's lies on top.
        const bool painted = m_bars->DrawBar(SB_HORZ);
        m_bars->DrawBar(SB_VERT, painted);
    }
}

void CCustomListCtrl::DrawScrollBars()
{
    const WindowAlive alive(*this);
    DrawBars();
    if (!alive || !InOnBoard())
    {
        return;
    }
    const CRect before = m_fittedTo;
    FitLastColumn();
    if (alive && m_fittedTo != before)
    {
        KeepInStep(LVM_SETCOLUMNWIDTH, true);
    }
}

// What the bars show -----------------------------------------------------------------------------

void CCustomListCtrl::ShowBar(int axis, bool needed, bool& frameChanged)
{
    if (!m_bars->ShowBar(axis, needed))
    {
        return;
    }
    const WindowAlive alive(*this);
    frameChanged = true;
    m_bars->RelayoutFrame();
    if (alive && axis == SB_VERT && HeaderBottom() > 0)
    {
        m_header.RepositionHeaderStrip(); // a list with LVS_OWNERDATA leaves it as wide as it was
    }
}

// Gives a bar what it is to show, and brings the offset to where that leaves its position.
void CCustomListCtrl::ShowContent(int axis, const listctrl::BarData& data, bool& frameChanged)
{
    const WindowAlive alive(*this);
    CFauxScrollBar& bar = Bar(axis);
    if (data.needed)
    {
        bar.SetScrollRange(0, data.maximum, TRUE);
        bar.SetPageSize(data.page, TRUE);
        MoveTo(axis, bar.GetScrollPos());
    }
    else
    {
        MoveTo(axis, 0); // what is left to scroll could not be reached without a bar
        if (alive)
        {
            bar.SetScrollRange(0, 0, TRUE); // nor is there anything for a wheel to scroll
        }
    }
    if (alive)
    {
        ShowBar(axis, data.needed, frameChanged);
    }
}

void CCustomListCtrl::UpdateVScrollData()
{
    const WindowAlive alive(*this);
    bool frameChanged = false;
    CRect row;
    CRect client;
    GetClientRect(&client);
    const int items = int(Ask(LVM_GETITEMCOUNT));
    const int height = FirstRowRect(row) ? row.Height() : 0;
    m_measured.items = items;
    m_measured.rowHeight = height;
    if (items > 0 && height <= 0)
    {
        return;
    }
    if (height > 0 && m_scrollUnit.cy > 0 && height != m_scrollUnit.cy)
    {
        m_drawOffset.y = listctrl::OffsetDown(
            -LONGLONG{TopRow()} * height); // the same row at the top, whatever the height
    }
    m_scrollUnit.cy = height > 0 ? height : m_scrollUnit.cy;

    const listctrl::BarData data = listctrl::VerticalBar(items, height, client.Height());
    // An empty list has nothing to scroll back by a line.
    if (items > 0 && m_vBar.GetScrollPos() > data.Limit())
    {
        const Meanwhile stepsBack(*this, m_bars->stepsBack);
        PerformVScroll(SB_LINEUP);
    }
    if (alive)
    {
        ShowContent(SB_VERT, data, frameChanged);
    }
}

void CCustomListCtrl::UpdateHScrollData(bool& frameChanged)
{
    const WindowAlive alive(*this);
    frameChanged = false;
    if (m_fittedColumn != -1)
    {
        FitLastColumn();
        if (!alive)
        {
            return;
        }
    }
    CRect last;
    CRect client;
    GetClientRect(&client);
    const int column = LastColumn();
    const int total = HeaderItemRect(column, last) ? int(last.right) : 0;
    m_measured.columns = ColumnCount();
    m_measured.last = column;
    m_measured.right = total;
    m_measured.client = client.Size();
    const int step = client.Width() / listctrl::StepsAcross;
    if (step <= 0)
    {
        return;
    }
    m_scrollUnit.cx = step;
    const listctrl::BarData data = listctrl::HorizontalBar(total, step, client.Width());
    if (m_hBar.GetScrollPos() > data.Limit())
    {
        PerformHScroll(SB_LINELEFT);
    }
    if (alive)
    {
        ShowContent(SB_HORZ, data, frameChanged);
    }
}

void CCustomListCtrl::ReCheckScrollBars()
{
    if (!InOnBoard() || GetSafeHwnd() == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    m_bars->TakePlatformBars();
    if (alive)
    {
        UpdateScrollData();
    }
    if (alive)
    {
        DrawScrollBars();
    }
    if (alive)
    {
        Invalidate(FALSE);
    }
}

// Scrolling --------------------------------------------------------------------------------------

void CCustomListCtrl::PerformVScroll(int newPos, int oldPos)
{
    if (m_vBar.GetScrollPos() != newPos)
    {
        m_vBar.SetScrollPos(newPos, TRUE);
    }
    if (newPos != oldPos && !m_bars->stepsBack)
    {
        m_view.reset(); // what is in sight was chosen since the mode has changed
    }
    const LONGLONG down = (LONGLONG{newPos} - oldPos) * m_scrollUnit.cy;
    const int before = int(m_drawOffset.y);
    m_drawOffset.y = listctrl::OffsetDown(before - down);
    const WindowAlive alive(*this);
    DrawScrollBars();
    if (alive)
    {
        ShiftPixels(int(m_drawOffset.y) - before);
    }
    if (alive && m_drawOffset.y != before)
    {
        EndLabelEdit();
    }
    if (alive && m_vBar.GetScrollPos() != newPos)
    {
        MoveTo(SB_VERT, m_vBar.GetScrollPos()); // the bar has no such position
    }
}

void CCustomListCtrl::PerformVScroll(int code)
{
    Perform(SB_VERT, code);
}

void CCustomListCtrl::PerformHScroll(int newPos, int oldPos)
{
    if (m_hBar.GetScrollPos() != newPos)
    {
        m_hBar.SetScrollPos(newPos, TRUE);
    }
    const LONGLONG right = (LONGLONG{newPos} - oldPos) * m_scrollUnit.cx;
    const int before = int(m_drawOffset.x);
    m_drawOffset.x = listctrl::OffsetAcross(before - right);
    const WindowAlive alive(*this);
    m_header.OBScrollHeader(int(m_drawOffset.x) - before, TRUE);
    if (alive)
    {
        DrawScrollBars();
    }
    if (alive)
    {
        Invalidate(FALSE);
    }
    if (alive && m_drawOffset.x != before)
    {
        EndLabelEdit();
    }
    if (alive && m_hBar.GetScrollPos() != newPos)
    {
        MoveTo(SB_HORZ, m_hBar.GetScrollPos());
    }
}

void CCustomListCtrl::PerformHScroll(int code)
{
    Perform(SB_HORZ, code);
}

void CCustomListCtrl::Perform(int axis, int code)
{
    const int before = Bar(axis).GetScrollPos();
    Bar(axis).HandleScroll(UINT(code), 0, nullptr);
    const int after = Bar(axis).GetScrollPos();
    if (axis == SB_VERT)
    {
        PerformVScroll(after, before);
    }
    else
    {
        PerformHScroll(after, before);
    }
}

// Brings bar and offset to a position, also when they have come apart.
void CCustomListCtrl::MoveTo(int axis, int position)
{
    CFauxScrollBar& bar = Bar(axis);
    bar.SetScrollPos(position, TRUE);
    const bool vertical = axis == SB_VERT;
    const int unit = int(vertical ? m_scrollUnit.cy : m_scrollUnit.cx);
    const LONGLONG scrolled = -LONGLONG{bar.GetScrollPos()} * unit;
    const int wanted = vertical ? listctrl::OffsetDown(scrolled) : listctrl::OffsetAcross(scrolled);
    const int now = int(vertical ? m_drawOffset.y : m_drawOffset.x);
    if (wanted == now)
    {
        return;
    }
    const WindowAlive alive(*this);
    if (vertical)
    {
        m_drawOffset.y = wanted;
    }
    else
    {
        m_drawOffset.x = wanted;
        m_header.OBScrollHeader(wanted - now, TRUE);
    }
    if (alive)
    {
        Invalidate(FALSE);
        DrawBars();
    }
}

LRESULT CCustomListCtrl::OnSetView(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT set = Default();
    if (alive)
    {
        m_bars->viewSet = m_bars->viewSet || set == 1;
        InOnBoard() ? FitLastColumn() : void(); // of a report again
    }
    return set;
}

// After the rows were scrolled: what is on the screen moves along, so that only the rows that come
// into sight are to be painted.
void CCustomListCtrl::ShiftPixels(int dy)
{
    CRect area;
    CRect first;
    GetClientRect(&area);
    const int height = int(m_scrollUnit.cy);
    const WindowAlive alive(*this);
    area.top = FirstRowRect(first) ? int(first.top) : HeaderBottom(); // grid lines keep a gap
    if (!alive)
    {
        return;
    }
    if (height > 0)
    {
        // Below the last row that is drawn nothing is.
        area.bottom = std::min<LONG>(area.bottom, area.top + area.bottom / height * height);
    }
    if (dy == 0)
    {
        return;
    }
    if (height <= 0 || area.Height() <= 0 || dy >= area.Height() || -dy >= area.Height() ||
        m_header.IsHotTracking() || !::IsWindowVisible(GetSafeHwnd()) ||
        Ask(LVM_GETEDITCONTROL) != 0) // its pixels would move along
    {
        Invalidate(FALSE);
        return;
    }
    ::ScrollWindowEx(GetSafeHwnd(), 0, dy, area, area, nullptr, nullptr, SW_INVALIDATE);
}

void CCustomListCtrl::BringIntoSight(int row)
{
    if (row >= 0 && row < int(Ask(LVM_GETITEMCOUNT)) && m_vBar.ShowScrollBar())
    {
        const int before = m_vBar.GetScrollPos();
        m_vBar.SetScrollPos(listctrl::TopToShow(row, TopRow(), RowsInSight()), TRUE);
        PerformVScroll(m_vBar.GetScrollPos(), before);
    }
}

LRESULT CCustomListCtrl::OnEnsureVisible(WPARAM wParam, LPARAM)
{
    const int row = int(wParam);
    if (!InOnBoard())
    {
        return Default();
    }
    const bool exists = row >= 0 && row < int(Ask(LVM_GETITEMCOUNT));
    BringIntoSight(row);
    return exists;
}

// Pixels, taken as whole rows and steps.
LRESULT CCustomListCtrl::OnScroll(WPARAM wParam, LPARAM lParam)
{
    if (!InOnBoard())
    {
        return Default();
    }
    const WindowAlive alive(*this);
    if (m_scrollUnit.cy > 0 && m_vBar.ShowScrollBar())
    {
        const int before = m_vBar.GetScrollPos();
        m_vBar.IncrementScrollPos(int(lParam) / int(m_scrollUnit.cy));
        PerformVScroll(m_vBar.GetScrollPos(), before);
    }
    if (alive && m_scrollUnit.cx > 0 && m_hBar.ShowScrollBar())
    {
        const int before = m_hBar.GetScrollPos();
        m_hBar.IncrementScrollPos(int(wParam) / int(m_scrollUnit.cx));
        PerformHScroll(m_hBar.GetScrollPos(), before);
    }
    return TRUE;
}

void CCustomListCtrl::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (!InOnBoard() || bar != nullptr)
    {
        const WindowAlive alive(*this);
        CListCtrl::OnVScroll(code, position, bar);
        if (alive && bar == nullptr && !IsVistaOrHigher())
        {
            RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        }
        return;
    }
    // A drag scrolls by itself; a thumb that the pointer only rests on is not dragged.
    if (!m_bars->IsDragging())
    {
        PerformVScroll(int(code));
    }
}

void CCustomListCtrl::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (!InOnBoard() || bar != nullptr || m_bars->IsDragging())
    {
        CListCtrl::OnHScroll(code, position, bar);
        return;
    }
    PerformHScroll(int(code));
}
