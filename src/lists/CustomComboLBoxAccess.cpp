// The list of a drop-list combo: what assistive programs are told of it beyond what every list box
// tells.

#include "CustomComboLBox.h"

#include "CustomDropListCombo.h"
#include "access/Rows.h"
#include "modes/WindowAlive.h"

// Its popup is a window of its own that nothing disables: it is the combo that is out of reach.
bool CCustomComboLBox::IsReached() const
{
    return IsPopupVisible() && (m_combo == nullptr || !IsOutOfReach(m_combo->GetSafeHwnd()));
}

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
    if (!alive || FAILED(result) || state->vt != VT_I4)
    {
        return result;
    }
    int index = 0;
    if (IsRow(child, index))
    {
        state->lVal = (state->lVal & ~STATE_SYSTEM_SELECTED) |
                      (index == GetHighlightedRow() ? STATE_SYSTEM_SELECTED : 0);
    }
    if (alive && m_combo != nullptr && IsShutOff(m_combo->GetSafeHwnd()))
    {
        state->lVal = (state->lVal & ~STATE_SYSTEM_FOCUSABLE) | STATE_SYSTEM_UNAVAILABLE;
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
    if (!IsReached())
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
    return IsReached() ? access::PostAct(*this, index) : DISP_E_MEMBERNOTFOUND;
}

// The list may have been closed or lost the row meanwhile.
LRESULT CCustomComboLBox::OnAct(WPARAM row, LPARAM)
{
    return access::DoAct(*this, [this, row] {
        if (IsReached() && Exists(int(row)))
        {
            Pick(int(row));
        }
    });
}
