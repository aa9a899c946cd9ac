// The tool bar: what assistive programs are told of it and of its buttons.

#include "CustomToolbar.h"

#include "access/Strip.h"
#include "modes/WindowAlive.h"

HRESULT CustomToolbar::get_accChildCount(long* count)
{
    *count = GetCount();
    return S_OK;
}

HRESULT CustomToolbar::get_accChild(VARIANT child, IDispatch** object)
{
    return access::GivePart(object, child, GetCount());
}

// A button without a text is named by its command's tip, which follows the line for the status bar
// in the program's string of the command.
HRESULT CustomToolbar::get_accName(VARIANT child, BSTR* name)
{
    const WindowAlive alive(*this); // it may end in each question
    const int button = access::RowOf(child, GetCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (button < 0)
    {
        return CToolBar::get_accName(child, name);
    }
    CString text = GetButtonText(button);
    if (const UINT id = alive ? GetItemID(button) : 0;
        text.IsEmpty() && id != 0 && text.LoadString(id))
    {
        const int tip = text.Find('\n');
        text = text.Mid(tip + 1);
    }
    return access::Give(*name, text);
}

HRESULT CustomToolbar::get_accRole(VARIANT child, VARIANT* role)
{
    if (access::IsSelf(child))
    {
        return access::Give(*role, ROLE_SYSTEM_TOOLBAR);
    }
    const WindowAlive alive(*this);
    const int button = access::RowOf(child, GetCount());
    if (button < 0 || !alive)
    {
        return alive ? E_INVALIDARG : CO_E_OBJNOTCONNECTED;
    }
    const UINT style = GetButtonStyle(button);
    const auto has = [style](UINT all) { return (style & all) == all; };
    return access::Give(*role, has(TBBS_SEPARATOR)    ? ROLE_SYSTEM_SEPARATOR
                               : has(TBBS_CHECKGROUP) ? ROLE_SYSTEM_RADIOBUTTON
                               : has(TBBS_CHECKBOX)   ? ROLE_SYSTEM_CHECKBUTTON
                               : has(TBBS_DROPDOWN)   ? ROLE_SYSTEM_BUTTONDROPDOWN
                                                      : ROLE_SYSTEM_PUSHBUTTON);
}

HRESULT CustomToolbar::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this); // it may end in each question
    const int button = access::RowOf(child, GetCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (button < 0)
    {
        return access::GiveWindowState<CToolBar>(*this, child, state);
    }
    // The platform knows states by the command, and separators have none.
    TBBUTTON data = {};
    SendMessage(TB_GETBUTTON, WPARAM(button), reinterpret_cast<LPARAM>(&data));
    long bits = 0;
    const auto add = [&](bool when, long bit) { bits |= when ? bit : 0; };
    add((data.fsState & TBSTATE_PRESSED) != 0, STATE_SYSTEM_PRESSED);
    add((data.fsState & TBSTATE_CHECKED) != 0, STATE_SYSTEM_CHECKED);
    add((data.fsState & TBSTATE_INDETERMINATE) != 0, STATE_SYSTEM_MIXED);
    add((data.fsState & TBSTATE_HIDDEN) != 0, STATE_SYSTEM_INVISIBLE);
    add((data.fsState & TBSTATE_ENABLED) == 0, STATE_SYSTEM_UNAVAILABLE);
    add(alive && button == FocusedButton(), STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED);
    CRect place(0, 0, 0, 0);
    if (alive)
    {
        GetItemRect(button, &place);
    }
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    return access::GivePartState(*state, *this, place, bits);
}

HRESULT CustomToolbar::get_accFocus(VARIANT* child)
{
    const WindowAlive alive(*this);
    const int button = FocusedButton();
    return !alive        ? CO_E_OBJNOTCONNECTED
           : button >= 0 ? access::Give(*child, access::ChildOf(button))
                         : CToolBar::get_accFocus(child);
}

HRESULT CustomToolbar::get_accDefaultAction(VARIANT child, BSTR* action)
{
    const WindowAlive alive(*this);
    const int button = access::RowOf(child, GetCount());
    const bool presses = alive && button >= 0 && GetItemID(button) != 0;
    return !alive    ? CO_E_OBJNOTCONNECTED
           : presses ? access::Give(*action, "Press")
                     : CToolBar::get_accDefaultAction(child, action);
}

HRESULT CustomToolbar::accDoDefaultAction(VARIANT child)
{
    const WindowAlive alive(*this); // it may end in each question
    const int button = access::RowOf(child, GetCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (button < 0)
    {
        return CToolBar::accDoDefaultAction(child);
    }
    VARIANT state = {};
    get_accState(child, &state);
    const bool presses = alive && GetItemID(button) != 0 &&
                         (state.lVal & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE)) == 0;
    return !alive    ? CO_E_OBJNOTCONNECTED
           : presses ? access::PostAct(*this, button)
                     : DISP_E_MEMBERNOTFOUND;
}

HRESULT CustomToolbar::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    const WindowAlive alive(*this); // it may end in each question
    const int button = access::RowOf(child, GetCount());
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    if (button < 0)
    {
        return CToolBar::accLocation(left, top, width, height, child);
    }
    CRect place(0, 0, 0, 0);
    GetItemRect(button, &place);
    return alive ? access::GivePlace(*this, place, left, top, width, height) : CO_E_OBJNOTCONNECTED;
}

HRESULT CustomToolbar::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    return access::LeavesList(direction, start)
               ? CToolBar::accNavigate(direction, start, end)
               : access::NavigateStrip(direction, start, GetCount(), *end);
}

HRESULT CustomToolbar::accHitTest(long left, long top, VARIANT* child)
{
    CPoint point(left, top);
    if (!access::IsInClient(*this, point))
    {
        return access::GiveNothing(*child);
    }
    const LRESULT button = SendMessage(TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point));
    return access::Give(*child, button < 0 ? CHILDID_SELF : access::ChildOf(int(button)));
}
