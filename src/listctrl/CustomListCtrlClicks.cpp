// The report list: clicks on its rows.

#include "CustomListCtrl.h"
#include "OnBoardUIGeneral.h"
#include "listctrl/ListCtrlBars.h"
#include "listctrl/ListCtrlMessages.h"
#include "modes/Meanwhile.h"
#include "modes/PressFocus.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

#include <utility>

// Presses ----------------------------------------------------------------------------------------

void CCustomListCtrl::OnLButtonDown(UINT flags, CPoint point)
{
    m_bars->pressedIn = COnBoardUIGeneral::GetAppMode();
    if (!InOnBoard())
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    const Meanwhile activating(*this, m_activating);
    m_heldActivation.reset();
    SelectClicked(point, flags);
    if (alive && m_heldActivation)
    {
        NMITEMACTIVATE told = *std::exchange(m_heldActivation, std::nullopt);
        told.iItem -= InOnBoard() && told.iItem >= 0 ? TopRow() : 0; // as the platform names it
        TellNotify(GetSafeHwnd(), told.hdr);
    }
}

void CCustomListCtrl::OnLButtonUp(UINT, CPoint point)
{
    const WindowAlive alive(*this);
    const Meanwhile activating(*this, m_activating);
    if (m_bars->IsPressOfOtherMode())
    {
        m_pressedRow = m_bars->labelRow = -1;
    }
    if (const int row = std::exchange(m_pressedRow, -1); row >= 0)
    {
        SelectAlone(row);
    }
    if (alive)
    {
        ReleaseButton();
    }
    if (alive)
    {
        m_bars->pressedIn.reset();
    }
    if (alive && m_bars->labelRow >= 0)
    {
        AwaitLabelEdit(point);
    }
}

void CCustomListCtrl::OnLButtonDblClk(UINT, CPoint)
{
    m_bars->pressedIn = COnBoardUIGeneral::GetAppMode();
    m_bars->labelRow = -1;
    const Meanwhile activating(*this, m_activating);
    Default();
}

