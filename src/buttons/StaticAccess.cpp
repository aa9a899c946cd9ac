// Labels, group boxes and swatches: what assistive programs are told of them. The platform takes
// each of them for a text, whatever is drawn there.

#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomStatic.h"

#include "access/Answers.h"

namespace {

// Whether a static shows a text, by its style.
bool ShowsText(const CWnd& label)
{
    switch (label.GetStyle() & SS_TYPEMASK)
    {
    case SS_LEFT:
    case SS_CENTER:
    case SS_RIGHT:
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
    case SS_USERITEM:
    case SS_OWNERDRAW:
        return true;
    default:
        return false;
    }
}

} // namespace

HRESULT CCustomStatic::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveOwnText<CStatic>(*this, child, name);
}

HRESULT CCustomStatic::get_accRole(VARIANT child, VARIANT* role)
{
    if (!access::IsSelf(child))
    {
        return CStatic::get_accRole(child, role);
    }
    return access::Give(*role, m_groupBox         ? ROLE_SYSTEM_GROUPING
                               : ShowsText(*this) ? ROLE_SYSTEM_STATICTEXT
                                                  : ROLE_SYSTEM_GRAPHIC);
}

HRESULT CCustomStatic::get_accState(VARIANT child, VARIANT* state)
{
    return access::ReadOnly(CStatic::get_accState(child, state), *state);
}

HRESULT CColoredGroupBox::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveOwnText<CStatic>(*this, child, name);
}

HRESULT CColoredGroupBox::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CStatic>(*this, child, role, ROLE_SYSTEM_GROUPING);
}

HRESULT CColoredGroupBox::get_accState(VARIANT child, VARIANT* state)
{
    return access::ReadOnly(CStatic::get_accState(child, state), *state);
}

HRESULT CColorStatic::get_accName(VARIANT child, BSTR* name)
{
    return access::GiveOwnText<CStatic>(*this, child, name);
}

HRESULT CColorStatic::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CStatic>(*this, child, role, ROLE_SYSTEM_GRAPHIC);
}

HRESULT CColorStatic::get_accState(VARIANT child, VARIANT* state)
{
    return access::ReadOnly(CStatic::get_accState(child, state), *state);
}
