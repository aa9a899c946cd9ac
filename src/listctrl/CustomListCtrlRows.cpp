// The report list: selecting rows, and the keys.

#include "CustomListCtrl.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListLayout.h"
#include "modes/KeyState.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

#include <utility>

// Selecting -------------------------------------------------------------------------------------

bool CCustomListCtrl::IsSelected(int row)
{
    return Ask(LVM_GETITEMSTATE, WPARAM(row), LVIS_SELECTED) != 0;
}

void CCustomListCtrl::ClearSelection()
{
    const WindowAlive alive(*this);
    const int focus = NextRow(-1, LVNI_FOCUSED);
    if (focus >= 0)
    {
        SetItemState(focus, 0, LVIS_SELECTED);
    }
    // All of them only when the usual one was not the only one: it takes a look at every row.
    if (alive && Ask(LVM_GETSELECTEDCOUNT) > 0)
    {
        SetItemState(-1, 0, LVIS_SELECTED);
    }
}

void CCustomListCtrl::SelectRange(int from, int to, bool select)
{
    const WindowAlive alive(*this);
    for (int row = std::min(from, to); alive && row <= std::max(from, to); ++row)
    {
        SetItemState(row, select ? UINT(LVIS_SELECTED) : 0U, LVIS_SELECTED);
    }
}

// Selects a row, as the platform does for a key or a click on it: alone, up to it from where the
// selection began (extend), as one more or less (toggle), or with what lies between and all that
// was selected before (both).
void CCustomListCtrl::SelectRow(int row, bool extend, bool toggle)
{
    if (row < 0 || row >= int(Ask(LVM_GETITEMCOUNT)))
    {
        return;
    }
    const WindowAlive alive(*this);
    const bool single = (GetStyle() & LVS_SINGLESEL) != 0;
    // The host may have set a mark where no row is, or rows may have gone since.
    const int mark = std::min(int(Ask(LVM_GETSELECTIONMARK)), int(Ask(LVM_GETITEMCOUNT)) - 1);
    const int focus = NextRow(-1, LVNI_FOCUSED);
    if (extend && toggle && !single && mark >= 0)
    {
        SelectRange(mark, row, true);
        if (alive)
        {
            SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        if (alive)
        {
            SetSelectionMark(row);
        }
        return;
    }
    if (extend && !single && mark >= 0)
    {
        // The rows between the old end of the range and the new one are all that changes if the
        // range is all that is selected.
        const bool grows = focus >= 0 &&
                           int(Ask(LVM_GETSELECTEDCOUNT)) == std::abs(focus - mark) + 1 &&
                           IsSelected(mark) && IsSelected(focus);
        if (!grows)
        {
            ClearSelection();
            if (alive)
            {
                SelectRange(mark, row, true);
            }
        }
        else
        {
            const bool sameSide = (row >= mark) == (focus >= mark);
            const int kept = !sameSide                                       ? mark
                             : std::abs(row - mark) < std::abs(focus - mark) ? row
                                                                             : focus;
            if (kept != focus)
            {
                SelectRange(focus, kept < focus ? kept + 1 : kept - 1, false);
            }
            if (alive)
            {
                SelectRange(kept, row, true);
            }
        }
        if (alive)
        {
            SetItemState(row, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        return;
    }
    if (toggle && !single)
    {
        SetItemState(row, LVIS_FOCUSED | (IsSelected(row) ? 0U : UINT(LVIS_SELECTED)),
                     SelectedAndFocused);
    }
    else
    {
        ClearSelection();
        if (alive)
        {
            SetItemState(row, SelectedAndFocused, SelectedAndFocused);
        }
    }
    if (alive)
    {
        SetSelectionMark(row);
    }
}

// The platform would count a page from its own first row, which is not the one in sight.
bool CCustomListCtrl::MoveByPage(UINT key, UINT flags)
{
    if (key != VK_PRIOR && key != VK_NEXT)
    {
        return false;
    }
    const WindowAlive alive(*this);
    NMLVKEYDOWN told = {};
    told.hdr.code = LVN_KEYDOWN;
    told.wVKey = WORD(key);
    told.flags = flags;
    TellNotify(GetSafeHwnd(), told.hdr);
    if (alive && InOnBoard() && int(Ask(LVM_GETITEMCOUNT)) > 0)
    {
        const bool extend = IsKeyDown(VK_SHIFT);
        const int focus = NextRow(-1, LVNI_FOCUSED);
        const int target = listctrl::PageTarget(key == VK_NEXT, focus, TopRow(), RowsInSight(),
                                                int(Ask(LVM_GETITEMCOUNT)));
        if (target == focus)
        {
            return true; // at the end: what is selected stays so
        }
        if (IsKeyDown(VK_CONTROL) && !extend && (GetStyle() & LVS_SINGLESEL) == 0)
        {
            SetItemState(target, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        else
        {
            SelectRow(target, extend, false);
        }
    }
    return true;
}

void CCustomListCtrl::OnKeyDown(UINT key, UINT, UINT flags)
{
    const WindowAlive alive(*this);
    m_bars->labelRow = -1;
    const bool onBoard = InOnBoard();
    const int before = onBoard ? NextRow(-1, LVNI_FOCUSED) : -1;
    const bool outer = std::exchange(m_activating, false); // a double click may be waiting for it
    if (!(onBoard && MoveByPage(key, flags)) && alive)
    {
        Default();
    }
    if (!alive)
    {
        return;
    }
    m_activating = outer;
    if (!onBoard || !InOnBoard()) // who was told of the key may have changed it
    {
        return;
    }
    HoldPlatform();
    const bool sideways = key == VK_LEFT || key == VK_RIGHT;
    const bool moves = (key >= VK_PRIOR && key <= VK_DOWN) && !sideways;
    const int focus = alive ? NextRow(-1, LVNI_FOCUSED) : -1;
    if (alive && (moves || focus != before))
    {
        BringIntoSight(focus);
    }
    if (alive && sideways && m_hBar.ShowScrollBar())
    {
        PerformHScroll(key == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
    }
    if (alive)
    {
        Invalidate();
    }
}

// The first letters of a row are looked for by the platform.
void CCustomListCtrl::OnChar(UINT, UINT, UINT)
{
    const WindowAlive alive(*this);
    const int before = InOnBoard() ? NextRow(-1, LVNI_FOCUSED) : -1;
    Default();
    const int focus = alive && InOnBoard() ? NextRow(-1, LVNI_FOCUSED) : before;
    if (alive && focus != before)
    {
        HoldPlatform();
        if (alive)
        {
            BringIntoSight(focus);
        }
        if (alive)
        {
            Invalidate();
        }
    }
}
