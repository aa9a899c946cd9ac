#include "CustomFormView.h"

#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "modes/ChildRestyling.h"
#include "modes/WindowAlive.h"
#include "paint/Metrics.h"

#include <utility>

IMPLEMENT_DYNAMIC(CCustomFormView, CFormView)

BEGIN_MESSAGE_MAP(CCustomFormView, CFormView)
    ON_WM_CREATE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CCustomFormView::CCustomFormView(LPCSTR templateName)
    : CFormView(templateName)
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    EnableActiveAccessibility();
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomView(this);
}

CCustomFormView::CCustomFormView(UINT templateId)
    : CCustomFormView(MAKEINTRESOURCE(templateId))
{}

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
        const WindowAlive alive(*this);
        ScrollToPosition(CPoint(0, 0)); // children are scaled from the form's corner
        if (!alive)
        {
            return;
        }
        const dialogs::Children children = dialogs::ChildrenOf(*this, false);
        if (alive)
        {
            dialogs::FollowMode(*this, newMode, oldMode, children);
        }
        if (alive)
        {
            ScaleScrollRange(ModeScale(newMode, oldMode));
        }
    }
}

// The range is that of the controls.
void CCustomFormView::ScaleScrollRange(double scale)
{
    SetScrollSizes(MM_TEXT, RescaledRect(CRect(CPoint(0, 0), GetTotalSize()), scale).Size());
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
        // The range first: the controls may change the mode, which scales it, too.
        if (COnBoardUIGeneral::InOnBoardMode())
        {
            ScaleScrollRange(metrics::OnBoardScale);
        }
        if (alive)
        {
            dialogs::OpenForm(*this, *m_controlList, m_controls);
        }
    }
    else
    {
        dialogs::ListControls(GetSafeHwnd(), *m_controlList, m_controls);
    }
}

int CCustomFormView::OnCreate(LPCREATESTRUCT cs)
{
    m_restyled = false; // an object may get another window
    return CFormView::OnCreate(cs);
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
