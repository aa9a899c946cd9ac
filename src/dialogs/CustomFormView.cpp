#include "CustomFormView.h"

#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "modes/ChildRestyling.h"
#include "modes/ModeChanges.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "paint/Metrics.h"
#include "scroll/PlatformDrag.h"

#include <algorithm>
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
    if (newMode == oldMode || GetSafeHwnd() == nullptr || HasModeAlready(m_openedAt))
    {
        return;
    }
    // A view that was created in an on-board mode and has not been initialised yet still has its
    // controls as in the standard mode.
    if (m_restyled || oldMode == STD)
    {
        m_restyled = true;
        const WindowAlive alive(*this);
        scroll::EndPlatformScrolling(*this);
        if (!alive)
        {
            return;
        }
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
        m_openedAt = LastModeChange();
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

// A control that a press gives the focus is in sight, and a host that gives it may want to scroll
// otherwise, so it is keys alone.
BOOL CCustomFormView::PreTranslateMessage(MSG* message)
{
    const bool key = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const WindowAlive alive(*this);
    const HWND before = ::GetFocus();
    const BOOL done = CFormView::PreTranslateMessage(message);
    if (const HWND focus = ::GetFocus(); alive && key && focus != before)
    {
        Reveal(focus);
    }
    return done;
}

void CCustomFormView::Reveal(HWND control)
{
    if (!::IsChild(GetSafeHwnd(), control))
    {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const CRect place = PlaceIn(*this, control);
    const auto step = [](LONG from, LONG to, LONG room) {
        return from < 0 || to - from > room ? from : std::max<LONG>(0, to - room);
    };
    const CSize way(step(place.left, place.right, client.Width()),
                    step(place.top, place.bottom, client.Height()));
    if (way != CSize(0, 0))
    {
        ScrollToPosition(GetScrollPosition() + way);
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
