// The list box: what assistive programs are told of its rows.

#include "CustomListBox.h"

#include "access/Rows.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

using access::Give;
using access::GiveNothing;
using access::IsSelf;

namespace {

bool HasSelection(const CWnd& list)
{
    return (list.GetStyle() & LBS_NOSEL) == 0;
}

// A double click is told where it selects.
bool HasAction(const CWnd& list)
{
    return HasSelection(list) && (list.GetStyle() & LBS_NOTIFY) != 0;
}

} // namespace

bool CCustomListBox::IsRow(const VARIANT& child, int& index)
{
    index = access::RowOf(child, Ask(LB_GETCOUNT));
    return index >= 0;
}

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
        return access::GiveLabelsName<CListBox>(*this, child, name);
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
        return access::GiveWindowState<CListBox>(*this, child, state);
    }
    if (!IsRow(child, index))
    {
        return E_INVALIDARG;
    }
    CRect place;
    access::RowState row = {.selected = IsSelected(index),
                            .caret = index == Ask(LB_GETCARETINDEX),
                            .inSight = IsInSight(index, place)};
    row.more |= HasSelection(*this) ? STATE_SYSTEM_SELECTABLE : 0;
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
    if (!HasSelection(*this) && (flags & ~long(SELFLAG_TAKEFOCUS)) != 0)
    {
        return E_INVALIDARG;
    }
    if (const HRESULT kept = access::KeptFromSelecting(*this, flags, many); FAILED(kept))
    {
        return kept;
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
        PostCommand(GetSafeHwnd(), LBN_SELCHANGE); // it may open a dialog
    }
    return alive ? S_OK : CO_E_OBJNOTCONNECTED;
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
    return HasAction(*this) ? Give(*action, "Double click") : S_FALSE;
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
    if (!HasAction(*this))
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    const WindowAlive alive(*this);
    const HRESULT selected = accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, child);
    return alive && SUCCEEDED(selected) ? access::PostAct(*this) : selected;
}

LRESULT CCustomListBox::OnAct(WPARAM, LPARAM)
{
    return access::DoAct(*this, [this] { TellCommand(GetSafeHwnd(), LBN_DBLCLK); });
}
