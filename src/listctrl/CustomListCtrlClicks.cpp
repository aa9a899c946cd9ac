// The report list: clicks on its rows, and what the parent is told of them.

#include "CustomListCtrl.h"
#include "listctrl/ListLayout.h"
#include "modes/WindowAlive.h"

// Presses ----------------------------------------------------------------------------------------

void CCustomListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    if (!InOnBoard())
    {
        Default();
        return;
    }
    SelectClicked(point, flags);
}

void CCustomListCtrl::OnLButtonDblClk(UINT, CPoint)
{
    const WindowAlive alive(*this);
    m_activating = true;
    Default();
    if (alive)
    {
        m_activating = false;
    }
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
    // The focus first: the platform's list does not survive its end in the middle of its click.
    const WindowAlive alive(*this);
    if (::GetFocus() != GetSafeHwnd())
    {
        SetFocus();
        if (!alive)
        {
            return;
        }
    }
    LVHITTESTINFO hit = {};
    hit.pt = point;
    Ask(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    // The keys only say something where several rows can be selected.
    const bool several =
        (flags & (MK_CONTROL | MK_SHIFT)) != 0 && (GetStyle() & LVS_SINGLESEL) == 0;
    if (several && hit.iItem >= 0 && TopRow() != 0)
    {
        // What is selected so far is known by rows that the platform would take for others.
        SelectRow(hit.iItem + TopRow(), (flags & MK_SHIFT) != 0, (flags & MK_CONTROL) != 0);
        if (alive)
        {
            Invalidate();
        }
        return;
    }
    m_selChanging = TRUE;
    if (hit.iItem >= 0 && TopRow() != 0 && IsSelected(hit.iItem))
    {
        // The platform would leave the selection as it is until the button goes up, and then select
        // this row, whatever has been selected meanwhile.
        SetItemState(hit.iItem, 0, LVIS_SELECTED);
    }
    if (alive)
    {
        Default();
    }
    if (!alive)
    {
        return;
    }
    int picked = -1;
    if (hit.iItem >= 0 && IsSelected(hit.iItem))
    {
        picked = hit.iItem;
    }
    else if (Ask(LVM_GETSELECTEDCOUNT) > 0)
    {
        picked = NextRow(-1, LVNI_SELECTED);
    }
    if (picked == -1)
    {
        // Selected and deselected again, so that the parent is told of a change in any case.
        if (int(Ask(LVM_GETITEMCOUNT)) > 0)
        {
            SetItemState(0, SelectedAndFocused, SelectedAndFocused);
        }
        if (alive)
        {
            m_selChanging = FALSE;
            SetItemState(0, 0, SelectedAndFocused);
        }
    }
    else if (m_scrollUnit.cy > 0)
    {
        // With the keys the platform has picked the right rows: one of them is exchanged for
        // itself, since the parent waits for the final step. The mark stays, and so does the focus
        // on a row that is no longer selected.
        const int mark = several ? int(Ask(LVM_GETSELECTIONMARK)) : picked + TopRow();
        const int drawn = several ? picked : picked + TopRow();
        const UINT states =
            several && picked != hit.iItem ? UINT(LVIS_SELECTED) : SelectedAndFocused;
        SetItemState(picked, 0, states);
        if (alive)
        {
            m_selChanging = FALSE;
            SetItemState(drawn, states, states);
        }
        if (alive && mark < int(Ask(LVM_GETITEMCOUNT)))
        {
            SetSelectionMark(mark);
        }
    }
    if (alive)
    {
        m_selChanging = FALSE;
        Invalidate();
    }
}

// What is told ------------------------------------------------------------------------------------

// The platform tells its parent of clicks and drags on its unscrolled rows; this names the one that
// is drawn there instead. All these notifications begin alike.
BOOL CCustomListCtrl::OnNmClick(NMHDR* header, LRESULT*)
{
    const WindowAlive alive(*this);
    auto& told = *reinterpret_cast<NMITEMACTIVATE*>(header);
    if (!InOnBoard())
    {
        return FALSE;
    }
    // Of a drag no more is told than its row.
    const bool drag = told.hdr.code == UINT(LVN_BEGINDRAG) || told.hdr.code == UINT(LVN_BEGINRDRAG);
    if (!drag && m_drawOffset.x != 0)
    {
        told.iSubItem = ColumnAt(told.ptAction.x - int(m_drawOffset.x));
    }
    if (told.iItem >= 0 && TopRow() != 0)
    {
        const int row = told.iItem + TopRow();
        told.iItem = row < int(Ask(LVM_GETITEMCOUNT)) ? row : -1;
        LVITEMW drawn = {};
        drawn.mask = LVIF_PARAM | LVIF_STATE;
        drawn.iItem = told.iItem;
        drawn.stateMask = ~0U;
        if (!drag)
        {
            Ask(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&drawn)); // an owner may be asked
            told.lParam = drawn.lParam;
        }
        if (told.hdr.code == UINT(LVN_ITEMACTIVATE))
        {
            told.uNewState = drawn.state | (told.uNewState & ~told.uOldState);
            told.uOldState = drawn.state;
        }
    }
    return !alive;
}

// The column at a place across the unscrolled list, or -1.
int CCustomListCtrl::ColumnAt(int x) const
{
    int column = ColumnCount() - 1;
    CRect heading;
    while (column >= 0 &&
           !(HeaderItemRect(column, heading) && x >= heading.left && x < heading.right))
    {
        --column;
    }
    return column;
}

BOOL CCustomListCtrl::OnLvnItemActivate(NMHDR* header, LRESULT* result)
{
    // By a key it is the row with the focus, which needs no exchange. Where no row is drawn there
    // is none to activate.
    return m_activating && (OnNmClick(header, result) ||
                            reinterpret_cast<const NMITEMACTIVATE*>(header)->iItem < 0);
}
