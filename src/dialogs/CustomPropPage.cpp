#include "CustomPropPage.h"

#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "modes/WindowAlive.h"

IMPLEMENT_DYNAMIC(CCustomPropPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CCustomPropPage, CPropertyPage)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CCustomPropPage::CCustomPropPage(UINT templateId, UINT captionId)
    : CPropertyPage(templateId, captionId)
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomPropPage(this);
}

CCustomPropPage::~CCustomPropPage()
{
    COnBoardUIGeneral::RemoveCustomPropPage(this);
}

void CCustomPropPage::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    dialogs::FollowMode(*this, newMode, oldMode);
}

BOOL CCustomPropPage::OnInitDialog()
{
    const WindowAlive alive(*this);
    CPropertyPage::OnInitDialog();
    if (alive)
    {
        dialogs::OpenForm(*this, *m_controlList, m_controls);
    }
    return TRUE;
}

std::vector<CWnd*>& CCustomPropPage::GetControls()
{
    m_controlList->Refresh(m_controls);
    return m_controls;
}

HBRUSH CCustomPropPage::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    const auto brush = dialogs::OnBoardColors(dc, control, kind);
    return brush ? *brush : CPropertyPage::OnCtlColor(dc, control, kind);
}
