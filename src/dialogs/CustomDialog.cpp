#include "CustomDialog.h"

#include "OnBoardUIGeneral.h"
#include "modes/ChildRestyling.h"

IMPLEMENT_DYNAMIC(CCustomDialog, CDialog)

BEGIN_MESSAGE_MAP(CCustomDialog, CDialog)
END_MESSAGE_MAP()

CCustomDialog::CCustomDialog(UINT templateId, CWnd* parent)
    : CCustomDialog(templateId, parent, nullptr)
{}

CCustomDialog::CCustomDialog(UINT templateId, CWnd* parent, IAppAccess* host)
    : CDialog(templateId, parent)
    , m_host(host)
{
    COnBoardUIGeneral::AddCustomDialog(this);
}

CCustomDialog::~CCustomDialog()
{
    COnBoardUIGeneral::RemoveCustomDialog(this);
}

void CCustomDialog::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    RestyleChildren(GetSafeHwnd(), newMode, oldMode);
}

BOOL CCustomDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    RestyleNewWindow(GetSafeHwnd());
    return TRUE;
}
