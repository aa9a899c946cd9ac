// Buttons: what assistive programs are told of them. The platform knows the kind by the style,
// which an owner-drawn button does not show, and the state by its own button, which on-board is not
// asked.

#include "CustomCheckBox.h"
#include "CustomRadiobutton.h"

#include "access/Answers.h"

long CCustomButton::GetAccessibleRole() const
{
    return ROLE_SYSTEM_PUSHBUTTON;
}

long CCustomCheckBox::GetAccessibleRole() const
{
    return ROLE_SYSTEM_CHECKBUTTON;
}

long CCustomRadiobutton::GetAccessibleRole() const
{
    return ROLE_SYSTEM_RADIOBUTTON;
}

HRESULT CCustomButton::get_accRole(VARIANT child, VARIANT* role)
{
    return access::IsSelf(child) ? access::Give(*role, GetAccessibleRole())
                                 : CButton::get_accRole(child, role);
}

HRESULT CCustomButton::get_accState(VARIANT child, VARIANT* state)
{
    const HRESULT result = CButton::get_accState(child, state);
    if (FAILED(result) || !access::IsSelf(child) || state->vt != VT_I4)
    {
        return result;
    }
    const auto set = [state](bool when, long bit) {
        state->lVal = when ? state->lVal | bit : state->lVal & ~bit;
    };
    const int check = GetCheck();
    const bool marked = GetAccessibleRole() != ROLE_SYSTEM_PUSHBUTTON;
    set(marked && check == BST_CHECKED, STATE_SYSTEM_CHECKED);
    set(marked && check == BST_INDETERMINATE, STATE_SYSTEM_MIXED);
    set((SendMessage(BM_GETSTATE) & BST_PUSHED) != 0, STATE_SYSTEM_PRESSED);
    return result;
}

HRESULT CCustomButton::get_accDefaultAction(VARIANT child, BSTR* action)
{
    if (!access::IsSelf(child))
    {
        return CButton::get_accDefaultAction(child, action);
    }
    switch (GetAccessibleRole())
    {
    case ROLE_SYSTEM_PUSHBUTTON:
        return access::Give(*action, "Press");
    case ROLE_SYSTEM_RADIOBUTTON:
        return access::Give(*action, "Check");
    default:
        return access::Give(*action, GetCheck() == BST_CHECKED ? "Uncheck" : "Check");
    }
}

HRESULT CCustomButton::accDoDefaultAction(VARIANT child)
{
    if (!access::IsSelf(child))
    {
        return CButton::accDoDefaultAction(child);
    }
    // Posted: the click may open a dialog, and the program that asks would wait for its end.
    return PostMessage(BM_CLICK) ? S_OK : E_FAIL;
}
