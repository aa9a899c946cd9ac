// The check list: clicks on checks and the space key.

#include "CustomChecklistBox.h"

#include "lists/CheckListLayout.h"
#include "modes/WindowAlive.h"

namespace {

constexpr WPARAM Space = ' ';

} // namespace

// Whether the user can change a row's check.
bool CCustomChecklistBox::CanChange(int index)
{
    // A list without data has nowhere to keep a check.
    return lists::ChangesItself(m_checkStyle) && (GetStyle() & LBS_NODATA) == 0 && IsEnabled(index);
}

// One turn of a row's check, for all of the selected rows too if so wished.
void CCustomChecklistBox::ChangeCheck(int index, bool forSelection)
{
    const WindowAlive alive(*this);
    const int check = lists::NextCheck(GetCheck(index), m_checkStyle);
    SetCheck(index, check);
    if (alive && forSelection)
    {
        SetSelectionCheck(check);
    }
}

void CCustomChecklistBox::SetSelectionCheck(int check)
{
    const WindowAlive alive(*this);
    for (const int index : SelectedRows())
    {
        // Setting is told to listeners, who may end the list.
        if (!alive)
        {
            return;
        }
        if (GetCheck(index) != check)
        {
            SetCheck(index, check);
        }
    }
}

// Clicks ----------------------------------------------------------------------------------------

// The row whose check is changed by a click at a point, or -1.
int CCustomChecklistBox::RowChangedAt(CPoint point)
{
    const WindowAlive alive(*this);
    FollowMode();
    if (!alive)
    {
        return -1;
    }
    int onCheck = FALSE;
    const int index = CheckFromPoint(point, onCheck);
    return onCheck && CanChange(index) ? index : -1;
}

void CCustomChecklistBox::OnLButtonDown(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    if (!TakeFocus())
    {
        return;
    }
    const int index = RowChangedAt(point);
    if (!alive)
    {
        return;
    }
    const bool changes = index >= 0;
    if (changes && ExtendsSelection() && IsSelected(index) &&
        (flags & (MK_CONTROL | MK_SHIFT)) == 0)
    {
        // The check goes to all selected rows, so the click leaves them selected.
        SendMessage(LB_SETCARETINDEX, WPARAM(index), TRUE);
    }
    else
    {
        PressRow(flags, point);
    }
    // The parent may have been told of a selection; the rows may be others.
    if (changes && alive && CanChange(index))
    {
        ChangeCheck(index, ExtendsSelection() && IsSelected(index));
        const bool held = alive && ::GetCapture() == m_hWnd;
        if (alive)
        {
            NotifyParent(CLBN_CHKCHANGE);
        }
        // A parent that opens a box takes the press away, at whose end the platform would have told
        // it of the selection.
        if (held && alive && ::GetCapture() != m_hWnd)
        {
            DefWindowProc(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
        }
    }
}

void CCustomChecklistBox::OnLButtonDblClk(UINT flags, CPoint point)
{
    const WindowAlive alive(*this);
    const bool changes = RowChangedAt(point) >= 0;
    if (!alive)
    {
        return;
    }
    if (changes)
    {
        SendMessage(WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y)); // a second click
        return;
    }
    CCustomListBox::OnLButtonDblClk(flags, point);
}

// The space key ---------------------------------------------------------------------------------

void CCustomChecklistBox::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (key != VK_SPACE || !lists::ChangesItself(m_checkStyle))
    {
        CCustomListBox::OnKeyDown(key, repeat, flags);
        return;
    }
    const WindowAlive alive(*this);
    FollowMode();
    const int caret = alive ? Ask(LB_GETCARETINDEX) : LB_ERR;
    if (!alive || !Exists(caret))
    {
        return;
    }
    const bool canChange = CanChange(caret);
    const bool flips = FlipsSelection();
    const bool changes = canChange && (!flips || IsSelected(caret));
    if (changes)
    {
        ChangeCheck(caret, ExtendsSelection() && !flips);
    }
    if (alive && (flips || !canChange))
    {
        ChangeSelection(caret);
    }
    if (alive && changes)
    {
        NotifyParent(CLBN_CHKCHANGE);
    }
}

// What the space key does to the selection where it does not change a check alone.
void CCustomChecklistBox::ChangeSelection(int index)
{
    const bool selected = IsSelected(index);
    if (selected && !FlipsSelection())
    {
        return;
    }
    const WindowAlive alive(*this);
    if (FlipsSelection() || ExtendsSelection())
    {
        SendMessage(LB_SETSEL, WPARAM(!selected), LPARAM(index));
    }
    else
    {
        SendMessage(LB_SETCURSEL, WPARAM(index));
    }
    if (alive && (GetStyle() & LBS_NOTIFY) != 0)
    {
        NotifyParent(LBN_SELCHANGE);
    }
}

void CCustomChecklistBox::OnChar(UINT character, UINT repeat, UINT flags)
{
    // The key was worth a check; the platform would look for a row that begins with a space.
    if (character != Space || !lists::ChangesItself(m_checkStyle))
    {
        CCustomListBox::OnChar(character, repeat, flags);
    }
}
