// The list box: where its rows are, and what assistive programs are told of them.

#include "CustomListBox.h"

#include "access/Rows.h"
#include "modes/WindowAlive.h"

using access::Give;
using access::GiveNothing;
using access::IsSelf;

// Rows ------------------------------------------------------------------------------------------

bool CCustomListBox::Exists(int index)
{
    return index >= 0 && index < Ask(LB_GETCOUNT);
}

bool CCustomListBox::IsRow(const VARIANT& child, int& index)
{
    index = access::RowOf(child, Ask(LB_GETCOUNT));
    return index >= 0;
}

// Some platforms tell the place as it is before the list is scrolled sideways.
CRect CCustomListBox::RowRect(int index)
{
    CRect row;
    Ask(LB_GETITEMRECT, WPARAM(index), reinterpret_cast<LPARAM>(&row));
    const int left = InColumns() ? 0 : -::GetScrollPos(GetSafeHwnd(), SB_HORZ);
    if (left < 0 && row.left > left)
    {
        row.MoveToX(left);
    }
    return row;
}

bool CCustomListBox::IsInSight(int index, CRect& row)
{
    CRect client;
    GetClientRect(&client);
    const int fromTop = index - Ask(LB_GETTOPINDEX);
    // A row so far down that it is out of sight however low the rows are is not even looked up.
    if (fromTop < 0 || (!InColumns() && fromTop > client.Height()))
    {
        return false;
    }
    row = RowRect(index);
    return row.top < client.bottom && row.left < client.right;
}

int CCustomListBox::RowFromPoint(CPoint point)
{
    const int count = Ask(LB_GETCOUNT);
    int index = Ask(LB_GETTOPINDEX);
    if ((GetStyle() & LBS_OWNERDRAWVARIABLE) == 0 && !InColumns())
    {
        const int height = Ask(LB_GETITEMHEIGHT);
        const bool onRow = height > 0 && point.y >= 0 && point.y / height < count - index;
        return onRow ? index + int(point.y) / height : -1;
    }
    CRect row;
    for (; index < count && IsInSight(index, row); ++index)
    {
        if (row.PtInRect(point))
        {
            return index;
        }
    }
    return -1;
}

std::vector<int> CCustomListBox::SelectedRows()
{
    const int count = Ask(LB_GETSELCOUNT); // an error in a list that selects one row
    if (count < 0)
    {
        const int index = Ask(LB_GETCURSEL);
        return index < 0 ? std::vector<int>() : std::vector<int>{index};
    }
    std::vector<int> rows(size_t{unsigned(count)});
    Ask(LB_GETSELITEMS, WPARAM(count), reinterpret_cast<LPARAM>(rows.data()));
    return rows;
}

void CCustomListBox::NotifyParent(UINT code)
{
    ::SendMessage(::GetParent(GetSafeHwnd()), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), code),
                  reinterpret_cast<LPARAM>(GetSafeHwnd()));
}

// Assistive programs ----------------------------------------------------------------------------

HRESULT CCustomListBox::get_accChildCount(long* count)
{
    *count = Ask(LB_GETCOUNT);
    return S_OK;
}

HRESULT CCustomListBox::get_accChild(VARIANT child, IDispatch** object)
{
    int index = 0;
    *object = nullptr;
    return IsRow(child, index) ? S_FALSE : E_INVALIDARG;
}

HRESULT CCustomListBox::get_accName(VARIANT child, BSTR* name)
{
    if (IsSelf(child))
    {
        const auto named = access::NameFromLabel(GetSafeHwnd(), child, name);
        return named ? *named : CListBox::get_accName(child, name);
    }
    int index = 0;
    *name = nullptr;
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    if (!HasText())
    {
        return S_FALSE; // its owner knows
    }
    CString text;
    GetText(index, text);
    return Give(*name, text);
}

HRESULT CCustomListBox::get_accRole(VARIANT child, VARIANT* role)
{
    int index = 0;
    if (IsSelf(child))
    {
        return Give(*role, ROLE_SYSTEM_LIST);
    }
    return IsRow(child, index) ? Give(*role, ROLE_SYSTEM_LISTITEM) : E_INVALIDARG;
}

