#include "CustomPropPage.h"

#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "modes/ModeChanges.h"
#include "modes/WindowAlive.h"

IMPLEMENT_DYNAMIC(CCustomPropPage, CPropertyPage)

BEGIN_MESSAGE_MAP(CCustomPropPage, CPropertyPage)
    ON_WM_CTLCOLOR()
    ON_MESSAGE(WM_NEXTDLGCTL, &CCustomPropPage::OnNextControl)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

CCustomPropPage::CCustomPropPage(UINT templateId, UINT captionId)
    : CPropertyPage(templateId, captionId)
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    EnableActiveAccessibility();
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomPropPage(this);
}

CCustomPropPage::~CCustomPropPage()
{
    COnBoardUIGeneral::RemoveCustomPropPage(this);
}

namespace {

// Null for a page without a sheet.
HWND SheetOf(HWND page)
{
    const HWND parent = ::GetParent(page);
    return DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(parent)) == nullptr ? nullptr
                                                                                          : parent;
}

// The page that is shown on the sheet of a page; null for one without a sheet.
HWND ShownPage(HWND page)
{
    const HWND sheet = SheetOf(page);
    return sheet == nullptr
               ? nullptr
               : reinterpret_cast<HWND>(::SendMessage(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
}

} // namespace

void CCustomPropPage::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (HasModeAlready(m_openedAt))
    {
        return;
    }
    const WindowAlive alive(*this);
    const HWND page = GetSafeHwnd();
    const bool shown = newMode != oldMode && page != nullptr && ShownPage(page) == page;
    if (!alive)
    {
        return;
    }
    const dialogs::Children children = dialogs::ChildrenOf(*this, m_initialising);
    if (alive)
    {
        dialogs::FollowMode(*this, newMode, oldMode, children);
    }
    // The platform took the page for hidden meanwhile, and did not hide it for another one.
    const HWND now = alive && shown ? ShownPage(page) : nullptr;
    if (alive && now != nullptr && now != page)
    {
        ShowWindow(SW_HIDE);
    }
}

BOOL CCustomPropPage::OnInitDialog()
{
    const WindowAlive alive(*this);
    CPropertyPage::OnInitDialog();
    if (alive)
    {
        m_initialising = false;
        m_openedAt = LastModeChange();
        dialogs::OpenForm(*this, *m_controlList, m_controls);
    }
    return TRUE;
}

LRESULT CCustomPropPage::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    m_initialising = dialogs::IsInitialising(*this, message, m_initialising);
    const LRESULT result = CPropertyPage::WindowProc(message, wParam, lParam);
    if (alive && message == WM_INITDIALOG)
    {
        m_initialising = false;
    }
    return result;
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

// An edit of many lines takes the Tab key and Escape from the sheet, and has the page move the
// focus or close: it would go round on the page for ever, and nothing would close.
LRESULT CCustomPropPage::OnNextControl(WPARAM wParam, LPARAM lParam)
{
    const HWND sheet = SheetOf(GetSafeHwnd());
    return LOWORD(lParam) != 0 || sheet == nullptr
               ? Default() // to a control that is named
               : ::SendMessage(sheet, WM_NEXTDLGCTL, wParam, lParam);
}

void CCustomPropPage::OnClose()
{
    const HWND sheet = SheetOf(GetSafeHwnd());
    if (sheet == nullptr)
    {
        Default();
        return;
    }
    ::PostMessage(sheet, WM_CLOSE, 0, 0);
}
