#include "CustomPropSheet.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"

IMPLEMENT_DYNAMIC(CCustomPropSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CCustomPropSheet, CPropertySheet)
END_MESSAGE_MAP()

CCustomPropSheet::CCustomPropSheet(UINT captionId, IAppAccess* host, CWnd* parent, UINT selectPage)
    : CPropertySheet(captionId, parent, selectPage)
    , m_host(host)
{
    COnBoardUIGeneral::AddCustomPropSheet(this);
}

CCustomPropSheet::CCustomPropSheet(LPCSTR caption, IAppAccess* host, CWnd* parent, UINT selectPage)
    : CPropertySheet(caption, parent, selectPage)
    , m_host(host)
{
    COnBoardUIGeneral::AddCustomPropSheet(this);
}

CCustomPropSheet::~CCustomPropSheet()
{
    COnBoardUIGeneral::RemoveCustomPropSheet(this);
}

void CCustomPropSheet::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    RestyleChildren(GetSafeHwnd(), newMode, oldMode);
}

BOOL CCustomPropSheet::OnInitDialog()
{
    const BOOL result = CPropertySheet::OnInitDialog();
    RestyleNewWindow(GetSafeHwnd());
    return result;
}
