#include "CustomPropPage.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"

IMPLEMENT_DYNAMIC(CCustomPropPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CCustomPropPage, CPropertyPage)
END_MESSAGE_MAP()

CCustomPropPage::CCustomPropPage(UINT templateId, UINT captionId)
    : CPropertyPage(templateId, captionId)
{
    COnBoardUIGeneral::AddCustomPropPage(this);
}

CCustomPropPage::~CCustomPropPage()
{
    COnBoardUIGeneral::RemoveCustomPropPage(this);
}

void CCustomPropPage::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    RestyleChildren(GetSafeHwnd(), newMode, oldMode);
}

BOOL CCustomPropPage::OnInitDialog()
{
    CPropertyPage::OnInitDialog();
    RestyleNewWindow(GetSafeHwnd());
    return TRUE;
}
