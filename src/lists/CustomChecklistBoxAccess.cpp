// The check list: what assistive programs are told of its rows beyond what every list box tells.

#include "CustomChecklistBox.h"

#include "access/Answers.h"
#include "lists/CheckListLayout.h"
#include "modes/TellParent.h"
#include "modes/WindowAlive.h"

using access::Give;
using access::IsSelf;

HRESULT CCustomChecklistBox::get_accRole(VARIANT child, VARIANT* role)
{
    int index = 0;
    return IsRow(child, index) ? Give(*role, ROLE_SYSTEM_CHECKBUTTON)
                               : CCustomListBox::get_accRole(child, role);
}

HRESULT CCustomChecklistBox::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const HRESULT result = CCustomListBox::get_accState(child, state);
    int index = 0;
    if (!alive || FAILED(result) || !IsRow(child, index))
    {
        return result;
    }
    const int check = GetCheck(index);
    state->lVal |= check == BST_CHECKED         ? STATE_SYSTEM_CHECKED
                   : check >= BST_INDETERMINATE ? STATE_SYSTEM_MIXED
                                                : 0;
    state->lVal |= IsEnabled(index) ? 0 : STATE_SYSTEM_UNAVAILABLE;
    return result;
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
    return Give(*action, access::VerbOfCheck(lists::NextCheck(GetCheck(index), m_checkStyle)));
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
    if (!CanChange(index) || IsOutOfReach(GetSafeHwnd()))
    {
        return DISP_E_MEMBERNOTFOUND;
    }
    const WindowAlive alive(*this);
    ChangeCheck(index, false);
    if (alive)
    {
        PostCommand(GetSafeHwnd(), CLBN_CHKCHANGE); // it may open a dialog
    }
    return S_OK;
}
