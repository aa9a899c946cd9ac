// The report list: following the display mode, with what was in sight.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"

void CCustomListCtrl::EnterOnBoard()
{
    const WindowAlive alive(*this);
    if (!m_view || !m_bars->AwaitsPlace()) // else it has not been brought back yet
    {
        m_view = CurrentView(int(Ask(LVM_GETTOPINDEX)), int(Ask(LVM_GETCOUNTPERPAGE)));
    }
    m_wheel = 0;
    m_bars->SetPlacingDue(true);
    m_measured = Measured();
    m_bars->TakePlatformBars();
    if (alive)
    {
        TakeHeader();
    }
    if (alive)
    {
        HoldPlatform();
    }
    if (alive)
    {
        ScalePlatformColumns(true);
    }
    if (alive && !m_bars->AwaitPlace())
    {
        m_bars->LayOut();
    }
}

void CCustomListCtrl::LeaveOnBoard()
{
    const WindowAlive alive(*this);
    if (!m_view || !m_bars->AwaitsPlace())
    {
        m_view = CurrentView(TopRow(), RowsInSight());
    }
    m_bars->End();
    if (m_header.IsHotTracking())
    {
        m_header.EndTracking();
        if (!alive)
        {
            return;
        }
    }
    m_bars->HideBars();
    m_drawOffset = CPoint(0, 0);
    m_furtherOffset = CPoint(0, 0);
    m_fittedColumn = -1;
    m_header.OBResetScroll(FALSE);
    ScalePlatformColumns(false);
    if (!alive)
    {
        return;
    }
    m_bars->GivePlatformBars();
    if (alive)
    {
        m_bars->SetPlatformStyles(0);
    }
    if (alive && !m_bars->AwaitPlace())
    {
        m_bars->LayOut();
    }
}

// The rest of entering or leaving a mode, in a new frame.
void CCustomListCtrl::Bars::LayOut()
{
    const WindowAlive alive(m_list);
    RelayoutFrame();
    if (alive)
    {
        m_list.ReCheckScrollBars();
    }
    if (alive)
    {
        m_list.RestoreView();
    }
    if (alive)
    {
        const UINT erase = InOnBoard() ? 0 : RDW_ERASE;
        m_list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | erase);
    }
}

// A list that gets its place with its font --------------------------------------------------------

bool CCustomListCtrl::Bars::AwaitPlace()
{
    return m_awaitsPlace = IsBeingPlaced(m_list);
}

void CCustomListCtrl::Bars::TakePlace(WINDOWPOS& position)
{
    CRect row;
    if (!m_awaitsPlace)
    {
        return;
    }
    position.flags |= SWP_FRAMECHANGED;
    if (InOnBoard() && (position.flags & SWP_NOSIZE) == 0 && m_list.FirstRowRect(row))
    {
        // The frame at once with the bars that so many rows and such columns call for.
        const int high = position.cy - 2 * ::GetSystemMetrics(SM_CXFRAME);
        const int wide = position.cx - 2 * ::GetSystemMetrics(SM_CYFRAME);
        const int items = int(Ask(LVM_GETITEMCOUNT, 0, 0));
        const bool vertical = listctrl::VerticalBar(items, row.Height(), high).needed;
        CRect last;
        const int columns = m_list.ColumnCount();
        const bool horizontal = columns > 0 && m_list.HeaderItemRect(columns - 1, last) &&
                                last.right > wide - (vertical ? metrics::ScrollBand : 0);
        ShowBar(SB_VERT, vertical);
        ShowBar(SB_HORZ, horizontal);
    }
}

void CCustomListCtrl::Bars::SettlePlace()
{
    if (!IsBeingPlaced(m_list))
    {
        LayOutNow();
    }
}

void CCustomListCtrl::Bars::LayOutNow()
{
    // For a mode that is over nothing is laid out: the list is about to follow the next one.
    if (m_awaitsPlace && !IsFollowing() && IsLaidOut() == COnBoardUIGeneral::InOnBoardMode())
    {
        m_awaitsPlace = false;
        LayOut();
    }
}

// The row at the top, and a selected row in sight: the one with the focus before others.
CCustomListCtrl::View CCustomListCtrl::CurrentView(int top, int rows)
{
    View view = {top, -1};
    const int end = std::min(top + rows, int(Ask(LVM_GETITEMCOUNT)));
    const auto selected = [this](int row) {
        return row >= 0 && Ask(LVM_GETITEMSTATE, WPARAM(row), LVIS_SELECTED) != 0;
    };
    const int focus = int(Ask(LVM_GETNEXTITEM, WPARAM(-1), LVNI_FOCUSED));
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
    const int rows = m_bars->IsLaidOut() ? RowsInSight() : int(Ask(LVM_GETCOUNTPERPAGE));
    const int top = m_view->selected == -1
                        ? m_view->top
                        : listctrl::TopToShow(m_view->selected, m_view->top, rows);
    if (m_bars->IsLaidOut())
    {
        MoveTo(SB_VERT, top);
    }
    else
    {
        Ask(LVM_SCROLL, 0, LPARAM(top - int(Ask(LVM_GETTOPINDEX))) * first.Height());
    }
}
