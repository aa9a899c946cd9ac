// The report list: following the display mode, with what was in sight.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"

void CCustomListCtrl::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_view = CurrentView(int(Ask(LVM_GETTOPINDEX)), int(Ask(LVM_GETCOUNTPERPAGE)));
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
    if (alive)
    {
        m_bars->RelayoutFrame();
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
        m_bars->RelayoutFrame();
    }
    if (alive)
    {
        RestoreView();
    }
    if (alive)
    {
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
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
