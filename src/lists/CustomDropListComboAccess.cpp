// The combo: what assistive programs are told of it. Its window class is the library's own, so the
// platform knows nothing of it. The list is a window of its own and speaks for itself.

#include "CustomDropListCombo.h"

#include "access/Answers.h"
#include "modes/WindowAlive.h"

// The name is that of the label before it, as the platform's combos have it.
HRESULT CCustomDropListCombo::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveLabelsName<CWnd>(*this, child, name);
}

HRESULT CCustomDropListCombo::get_accValue(VARIANT child, BSTR* value)
{
    return access::IsSelf(child) ? access::Give(*value, GetSelString())
                                 : CWnd::get_accValue(child, value);
}

HRESULT CCustomDropListCombo::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CWnd>(*this, child, role, ROLE_SYSTEM_COMBOBOX);
}

HRESULT CCustomDropListCombo::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const HRESULT result = access::GiveWindowState<CWnd>(*this, child, state);
    if (alive && SUCCEEDED(result) && access::IsSelf(child) && state->vt == VT_I4)
    {
        state->lVal |= STATE_SYSTEM_HASPOPUP |
                       (IsShutOff(GetSafeHwnd()) ? 0 : STATE_SYSTEM_FOCUSABLE) |
                       (m_expanded ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
    }
    return result;
}

HRESULT CCustomDropListCombo::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return access::IsSelf(child) ? access::Give(*action, m_expanded ? "Close" : "Open")
                                 : CWnd::get_accDefaultAction(child, action);
}

HRESULT CCustomDropListCombo::accDoDefaultAction(VARIANT child)
{
    return access::IsSelf(child) ? access::PostAct(*this) : CWnd::accDoDefaultAction(child);
}

// As Alt+Down does it.
LRESULT CCustomDropListCombo::OnAct(WPARAM, LPARAM)
{
    return access::DoAct(*this, [this, alive = WindowAlive(*this)] {
        SetFocus();
        if (alive && m_expanded)
        {
            ListClosed(GetCurSel());
        }
        else if (alive)
        {
            ToggleDropList();
        }
    });
}
