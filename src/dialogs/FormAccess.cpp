// Dialogs, forms, pages and sheets: what assistive programs are told of them. The platform takes
// each of them for any window's client area.

#include "CustomDialog.h"
#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"

#include "access/Answers.h"
#include "modes/WindowAlive.h"

HRESULT CCustomDialog::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CDialog>(*this, child, role, ROLE_SYSTEM_DIALOG);
}

// A form has seldom a text of its own: its frame's title names it.
HRESULT CCustomFormView::get_accName(VARIANT child, BSTR* name)
{
    const WindowAlive alive(*this);
    const bool named = GetWindowTextLength() != 0;
    if (!alive)
    {
        return CO_E_OBJNOTCONNECTED;
    }
    CWnd* const frame = named ? nullptr : GetParentFrame();
    if (frame == nullptr || !access::IsSelf(child))
    {
        return CFormView::get_accName(child, name);
    }
    CString title;
    frame->GetWindowText(title);
    return access::Give(*name, title);
}

HRESULT CCustomFormView::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CFormView>(*this, child, role, ROLE_SYSTEM_PANE);
}

// As its tab has it.
HRESULT CCustomPropPage::get_accName(VARIANT child, BSTR* name)
{
    const bool titled = (m_psp.dwFlags & PSP_USETITLE) != 0 && !IS_INTRESOURCE(m_psp.pszTitle);
    return titled && access::IsSelf(child) ? access::Give(*name, m_psp.pszTitle)
                                           : CPropertyPage::get_accName(child, name);
}

HRESULT CCustomPropPage::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CPropertyPage>(*this, child, role, ROLE_SYSTEM_PROPERTYPAGE);
}

HRESULT CCustomPropSheet::get_accRole(VARIANT child, VARIANT* role)
{
    return access::GiveRole<CPropertySheet>(*this, child, role, ROLE_SYSTEM_DIALOG);
}