HRESULT CCustomListBox::get_accState(VARIANT child, VARIANT* state)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CListBox::get_accState(child, state);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    CRect place;
    access::RowState row = {.selected = IsSelected(index),
                            .caret = index == Ask(LB_GETCARETINDEX),
                            .inSight = IsInSight(index, place)};
    row.more |= (GetStyle() & LBS_NOSEL) == 0 ? STATE_SYSTEM_SELECTABLE : 0;
    row.more |= FlipsSelection() || ExtendsSelection() ? STATE_SYSTEM_MULTISELECTABLE : 0;
    row.more |= ExtendsSelection() ? STATE_SYSTEM_EXTSELECTABLE : 0;
    return access::GiveState(*state, *this, row);
}

HRESULT CCustomListBox::get_accFocus(VARIANT* child)
{
    if (::GetFocus() != GetSafeHwnd())
    {
        return GiveNothing(*child);
    }
    const int caret = Ask(LB_GETCARETINDEX);
    return Give(*child, Exists(caret) ? access::ChildOf(caret) : CHILDID_SELF);
}

HRESULT CCustomListBox::get_accSelection(VARIANT* children)
{
    return access::GiveRows(*children, SelectedRows());
}

HRESULT CCustomListBox::accSelect(long flags, VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CListBox::accSelect(flags, child);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    const bool many = FlipsSelection() || ExtendsSelection();
    if (!access::CanSelect(flags, many))
    {
        return E_INVALIDARG;
    }
    const WindowAlive alive(*this);
    const std::vector<int> before = SelectedRows();
    if ((flags & SELFLAG_TAKEFOCUS) != 0)
    {
        SetFocus();
        if (alive)
        {
            SendMessage(LB_SETCARETINDEX, WPARAM(index));
        }
    }
    if (alive && (flags & SELFLAG_TAKESELECTION) != 0)
    {
        if (many)
        {
            SendMessage(LB_SETSEL, FALSE, -1);
        }
        else
        {
            SendMessage(LB_SETCURSEL, WPARAM(index));
        }
    }
    const long added = many ? SELFLAG_TAKESELECTION | SELFLAG_ADDSELECTION : 0;
    if (alive && (flags & added) != 0)
    {
        SendMessage(LB_SETSEL, TRUE, LPARAM(index));
    }
    if (alive && many && (flags & SELFLAG_REMOVESELECTION) != 0)
    {
        SendMessage(LB_SETSEL, FALSE, LPARAM(index));
    }
    if (alive && (GetStyle() & LBS_NOTIFY) != 0 && SelectedRows() != before)
    {
        NotifyParent(LBN_SELCHANGE);
    }
    return S_OK;
}

HRESULT CCustomListBox::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CListBox::accLocation(left, top, width, height, child);
    }
    return IsRow(child, index) ? access::GivePlace(*this, RowRect(index), left, top, width, height)
                               : E_INVALIDARG;
}

HRESULT CCustomListBox::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return access::LeavesList(direction, start)
               ? CListBox::accNavigate(direction, start, end)
               : access::Navigate(direction, start, Ask(LB_GETCOUNT), *end);
}

HRESULT CCustomListBox::accHitTest(long left, long top, VARIANT* child)
{
    CPoint point(left, top);
    if (!access::IsInClient(*this, point))
    {
        return GiveNothing(*child);
    }
    const int index = RowFromPoint(point);
    return Give(*child, index < 0 ? CHILDID_SELF : access::ChildOf(index));
}

HRESULT CCustomListBox::get_accDefaultAction(VARIANT child, BSTR* action)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CListBox::get_accDefaultAction(child, action);
    }
    *action = nullptr;
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    return (GetStyle() & LBS_NOTIFY) != 0 ? Give(*action, "Double click") : S_FALSE;
}

HRESULT CCustomListBox::accDoDefaultAction(VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CListBox::accDoDefaultAction(child);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    if ((GetStyle() & LBS_NOTIFY) == 0 || !IsWindowEnabled())
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    const WindowAlive alive(*this);
    const HRESULT selected = accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, child);
    if (alive && SUCCEEDED(selected))
    {
        ::PostMessage(::GetParent(GetSafeHwnd()), WM_COMMAND,
                      MAKEWPARAM(GetDlgCtrlID(), LBN_DBLCLK),
                      reinterpret_cast<LPARAM>(GetSafeHwnd()));
    }
    return selected;
}
