// The report list: following the display mode, with what was in sight.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"

void CCustomListCtrl::EnterOnBoard()
{
    const WindowAlive alive(*this);
    m_header.EndPlatformDrag();
    if (!alive)
    {
        return;
    }
    KeepView(int(Ask(LVM_GETTOPINDEX)), int(Ask(LVM_GETCOUNTPERPAGE)));
    if (!alive)
    {
        return;
    }
    m_wheel = 0;
    m_bars->themeFontDue = true;
    m_bars->SetPlacingDue(true);
    m_measured = Measured();
    TakeHeader();
    if (alive)
    {
        LetPlatformEdit(false);
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
        m_bars->TakePlatformBars(); // before that each column would bring one back
    }
    if (alive)
    {
        m_bars->LayOutInPlace();
    }
}

void CCustomListCtrl::LeaveOnBoard()
{
    const WindowAlive alive(*this);
    m_pressedRow = -1; // the platform goes on with the press
    m_bars->labelRow = -1;
    KeepView(TopRow(), RowsInSight());
    if (!alive)
    {
        return;
    }
    m_bars->End();
    LetPlatformEdit(true);
    if (!alive)
    {
        return;
    }
    if (m_header.IsHotTracking() || m_header.m_farPress)
    {
        m_header.EndTracking();
        if (!alive)
        {
            return;
        }
    }
    m_header.LeaveMove();
    m_bars->HideBars();
    m_drawOffset = CPoint(0, 0);
    m_furtherOffset = CPoint(0, 0);
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
    if (alive)
    {
        m_bars->LayOutInPlace();
    }
}

void CCustomListCtrl::Bars::LayOut()
{
    const WindowAlive alive(m_list);
    RelayoutFrame();
    if (alive && InOnBoard())
    {
        m_list.FitLastColumn(); // the bar across is about to be told of it
    }
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
        m_list.FollowLabelEdit();
    }
    if (alive)
    {
        const UINT erase = InOnBoard() ? 0 : RDW_ERASE;
        m_list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | erase);
    }
}

// The frame at once with the bars that so many rows and such columns call for.
void CCustomListCtrl::Bars::Foresee(const CSize& window)
{
    CRect row;
    if (!InOnBoard() || !m_list.FirstRowRect(row))
    {
        return;
    }
    const int high = window.cy - 2 * ::GetSystemMetrics(SM_CXFRAME);
    const int wide = window.cx - 2 * ::GetSystemMetrics(SM_CYFRAME);
    const int items = int(Ask(LVM_GETITEMCOUNT, 0, 0));
    const bool vertical = listctrl::VerticalBar(items, row.Height(), high).needed;
    CRect last;
    const bool horizontal = m_list.HeaderItemRect(m_list.LastColumn(), last) &&
                            last.right > wide - (vertical ? metrics::ScrollBand : 0);
    ShowBar(SB_VERT, vertical);
    ShowBar(SB_HORZ, horizontal);
}

// The row at the top, and a selected row in sight: the one with the focus before others. What has
// not been brought back yet is kept.
void CCustomListCtrl::KeepView(int top, int rows)
{
    if (!m_view || !m_bars->viewDue)
    {
        const WindowAlive alive(*this); // an owner may be asked for the states of its rows
        View view = {top, -1};
        const int end = std::min(top + rows, int(Ask(LVM_GETITEMCOUNT)));
        const auto selected = [&](int row) {
            return alive && row >= 0 && Ask(LVM_GETITEMSTATE, WPARAM(row), LVIS_SELECTED) != 0;
        };
        const int focus = int(Ask(LVM_GETNEXTITEM, WPARAM(-1), LVNI_FOCUSED));
        if (focus >= view.top && focus < end && selected(focus))
        {
            view.selected = focus;
        }
        for (int row = view.top; row < end && alive && view.selected == -1; ++row)
        {
            view.selected = selected(row) ? row : -1;
        }
        if (!alive)
        {
            return;
        }
        m_view = view;
    }
    m_bars->viewDue = true;
}

void CCustomListCtrl::RestoreView()
{
    CRect first;
    if (!m_view || m_bars->IsLaidOut() != COnBoardUIGeneral::InOnBoardMode() ||
        !FirstRowRect(first) || first.Height() <= 0)
    {
        return;
    }
    m_bars->viewDue = false;
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
