// The tabs of a sheet: what assistive programs are told of them.

#include "dialogs/SheetTabs.h"

#include "access/Strip.h"
#include "modes/WindowAlive.h"

#include <afxdlgs.h>

namespace dialogs {

HRESULT SheetTabs::get_accChildCount(long* count)
{
    *count = GetItemCount();
    return S_OK;
}

HRESULT SheetTabs::get_accChild(VARIANT child, IDispatch** object)
{
    return access::GivePart(object, child, GetItemCount());
}

// The tabs together are named as their sheet.
HRESULT SheetTabs::get_accName(VARIANT child, BSTR* name)
{
    const WindowAlive alive(*this); // a host that has put itself in between may end the tabs
    const int tab = access::RowOf(child, GetItemCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (tab >= 0)
    {
        return access::Give(*name, TextOf(tab));
    }
    CString title;
    if (const CWnd* const sheet = GetParent())
    {
        sheet->GetWindowText(title);
    }
    return access::IsSelf(child) ? access::Give(*name, title) : E_INVALIDARG;
}

HRESULT SheetTabs::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GivePartRole(*role, child, GetItemCount(), ROLE_SYSTEM_PAGETABLIST,
                                ROLE_SYSTEM_PAGETAB);
}

HRESULT SheetTabs::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const int tab = access::RowOf(child, GetItemCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (tab < 0)
    {
        return access::GiveWindowState<CTabCtrl>(*this, child, state);
    }
    CRect place(0, 0, 0, 0);
    GetItemRect(tab, &place);
    const bool active = alive && tab == GetCurSel();
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    const bool focused = active && ::GetFocus() == GetSafeHwnd();
    const bool enabled = !IsShutOff(GetSafeHwnd());
    return access::GivePartState(*state, *this, place,
                                 STATE_SYSTEM_SELECTABLE | (enabled ? STATE_SYSTEM_FOCUSABLE : 0) |
                                     (active ? STATE_SYSTEM_SELECTED : 0) |
                                     (focused ? STATE_SYSTEM_FOCUSED : 0));
}

HRESULT SheetTabs::get_accFocus(VARIANT* child)
{
    return ::GetFocus() == GetSafeHwnd() ? get_accSelection(child) : access::GiveNothing(*child);
}

HRESULT SheetTabs::get_accSelection(VARIANT* children)
{
    const int active = GetCurSel();
    return active < 0 ? access::GiveNothing(*children)
                      : access::Give(*children, access::ChildOf(active));
}

HRESULT SheetTabs::get_accDefaultAction(VARIANT child, BSTR* action)
{
    const WindowAlive alive(*this);
    const bool isTab = access::RowOf(child, GetItemCount()) >= 0;
    return !alive  ? CO_E_OBJNOTCONNECTED
           : isTab ? access::Give(*action, "Switch")
                   : CTabCtrl::get_accDefaultAction(child, action);
}

// Posted: a page that is left may ask the user about what it has been given.
HRESULT SheetTabs::accDoDefaultAction(VARIANT child)
{
    const WindowAlive alive(*this);
    const int tab = access::RowOf(child, GetItemCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (tab < 0)
    {
        return CTabCtrl::accDoDefaultAction(child);
    }
    return access::PostAct(*this, tab);
}

LRESULT SheetTabs::OnAct(WPARAM tab, LPARAM)
{
    return access::DoAct(
        *this, [=, this] { ::SendMessage(::GetParent(GetSafeHwnd()), PSM_SETCURSEL, tab, 0); });
}

HRESULT SheetTabs::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    const WindowAlive alive(*this);
    const int tab = access::RowOf(child, GetItemCount());
    CRect place(0, 0, 0, 0);
    const bool placed = alive && tab >= 0 && GetItemRect(tab, &place);
    return !alive   ? CO_E_OBJNOTCONNECTED
           : placed ? access::GivePlace(*this, place, left, top, width, height)
                    : CTabCtrl::accLocation(left, top, width, height, child);
}

HRESULT SheetTabs::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return access::LeavesList(direction, start)
               ? CTabCtrl::accNavigate(direction, start, end)
               : access::NavigateStrip(direction, start, GetItemCount(), *end);
}

HRESULT SheetTabs::accHitTest(long left, long top, VARIANT* child)
{
    TCHITTESTINFO hit = {};
    CPoint point(left, top);
    if (!access::IsInClient(*this, point))
    {
        return access::GiveNothing(*child);
    }
    hit.pt = point;
    const LRESULT tab = SendMessage(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return access::Give(*child, access::ChildOf(int(tab))); // of -1: the tabs themselves
}

} // namespace dialogs
