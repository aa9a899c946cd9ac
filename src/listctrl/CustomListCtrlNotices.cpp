// The report list: what the parent is told of clicks, drags, tips and activation.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "modes/WindowAlive.h"

// The platform tells of its unscrolled rows. A derived class hears of the drawn ones as the parent
// does, so this comes before the entries of both.
BOOL CCustomListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (message == WM_NOTIFY && header != nullptr && KeepsToItself(*header, result))
    {
        return TRUE;
    }
    return CListCtrl::OnChildNotify(message, wParam, lParam, result);
}

bool CCustomListCtrl::KeepsToItself(NMHDR& header, LRESULT* result)
{
    switch (header.code)
    {
    case NM_CLICK:
    case NM_DBLCLK:
    case NM_RCLICK:
    case NM_RDBLCLK:
    case LVN_BEGINDRAG:
    case LVN_BEGINRDRAG:
        return KeepsClick(reinterpret_cast<NMITEMACTIVATE&>(header));
    case LVN_MARQUEEBEGIN:
        return KeepsBand(result);
    case LVN_HOTTRACK:
        return KeepsHotRow(reinterpret_cast<NMLISTVIEW&>(header));
    case LVN_GETINFOTIPA:
    case LVN_GETINFOTIPW:
        return KeepsTip(reinterpret_cast<NMLVGETINFOTIPW&>(header)); // the other form is alike
    case LVN_ITEMACTIVATE:
        return KeepsActivation(reinterpret_cast<NMITEMACTIVATE&>(header));
    default:
        return false;
    }
}

// Names the row that is drawn where the platform's is. All these notifications begin alike.
bool CCustomListCtrl::KeepsClick(NMITEMACTIVATE& told)
{
    const WindowAlive alive(*this);
    TakeBackPress(); // the parent looks at the selection
    if (!alive)
    {
        return true;
    }
    // Of a drag no more is told than its row, which is that of the press, as a right click's is.
    const bool drag = told.hdr.code == UINT(LVN_BEGINDRAG) || told.hdr.code == UINT(LVN_BEGINRDRAG);
    if (drag || m_bars->IsPressOfOtherMode())
    {
        m_pressedRow = m_bars->labelRow = -1;
    }
    if (m_bars->IsPressOfOtherMode())
    {
        return true;
    }
    if (!InOnBoard())
    {
        return false;
    }
    const bool ofPress = drag || told.hdr.code == UINT(NM_RCLICK);
    int row = told.iItem < 0 ? -1 : told.iItem + (ofPress ? m_pressedTop : TopRow());
    if (!drag && m_drawOffset.x != 0)
    {
        told.iSubItem = ColumnAt(told.ptAction.x - int(m_drawOffset.x));
        row = row < 0 ? RowAt(told.ptAction) : row;
    }
    if (row != told.iItem)
    {
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
    return !alive || (drag && told.iItem < 0); // beside all rows there is nothing to drag
}

// A band would select the platform's rows, which are not those that are drawn under it.
bool CCustomListCtrl::KeepsBand(LRESULT* result)
{
    const bool keeps = InOnBoard() && m_drawOffset != CPoint(0, 0);
    if (keeps && result != nullptr)
    {
        *result = TRUE;
    }
    return keeps;
}

// Likewise of the row under the pointer.
bool CCustomListCtrl::KeepsHotRow(NMLISTVIEW& told)
{
    const WindowAlive alive(*this);
    if (InOnBoard() && m_drawOffset != CPoint(0, 0))
    {
        told.iItem = HitBy(told.ptAction).drawn;
        told.iSubItem = alive ? ColumnAt(told.ptAction.x - int(m_drawOffset.x)) : -1;
    }
    return !alive;
}

// And of the row that a tip is asked for. What the platform has put there already, as a label that
// is cut, is of the other row.
bool CCustomListCtrl::KeepsTip(NMLVGETINFOTIPW& told)
{
    if (!InOnBoard() || TopRow() == 0)
    {
        return false;
    }
    told.iItem += TopRow();
    const bool wide = told.hdr.code == UINT(LVN_GETINFOTIPW);
    auto* const narrow = reinterpret_cast<char*>(told.pszText);
    const bool hasRoom = told.pszText != nullptr && told.cchTextMax > 0;
    const bool hasText = hasRoom && (wide ? *told.pszText != 0 : *narrow != 0);
    if (hasText && wide)
    {
        *told.pszText = 0;
    }
    else if (hasText)
    {
        *narrow = 0;
    }
    const WindowAlive alive(*this);
    const bool exists = told.iItem < int(Ask(LVM_GETITEMCOUNT));
    if (exists && hasText)
    {
        LVITEMW item = {};
        item.pszText = told.pszText;
        item.cchTextMax = told.cchTextMax;
        Ask(wide ? LVM_GETITEMTEXTW : LVM_GETITEMTEXTA, WPARAM(told.iItem),
            reinterpret_cast<LPARAM>(&item));
    }
    return !exists || !alive;
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

bool CCustomListCtrl::KeepsActivation(NMITEMACTIVATE& told)
{
    // By a key it is the row with the focus, which needs no exchange. Where no row is drawn there
    // is none to activate. Where one click activates it waits for the final step of the selection.
    if (m_activating && m_selChanging != FALSE)
    {
        m_heldActivation = told;
        m_heldActivation->iItem += m_heldActivation->iItem >= 0 ? m_pressedTop : 0;
        return true;
    }
    return m_activating && (KeepsClick(told) || told.iItem < 0);
}
