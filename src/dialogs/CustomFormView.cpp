#include "CustomFormView.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"

IMPLEMENT_DYNAMIC(CCustomFormView, CFormView)

BEGIN_MESSAGE_MAP(CCustomFormView, CFormView)
END_MESSAGE_MAP()

CCustomFormView::CCustomFormView(LPCSTR templateName)
    : CFormView(templateName)
{
    COnBoardUIGeneral::AddCustomView(this);
}

CCustomFormView::CCustomFormView(UINT templateId)
    : CFormView(templateId)
{
    COnBoardUIGeneral::AddCustomView(this);
}

CCustomFormView::~CCustomFormView()
{
    COnBoardUIGeneral::RemoveCustomView(this);
}

void CCustomFormView::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    RestyleChildren(GetSafeHwnd(), newMode, oldMode);
}

void CCustomFormView::OnInitialUpdate()
{
    CFormView::OnInitialUpdate();
    RestyleNewWindow(GetSafeHwnd());
}
