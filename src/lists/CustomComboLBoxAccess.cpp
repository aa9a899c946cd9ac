// The list of a drop-list combo: what assistive programs are told of it beyond what every list box
// tells.

#include "CustomComboLBox.h"

#include "CustomDropListCombo.h"
#include "access/Rows.h"
#include "modes/WindowAlive.h"

HRESULT CCustomComboLBox::get_accName(VARIANT child, BSTR* name)
{
    const bool named = m_combo != nullptr && m_combo->GetSafeHwnd() != nullptr;
    return named && access::IsSelf(child) ? m_combo->get_accName(child, name)
                                          : CCustomListBox::get_accName(child, name);
}

HRESULT CCustomComboLBox::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const HRESULT result = CCustomListBox::get_accState(child, state);
    int index = 0;
    if (alive && SUCCEEDED(result) && IsRow(child, index))
    {
        state->lVal = (state->lVal & ~STATE_SYSTEM_SELECTED) |
                      (index == GetHighlightedRow() ? STATE_SYSTEM_SELECTED : 0);
    }
    return result;
}

HRESULT CCustomComboLBox::get_accSelection(VARIANT* children)
{
    const int row = GetHighlightedRow();
    return row < 0 ? access::GiveNothing(*children) : access::Give(*children, access::ChildOf(row));
}

HRESULT CCustomComboLBox::accSelect(long flags, VARIANT child)
{
    int index = 0;
    if (!IsRow(child, index))
    {
        return CCustomListBox::accSelect(flags, child);
    }
    if (!access::CanSelect(flags, false))
    {
        return E_INVALIDARG;
    }
    if (!IsPopupVisible())
    {
        return E_FAIL;
    }
    if (flags != SELFLAG_NONE)
    {
        SetHotRow(index);
    }
    return S_OK;
}

HRESULT CCustomComboLBox::get_accDefaultAction(VARIANT child, BSTR* action)
{
    int index = 0;
    return IsRow(child, index) ? access::Give(*action, "Select")
                               : CCustomListBox::get_accDefaultAction(child, action);
}

HRESULT CCustomComboLBox::accDoDefaultAction(VARIANT child)
{
    int index = 0;
    if (!IsRow(child, index))
    {
        return CCustomListBox::accDoDefaultAction(child);
    }
    return IsPopupVisible() ? access::PostAct(*this, index) : DISP_E_MEMBERNOTFOUND;
}

// The list may have been closed or lost the row meanwhile.
LRESULT CCustomComboLBox::OnAct(WPARAM row, LPARAM)
{
    return access::DoAct(*this, [this, row] {
        if (IsPopupVisible() && Exists(int(row)))
        {
            Pick(int(row));
        }
    });
}
