// Edits: what assistive programs are told of them. Their text is their value; that, and what else
// is not said here, the platform knows.

#include "ColorEdit.h"
#include "CustomEdit.h"
#include "EditWithPrompt.h"
#include "QuixEdit.h"

#include "access/Answers.h"
#include "modes/WindowAlive.h"

HRESULT CCustomEdit::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveEditsName(*this, child, name);
}

HRESULT CCustomEdit::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CEdit>(*this, child, role, ROLE_SYSTEM_TEXT);
}

// The platform does not know of our way of being read-only.
HRESULT CCustomEdit::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const HRESULT result = access::GiveWindowState<CEdit>(*this, child, state);
    if (alive && SUCCEEDED(result) && access::IsSelf(child) && state->vt == VT_I4 && m_fauxReadOnly)
    {
        state->lVal |= STATE_SYSTEM_READONLY;
    }
    return result;
}

HRESULT ColorEdit::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveEditsName(*this, child, name);
}

HRESULT ColorEdit::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CEdit>(*this, child, role, ROLE_SYSTEM_TEXT);
}

HRESULT ColorEdit::get_accState(VARIANT child, VARIANT* state)
{
    return access::GiveWindowState<CEdit>(*this, child, state);
}

HRESULT EditWithPrompt::get_accName(VARIANT child, BSTR* name)
{
    const WindowAlive alive(*this);
    const auto named = access::NameFromLabel(GetSafeHwnd(), child, name);
    return named                   ? *named
           : !alive                ? CO_E_OBJNOTCONNECTED
           : access::IsSelf(child) ? access::Give(*name, m_prompt)
                                   : CEdit::get_accName(child, name);
}

HRESULT EditWithPrompt::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CEdit>(*this, child, role, ROLE_SYSTEM_TEXT);
}

// A password is one also while the prompt is to be read in its place.
HRESULT EditWithPrompt::get_accState(VARIANT child, VARIANT* state)
{
    const WindowAlive alive(*this);
    const HRESULT result = access::GiveWindowState<CEdit>(*this, child, state);
    if (alive && SUCCEEDED(result) && access::IsSelf(child) && state->vt == VT_I4 &&
        m_passwordChar != 0)
    {
        state->lVal |= STATE_SYSTEM_PROTECTED;
    }
    return result;
}

HRESULT QuixEdit::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveEditsName(*this, child, name);
}

HRESULT QuixEdit::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CEdit>(*this, child, role, ROLE_SYSTEM_TEXT);
}

HRESULT QuixEdit::get_accState(VARIANT child, VARIANT* state)
{
    return access::GiveWindowState<CEdit>(*this, child, state);
}
