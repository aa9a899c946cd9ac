// The report list: following the display mode, with what was in sight.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListLayout.h"
#include "modes/ModeFollowing.h"
#include "modes/WindowAlive.h"
#include "scroll/NcBands.h"

// Lays the window out for the mode of the moment when it is still laid out for the other kind.
// Returns whether it is laid out for an on-board mode.
bool CCustomListCtrl::FollowMode()
{
    if (m_creating)
    {
        return false;
    }
    return ::FollowMode(
        *this, m_onBoard, m_following, [this] { EnterOnBoard(); }, [this] { LeaveOnBoard(); });
}

void CCustomListCtrl::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_view = CurrentView(int(Ask(LVM_GETTOPINDEX)), int(Ask(LVM_GETCOUNTPERPAGE)));
    m_wheel = 0;
    m_resizePending = true;
    m_measured = Measured();
    StripBars();
    TakeHeader();
    HoldPlatform();
    if (alive)
    {
        ScalePlatformColumns(true);
    }
    if (alive)
    {
        RelayoutFrame();
    }
    if (alive)
    {
        ReCheckScrollBars();
    }
    if (alive)
    {
        RestoreView();
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN);
    }
}

void CCustomListCtrl::LeaveOnBoard()
{
    const WindowAlive alive(*this);
    m_view = CurrentView(TopRow(), RowsInSight());
    EndTracking();
    if (m_header.IsHotTracking())
    {
        m_header.EndTracking();
        if (!alive)
        {
            return;
        }
    }
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        Bar(axis).ShowScrollBar(FALSE);
        Bar(axis).SetScrollRange(0, 0);
    }
    m_drawOffset = CPoint(0, 0);
    m_furtherOffset = CPoint(0, 0);
    m_fittedColumn = -1;
    m_resizePending = true;
    m_header.OBResetScroll(FALSE);
    ScalePlatformColumns(false);
    if (!alive)
    {
        return;
    }
    scroll::RestoreScrollStyles(*this, m_platformBars);
    m_platformBars = 0;
    RelayoutFrame();
    if (alive)
    {
        RestoreView();
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

void CCustomListCtrl::RelayoutFrame()
{
    const WindowAlive alive(*this);
    scroll::RecalculateFrame(*this, false);
    if (alive)
    {
        // The platform's list lays itself out again when its size is told.
        CRect client;
        GetClientRect(&client);
        Ask(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    }
}

void CCustomListCtrl::StripBars()
{
    m_platformBars |= scroll::StripScrollStyles(*this);
}

// The row at the top, and a selected row in sight: the one with the focus before others.
CCustomListCtrl::View CCustomListCtrl::CurrentView(int top, int rows)
{
    View view = {top, -1};
    const int end = std::min(top + rows, GetItemCount());
    const auto selected = [this](int row) {
        return row >= 0 && Ask(LVM_GETITEMSTATE, WPARAM(row), LVIS_SELECTED) != 0;
    };
    const int focus = GetNextItem(-1, LVNI_FOCUSED);
    if (focus >= view.top && focus < end && selected(focus))
    {
        view.selected = focus;
    }
    for (int row = view.top; row < end && view.selected == -1; ++row)
    {
        view.selected = selected(row) ? row : -1;
    }
    return view;
}

void CCustomListCtrl::RestoreView()
{
    CRect first;
    if (!m_view || !FirstRowRect(first) || first.Height() <= 0)
    {
        return;
    }
    const int rows = m_onBoard ? RowsInSight() : int(Ask(LVM_GETCOUNTPERPAGE));
    const int top = m_view->selected == -1
                        ? m_view->top
                        : listctrl::TopToShow(m_view->selected, m_view->top, rows);
    if (m_onBoard)
    {
        MoveTo(SB_VERT, top);
    }
    else
    {
        Ask(LVM_SCROLL, 0, LPARAM(top - int(Ask(LVM_GETTOPINDEX))) * first.Height());
    }
}
