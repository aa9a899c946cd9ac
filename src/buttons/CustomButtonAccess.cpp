// Buttons: what assistive programs are told of them. The platform knows the kind by the style,
// which an owner-drawn button does not show, and the state by its own button, which on-board is not
// asked.

#include "CustomCheckBox.h"
#include "CustomRadiobutton.h"
#include "OnBoardUIGeneral.h"

#include "access/Answers.h"
#include "modes/WindowAlive.h"

namespace {

// What a button and its heirs say it is.
long RoleOf(CCustomButton& button)
{
    VARIANT self = {};
    access::Give(self, CHILDID_SELF);
    VARIANT role = {};
    const bool told = SUCCEEDED(button.get_accRole(self, &role)) && role.vt == VT_I4;
    const long value = told ? role.lVal : ROLE_SYSTEM_PUSHBUTTON;
    ::VariantClear(&role);
    return value;
}

// The check that follows a click. The third state comes only by the platform's own button.
int NextCheck(const CCustomButton& button)
{
    const bool three = !COnBoardUIGeneral::InOnBoardMode() &&
                       (button.GetButtonStyle() & BS_TYPEMASK) == BS_AUTO3STATE;
    const int check = button.GetCheck(); // it may end in the question
    if (three && check != BST_UNCHECKED)
    {
        return check == BST_CHECKED ? BST_INDETERMINATE : BST_UNCHECKED;
    }
    return check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED;
}

} // namespace

HRESULT CCustomButton::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CButton>(*this, child, role, ROLE_SYSTEM_PUSHBUTTON);
}

HRESULT CCustomCheckBox::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CCustomButton>(*this, child, role, ROLE_SYSTEM_CHECKBUTTON);
}

HRESULT CCustomRadiobutton::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CCustomButton>(*this, child, role, ROLE_SYSTEM_RADIOBUTTON);
}

HRESULT CCustomButton::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this); // it may end in each question
    const HRESULT result = access::GiveWindowState<CButton>(*this, child, state);
    if (!alive || FAILED(result) || !access::IsSelf(child) || state->vt != VT_I4)
    {
        return result;
    }
    const auto set = [state](bool when, long bit) {
        state->lVal = when ? state->lVal | bit : state->lVal & ~bit;
    };
    const int check = GetCheck();
    const bool marked = alive && RoleOf(*this) != ROLE_SYSTEM_PUSHBUTTON;
    set(marked && check == BST_CHECKED, STATE_SYSTEM_CHECKED);
    set(marked && check == BST_INDETERMINATE, STATE_SYSTEM_MIXED);
    // On-board the answer is only whether the button is pressed.
    const LRESULT answer = alive ? SendMessage(BM_GETSTATE) : 0;
    set((COnBoardUIGeneral::InOnBoardMode() ? answer : answer & BST_PUSHED) != 0,
        STATE_SYSTEM_PRESSED);
    return alive ? result : CO_E_OBJNOTCONNECTED;
}

HRESULT CCustomButton::get_accDefaultAction(VARIANT child, BSTR* action)
{
    if (!access::IsSelf(child))
    {
        return CButton::get_accDefaultAction(child, action);
    }
    const WindowAlive alive(*this);
    const long role = RoleOf(*this);
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    switch (role)
    {
    case ROLE_SYSTEM_PUSHBUTTON:
        return access::Give(*action, "Press");
    case ROLE_SYSTEM_RADIOBUTTON:
        return access::Give(*action, "Check");
    default:
        return access::Give(*action, access::VerbOfCheck(NextCheck(*this)));
    }
}

HRESULT CCustomButton::accDoDefaultAction(VARIANT child)
{
    return access::IsSelf(child) ? access::PostAct(*this) : CButton::accDoDefaultAction(child);
}

LRESULT CCustomButton::OnAct(WPARAM, LPARAM)
{
    return access::DoAct(*this, [this] { SendMessage(BM_CLICK); });
}
