#include "CustomFormView.h"

#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "modes/WindowAlive.h"

#include <utility>

IMPLEMENT_DYNAMIC(CCustomFormView, CFormView)

BEGIN_MESSAGE_MAP(CCustomFormView, CFormView)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CCustomFormView::CCustomFormView(LPCSTR templateName)
    : CFormView(templateName)
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomView(this);
}

CCustomFormView::CCustomFormView(UINT templateId)
    : CFormView(templateId)
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomView(this);
}

CCustomFormView::~CCustomFormView()
{
    COnBoardUIGeneral::RemoveCustomView(this);
}

void CCustomFormView::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (newMode == oldMode || GetSafeHwnd() == nullptr)
    {
        return;
    }
    // A view that was created in an on-board mode and has not been initialised yet still has its
    // controls as in the standard mode.
    if (m_restyled || oldMode == STD)
    {
        m_restyled = true;
        dialogs::FollowMode(*this, newMode, oldMode);
    }
}

void CCustomFormView::OnInitialUpdate()
{
    const WindowAlive alive(*this);
    CFormView::OnInitialUpdate();
    if (!alive)
    {
        return;
    }
    // The framework calls this for every document that is opened in the view.
    if (!std::exchange(m_restyled, true))
    {
        dialogs::OpenForm(*this, *m_controlList, m_controls);
    }
    else
    {
        dialogs::ListControls(GetSafeHwnd(), *m_controlList, m_controls);
    }
}

std::vector<CWnd*>& CCustomFormView::GetControls()
{
    m_controlList->Refresh(m_controls);
    return m_controls;
}

HBRUSH CCustomFormView::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    const auto brush = dialogs::OnBoardColors(dc, control, kind);
    return brush ? *brush : CFormView::OnCtlColor(dc, control, kind);
}
