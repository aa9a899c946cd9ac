// The check list: what assistive programs are told of its rows. A row's child id is its index and
// one; rows are no objects of their own.

#include "CustomChecklistBox.h"

#include "access/Answers.h"
#include "lists/CheckListLayout.h"
#include "lists/ChildIds.h"
#include "modes/WindowAlive.h"

namespace {

using access::Give;
using access::GiveNothing;
using access::IsSelf;

constexpr long ChildOf(int index)
{
    return index + 1;
}

// Whether a list does what the flags ask for; only one of many selected rows adds to them.
constexpr bool CanSelect(long flags, bool many)
{
    const long selects = flags & ~long(SELFLAG_TAKEFOCUS);
    return selects == SELFLAG_NONE || selects == SELFLAG_TAKESELECTION ||
           (many && (selects == SELFLAG_ADDSELECTION || selects == SELFLAG_REMOVESELECTION));
}

const wchar_t* Verb(int nextCheck)
{
    switch (nextCheck)
    {
    case BST_UNCHECKED:
        return L"Uncheck";
    case BST_CHECKED:
        return L"Check";
    default:
        return L"Toggle";
    }
}

} // namespace

// Whether a child id is that of a row; gives its index.
bool CCustomChecklistBox::IsRow(const VARIANT& child, int& index)
{
    index = child.vt == VT_I4 && child.lVal > 0 ? child.lVal - 1 : -1;
    return Exists(index);
}

HRESULT CCustomChecklistBox::get_accChildCount(long* count)
{
    *count = Ask(LB_GETCOUNT);
    return S_OK;
}

HRESULT CCustomChecklistBox::get_accChild(VARIANT child, IDispatch** object)
{
    int index = 0;
    *object = nullptr;
    return IsRow(child, index) ? S_FALSE : E_INVALIDARG;
}

HRESULT CCustomChecklistBox::get_accName(VARIANT child, BSTR* name)
{
    if (IsSelf(child))
    {
        return CCustomListBox::get_accName(child, name);
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

HRESULT CCustomChecklistBox::get_accRole(VARIANT child, VARIANT* role)
{
    int index = 0;
    if (IsSelf(child))
    {
        return Give(*role, ROLE_SYSTEM_LIST);
    }
    return IsRow(child, index) ? Give(*role, ROLE_SYSTEM_CHECKBUTTON) : E_INVALIDARG;
}

HRESULT CCustomChecklistBox::get_accState(VARIANT child, VARIANT* state)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CCustomListBox::get_accState(child, state);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    long bits = STATE_SYSTEM_SELECTABLE;
    const auto add = [&bits](bool when, long bit) { bits |= when ? bit : 0; };
    const int check = GetCheck(index);
    add(check == BST_CHECKED, STATE_SYSTEM_CHECKED);
    add(check >= BST_INDETERMINATE, STATE_SYSTEM_MIXED);
    add(!IsWindowEnabled() || !IsEnabled(index), STATE_SYSTEM_UNAVAILABLE);
    add(IsWindowEnabled(), STATE_SYSTEM_FOCUSABLE);
    add(::GetFocus() == GetSafeHwnd() && index == Ask(LB_GETCARETINDEX), STATE_SYSTEM_FOCUSED);
    add(IsSelected(index), STATE_SYSTEM_SELECTED);
    add(FlipsSelection() || ExtendsSelection(), STATE_SYSTEM_MULTISELECTABLE);
    add(ExtendsSelection(), STATE_SYSTEM_EXTSELECTABLE);
    CRect row;
    add(!IsWindowVisible() || !IsInSight(index, row),
        STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN);
    return Give(*state, bits);
}

HRESULT CCustomChecklistBox::get_accFocus(VARIANT* child)
{
    if (::GetFocus() != GetSafeHwnd())
    {
        return GiveNothing(*child);
    }
    const int caret = Ask(LB_GETCARETINDEX);
    return Give(*child, Exists(caret) ? ChildOf(caret) : CHILDID_SELF);
}

HRESULT CCustomChecklistBox::get_accSelection(VARIANT* children)
{
    const std::vector<int> rows = SelectedRows();
    if (rows.empty())
    {
        return GiveNothing(*children);
    }
    if (rows.size() == 1)
    {
        return Give(*children, ChildOf(rows.front()));
    }
    std::vector<long> ids;
    ids.reserve(rows.size());
    for (const int row : rows)
    {
        ids.push_back(ChildOf(row));
    }
    children->vt = VT_UNKNOWN;
    children->punkVal = new lists::ChildIds(std::move(ids));
    return S_OK;
}

HRESULT CCustomChecklistBox::accSelect(long flags, VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CCustomListBox::accSelect(flags, child);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    const bool many = FlipsSelection() || ExtendsSelection();
    if (!CanSelect(flags, many))
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

HRESULT CCustomChecklistBox::accLocation(long* left, long* top, long* width, long* height,
                                         VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CCustomListBox::accLocation(left, top, width, height, child);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    CRect row = RowRect(index);
    ClientToScreen(&row);
    *left = row.left;
    *top = row.top;
    *width = row.Width();
    *height = row.Height();
    return S_OK;
}

HRESULT CCustomChecklistBox::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    int index = 0;
    if (IsSelf(start))
    {
        switch (direction)
        {
        case NAVDIR_FIRSTCHILD:
            index = 0;
            break;
        case NAVDIR_LASTCHILD:
            index = Ask(LB_GETCOUNT) - 1;
            break;
        default:
            return CCustomListBox::accNavigate(direction, start, end);
        }
    }
    else if (!IsRow(start, index))
    {
        return E_INVALIDARG;
    }
    else if (direction == NAVDIR_NEXT || direction == NAVDIR_DOWN)
    {
        ++index;
    }
    else if (direction == NAVDIR_PREVIOUS || direction == NAVDIR_UP)
    {
        --index;
    }
    else
    {
        return GiveNothing(*end);
    }
    return Exists(index) ? Give(*end, ChildOf(index)) : GiveNothing(*end);
}

HRESULT CCustomChecklistBox::accHitTest(long left, long top, VARIANT* child)
{
    CPoint point(left, top);
    ScreenToClient(&point);
    CRect client;
    GetClientRect(&client);
    if (!client.PtInRect(point))
    {
        return GiveNothing(*child);
    }
    int onCheck = FALSE;
    const int index = CheckFromPoint(point, onCheck);
    return Give(*child, index < 0 ? CHILDID_SELF : ChildOf(index));
}

HRESULT CCustomChecklistBox::get_accDefaultAction(VARIANT child, BSTR* action)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CCustomListBox::get_accDefaultAction(child, action);
    }
    *action = nullptr;
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    if (!CanChange(index))
    {
        return S_FALSE;
    }
    *action = ::SysAllocString(Verb(lists::NextCheck(GetCheck(index), m_checkStyle)));
    return *action == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT CCustomChecklistBox::accDoDefaultAction(VARIANT child)
{
    int index = 0;
    if (IsSelf(child))
    {
        return CCustomListBox::accDoDefaultAction(child);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    if (!CanChange(index) || !IsWindowEnabled())
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    const WindowAlive alive(*this);
    ChangeCheck(index, false);
    if (alive)
    {
        NotifyParent(CLBN_CHKCHANGE);
    }
    return S_OK;
}