void CCustomListCtrl::OnRButtonDown(UINT flags, CPoint point)
{
    m_bars->pressedIn = COnBoardUIGeneral::GetAppMode();
    m_bars->labelRow = -1;
    m_pressedTop = TopRow();
    if (!InOnBoard())
    {
        Default();
        return;
    }
    const WindowAlive alive(*this);
    const bool shifted = m_drawOffset != CPoint(0, 0);
    const PressHit hit = !shifted || FocusFirst() ? HitBy(point) : PressHit();
    // What the parent finds selected when it shows a menu: with a key what was, as the platform
    // does.
    const bool kept = alive && hit.drawn >= 0 &&
                      ((flags & (MK_CONTROL | MK_SHIFT)) != 0 || IsSelected(hit.drawn));
    if (alive && !hit.scrolled)
    {
        // Before it deselects them the platform has not all of their bars painted, and it waits for
        // the button then.
        const std::set<int> deselected = kept ? std::set<int>() : SelectedInSight();
        if (alive)
        {
            InvalidateEach(deselected);
            InvalidateEach({hit.drawn, m_focusRow});
            Default();
        }
    }
    if (!alive || !hit.scrolled)
    {
        return;
    }
    if (hit.drawn < 0)
    {
        ClearSelection();
    }
    else if (kept)
    {
        SetItemState(hit.drawn, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    else
    {
        SelectRow(hit.drawn, false, false);
    }
    if (alive)
    {
        LetPlatformPress(WM_RBUTTONDOWN, hit, point);
    }
}

// The platform would select its unscrolled row.
LRESULT CCustomListCtrl::OnMouseHover(WPARAM, LPARAM lParam)
{
    if (!InOnBoard() || m_drawOffset == CPoint(0, 0))
    {
        return Default();
    }
    const WindowAlive alive(*this);
    NMHDR told = {};
    told.code = NM_HOVER;
    const bool taken = TellNotify(GetSafeHwnd(), told) != 0;
    if (!alive || taken || (Ask(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_TRACKSELECT) == 0)
    {
        return 0;
    }
    const PressHit hit = FocusFirst() ? HitBy(CPoint(lParam)) : PressHit();
    if (alive && hit.drawn >= 0)
    {
        SelectAlone(hit.drawn);
    }
    return 0;
}

// As SelectRow, but a row that is selected already is not deselected on the way.
void CCustomListCtrl::SelectAlone(int row)
{
    const WindowAlive alive(*this);
    std::set<int> selected;
    GetSelectedRows(selected);
    for (auto other = selected.begin(); alive && other != selected.end(); ++other)
    {
        if (*other != row)
        {
            SetItemState(*other, 0, LVIS_SELECTED);
        }
    }
    if (alive && row < int(Ask(LVM_GETITEMCOUNT)))
    {
        SetItemState(row, SelectedAndFocused, SelectedAndFocused);
    }
    if (alive && row < int(Ask(LVM_GETITEMCOUNT)))
    {
        SetSelectionMark(row);
    }
}

// The focus comes first: the platform's list does not survive its end in the middle of its click.
// False when the list did not survive it either.
bool CCustomListCtrl::FocusFirst()
{
    const WindowAlive alive(*this);
    if (::GetFocus() != GetSafeHwnd())
    {
        SetFocus();
    }
    return bool(alive);
}

// Without full rows a row is hit in its first column, wherever that stands; a full one across all
// of the list, also where its bar goes on beside the last column.
CCustomListCtrl::PressHit CCustomListCtrl::HitBy(const CPoint& point)
{
    const WindowAlive alive(*this);
    LVHITTESTINFO unscrolled = {};
    unscrolled.pt = point;
    const int platform = int(Ask(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&unscrolled)));
    if (!alive || m_drawOffset == CPoint(0, 0))
    {
        return {platform, platform};
    }
    const bool full = (Ask(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_FULLROWSELECT) != 0;
    const bool hits = full || ColumnAt(point.x - int(m_drawOffset.x)) == 0;
    const int drawn = hits ? RowAt(full ? CPoint(int(m_drawOffset.x), int(point.y)) : point) : -1;
    PressHit hit = {platform, drawn, true};
    if ((Ask(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES) != 0)
    {
        LVHITTESTINFO box = {};
        box.pt = CPoint(int(point.x - m_drawOffset.x), int(point.y));
        Ask(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&box));
        hit.onBox = drawn >= 0 && box.flags == LVHT_ONITEMSTATEICON;
        hit.onPlatformBox = platform >= 0 && unscrolled.flags == LVHT_ONITEMSTATEICON;
    }
    return hit;
}

// Lets the platform do what belongs to a press besides selecting: wait for the button, begin drags,
// tell of clicks. With Ctrl it changes one row only, if any, which is taken back.
void CCustomListCtrl::LetPlatformPress(UINT message, const PressHit& hit, const CPoint& point)
{
    const WindowAlive alive(*this);
    const bool right = message == WM_RBUTTONDOWN;
    PressNote note = {
        hit.platform, 0, NextRow(-1, LVNI_FOCUSED), int(Ask(LVM_GETSELECTIONMARK)), {}};
    if (hit.platform >= 0)
    {
        note.states = UINT(Ask(LVM_GETITEMSTATE, WPARAM(hit.platform), SelectedAndFocused));
    }
    else if (right)
    {
        GetSelectedRows(note.selected); // beside its rows the platform deselects all
    }
    if (!alive)
    {
        return;
    }
    m_pressNote = std::move(note);
    m_selChanging = TRUE;
    // What it would change at a right press is changed before: it does not survive the list's end
    // in the middle of that.
    if (right && hit.platform >= 0)
    {
        SetItemState(hit.platform, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    else if (right)
    {
        ClearSelection();
    }
    // While the button is down the host may change the selection itself. Where rows come back their
    // return is the final step.
    if (alive && right && m_pressNote && m_pressNote->selected.empty())
    {
        m_selChanging = FALSE;
    }
    if (alive && right)
    {
        // The platform waits in a loop of its own until the button is up; meanwhile the rows are
        // shown, and may change, with the states that they are to have.
        PostMessage(listctrl::TakeBackMessage);
    }
    if (alive)
    {
        const FocusRefusal sentBack(GetSafeHwnd());
        Ask(message, MK_CONTROL | (right ? MK_RBUTTON : MK_LBUTTON), MAKELPARAM(point.x, point.y));
    }
    if (alive)
    {
        TakeBackPress();
    }
}

LRESULT CCustomListCtrl::OnTakeBackPress(WPARAM, LPARAM)
{
    TakeBackPress();
    return 0;
}

void CCustomListCtrl::TakeBackPress()
{
    if (!m_pressNote)
    {
        return;
    }
    const WindowAlive alive(*this);
    const PressNote note = *std::exchange(m_pressNote, std::nullopt);
    if (note.row >= 0)
    {
        SetItemState(note.row, note.states, SelectedAndFocused);
    }
    for (auto row = note.selected.begin(); alive && row != note.selected.end(); ++row)
    {
        if (std::next(row) == note.selected.end())
        {
            m_selChanging = FALSE;
        }
        SetItemState(*row, LVIS_SELECTED, LVIS_SELECTED);
    }
    if (!alive)
    {
        return;
    }
    m_selChanging = FALSE;
    if (note.focus >= 0 && note.focus != note.row)
    {
        SetItemState(note.focus, LVIS_FOCUSED, LVIS_FOCUSED);
    }
    if (alive && note.mark < int(Ask(LVM_GETITEMCOUNT)))
    {
        SetSelectionMark(note.mark);
    }
}

// A press where a check box is drawn, or where the platform has one, which it must not get: it
// would change the box of its own row. It tells of a click on a box at once.
void CCustomListCtrl::PressBox(const PressHit& hit, const CPoint& point, UINT flags)
{
    const WindowAlive alive(*this);
    if (!hit.onBox && hit.drawn >= 0)
    {
        SelectRow(hit.drawn, (flags & MK_SHIFT) != 0, (flags & MK_CONTROL) != 0);
    }
    else if (!hit.onBox && (flags & (MK_CONTROL | MK_SHIFT)) == 0)
    {
        ClearSelection();
    }
    if (!alive)
    {
        return;
    }
    NMITEMACTIVATE told = {};
    told.hdr.code = NM_CLICK;
    told.iItem = hit.drawn < 0 ? -1 : hit.drawn - TopRow(); // as the platform would name it
    told.ptAction = point;
    told.lParam = hit.drawn < 0 ? 0 : LPARAM(GetItemData(hit.drawn));
    if (alive)
    {
        TellNotify(GetSafeHwnd(), told.hdr);
    }
    const UINT state = alive && hit.onBox ? GetItemState(hit.drawn, LVIS_STATEIMAGEMASK) : 0;
    if (state == INDEXTOSTATEIMAGEMASK(1) || state == INDEXTOSTATEIMAGEMASK(2))
    {
        SetItemState(hit.drawn, state ^ INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK);
    }
    if (alive)
    {
        Invalidate();
    }
}

// The platform picks a row from its unscrolled rows, which is then exchanged for the one that is
// drawn in its place. While it is not yet, IsSelChanging tells so.
void CCustomListCtrl::SelectClicked(const CPoint& point, UINT flags)
{
    const WindowAlive alive(*this);
    m_pressedRow = -1;
    m_bars->labelRow = -1;
    const bool focused = ::GetFocus() == GetSafeHwnd();
    const PressHit hit = FocusFirst() ? HitBy(point) : PressHit();
    if (alive)
    {
        LetPlatformEdit(false);
    }
    if (alive && (hit.onBox || hit.onPlatformBox))
    {
        PressBox(hit, point, flags);
        return;
    }
    if (!alive)
    {
        return;
    }
    m_pressedTop = TopRow();
    // Where one row can be selected the keys only say something beside all rows: it stays so.
    const bool keys = (flags & (MK_CONTROL | MK_SHIFT)) != 0;
    const bool several = keys && (GetStyle() & LVS_SINGLESEL) == 0;
    const int kept = keys && hit.drawn < 0 ? NextRow(-1, LVNI_SELECTED) : -1;
    // One of those that are selected together is alone only when the button goes up: until then
    // they may be dragged.
    const bool selected = alive && !several && hit.drawn >= 0 && IsSelected(hit.drawn);
    const bool together = selected && alive && Ask(LVM_GETSELECTEDCOUNT) > 1;
    if (!alive)
    {
        return;
    }
    m_pressedRow = together && hit.scrolled ? hit.drawn : -1;
    m_bars->labelRow = selected && focused ? hit.drawn : -1;
    m_bars->labelAwaited = false;
    if ((several || together) && hit.scrolled)
    {
        // What is selected so far is known by rows that the platform would take for others.
        LetPlatformPress(WM_LBUTTONDOWN, hit, point);
        if (alive && together)
        {
            SetItemState(hit.drawn, LVIS_FOCUSED, LVIS_FOCUSED);
        }
        else if (alive)
        {
            SelectRow(hit.drawn, (flags & MK_SHIFT) != 0, (flags & MK_CONTROL) != 0);
        }
        if (alive)
        {
            Invalidate();
        }
        return;
    }
    const int before = int(Ask(LVM_GETSELECTIONMARK));
    m_selChanging = TRUE;
    if (hit.scrolled && hit.platform >= 0 && IsSelected(hit.platform) && alive)
    {
        // The platform would leave the selection as it is until the button goes up, and then select
        // this row, whatever has been selected meanwhile.
        SetItemState(hit.platform, 0, LVIS_SELECTED);
    }
    if (alive)
    {
        const FocusRefusal sentBack(GetSafeHwnd());
        Default();
    }
    int picked = alive && hit.platform >= 0 && IsSelected(hit.platform) ? hit.platform : -1;
    if (alive && picked < 0 && Ask(LVM_GETSELECTEDCOUNT) > 0)
    {
        picked = NextRow(-1, LVNI_SELECTED);
    }
    if (!alive)
    {
        return;
    }
    // With the keys the platform has picked the right rows: one of them is exchanged for itself,
    // since the parent waits for the final step. The mark stays, as it does beside all rows, and so
    // does the focus on a row that is no longer selected.
    const int final = !hit.scrolled ? picked : hit.drawn >= 0 ? hit.drawn : kept;
    const int mark = hit.scrolled && hit.drawn < 0 ? before
                     : final >= 0 && !several      ? final
                                                   : int(Ask(LVM_GETSELECTIONMARK));
    const UINT states =
        several && picked != hit.platform ? UINT(LVIS_SELECTED) : SelectedAndFocused;
    if (picked >= 0 && m_scrollUnit.cy > 0)
    {
        SetItemState(picked, 0, states);
    }
    if (alive && final < 0)
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
    else if (alive && m_scrollUnit.cy > 0)
    {
        m_selChanging = FALSE;
        SetItemState(final, states, states);
    }
    if (alive)
    {
        m_selChanging = FALSE;
        if (mark < int(Ask(LVM_GETITEMCOUNT)))
        {
            SetSelectionMark(mark);
        }
    }
    if (alive)
    {
        Invalidate();
    }
}
