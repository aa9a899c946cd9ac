#include "CustomPropSheet.h"

#include "CustomDialog.h"
#include "CustomPushbutton.h"
#include "GMSUtil.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/OnBoardFrame.h"
#include "dialogs/SheetTabs.h"
#include "modes/ChildRestyling.h"
#include "modes/ModeChanges.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"

#include <afxcmn.h>

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CCustomPropSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CCustomPropSheet, CPropertySheet)
    ON_WM_CTLCOLOR()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_ACTIVATE()
    ON_WM_MOVING()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_MESSAGE(WM_SETTEXT, &CCustomPropSheet::OnSetCaption)
    ON_MESSAGE(WM_SETICON, &CCustomPropSheet::OnSetCaption)
    ON_WM_SYSCOMMAND()
    ON_WM_CONTEXTMENU()
    ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

IEFB* CCustomPropSheet::m_efb = nullptr;

// What the platform puts on a sheet beside the pages.
struct dialogs::SheetControls
{
    static constexpr UINT ButtonIds[] = {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP};

    SheetTabs tabs;
    CCustomPushbutton buttons[std::size(ButtonIds)];

    SheetControls(CPropertySheet& sheet, HWND tabControl)
    {
        tabs.SubclassWindow(tabControl);
        for (size_t index = 0; index < std::size(ButtonIds); ++index)
        {
            buttons[index].SubclassDlgItem(ButtonIds[index], &sheet);
        }
    }
};

CCustomPropSheet::CCustomPropSheet(UINT captionId, IAppAccess* host, CWnd* parent, UINT selectPage)
    : CPropertySheet(captionId, parent, selectPage)
    , m_host(host)
    , m_captionHeight(::GetSystemMetrics(SM_CYCAPTION))
{
    Construct();
}

CCustomPropSheet::CCustomPropSheet(LPCSTR caption, IAppAccess* host, CWnd* parent, UINT selectPage)
    : CPropertySheet(caption, parent, selectPage)
    , m_host(host)
    , m_captionHeight(::GetSystemMetrics(SM_CYCAPTION))
{
    Construct();
}

void CCustomPropSheet::Construct()
{
    EnableActiveAccessibility();
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomPropSheet(this);
}

CCustomPropSheet::~CCustomPropSheet()
{
    COnBoardUIGeneral::RemoveCustomPropSheet(this);
    if (GetSafeHwnd() != nullptr && FromHandlePermanent(GetSafeHwnd()) == this)
    {
        CPropertySheet::DestroyWindow();
    }
}

// Following the display mode --------------------------------------------------------------------

void CCustomPropSheet::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (HasModeAlready(m_openedAt))
    {
        return;
    }
    const WindowAlive alive(*this);
    const dialogs::Children children = dialogs::ChildrenOf(*this, m_initialising);
    if (alive)
    {
        dialogs::TellPlatformOfActivation(*this, m_frameActive);
        dialogs::FollowMode(*this, newMode, oldMode, m_takenStyles, children);
    }
}

BOOL CCustomPropSheet::OnInitDialog()
{
    const WindowAlive alive(*this);
    const BOOL result = CPropertySheet::OnInitDialog();
    if (alive)
    {
        m_showEntire = GetSpecialConfigVal("Dialog", "ShowEntireDialog", 0) != 0;
        m_initialising = false;
        m_openedAt = LastModeChange();
        m_laidOut = true;
        const CTabCtrl* const tabs = GetTabControl(); // the sheet is asked, and may end
        if (!alive || tabs == nullptr)
        {
            return result;
        }
        m_sheetControls = std::make_unique<dialogs::SheetControls>(*this, *tabs);
        if (COnBoardUIGeneral::InOnBoardMode())
        {
            LayOutOnBoard();
        }
    }
    return result;
}

namespace {

CRect PlaceOf(HWND child)
{
    return PlaceIn(::GetParent(child), child);
}

void Place(HWND child, const CRect& place)
{
    ::SetWindowPos(child, nullptr, place.left, place.top, place.Width(), place.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

// Where the pages lie on the tabs, in the coordinates of both windows' parent.
CRect PageArea(HWND tabs)
{
    CRect area = PlaceOf(tabs);
    ::SendMessage(tabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}

} // namespace

// The platform has laid the sheet out for its own fonts. Larger tabs take more than their share of
// the sheet, so it gives the pages what they need, moves what is below, and grows round it all.
void CCustomPropSheet::LayOutOnBoard()
{
    const WindowAlive alive(*this);
    const HWND sheet = GetSafeHwnd();
    const HWND tabs = m_sheetControls->tabs;
    const CSize page = RescaledRect(PageArea(tabs), metrics::OnBoardScale).Size();
    dialogs::OpenOnBoard(sheet, dialogs::ChildrenOf(*this, false).standardFont);
    if (!alive || !COnBoardUIGeneral::InOnBoardMode())
    {
        return; // it has followed the mode back
    }

    const CRect tabsBefore = PlaceOf(tabs);
    const CRect pageBefore = PageArea(tabs);
    const CSize more(std::max(0, int(page.cx) - pageBefore.Width()),
                     std::max(0, int(page.cy) - pageBefore.Height()));
    Place(tabs, CRect(tabsBefore.TopLeft(), tabsBefore.Size() + more));
    if (!alive)
    {
        return;
    }
    const auto shown = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
    if (shown != nullptr)
    {
        Place(shown, PageArea(tabs));
    }
    CSize extent = PlaceOf(tabs).BottomRight() - CPoint(0, 0);
    ForEachChild(sheet, [&](HWND child) {
        if (!alive || child == tabs || child == shown)
        {
            return;
        }
        CRect place = PlaceOf(child);
        if (place.top >= tabsBefore.bottom)
        {
            place.OffsetRect(more.cx, more.cy);
            Place(child, place);
        }
        if ((::GetWindowLongPtr(child, GWL_STYLE) & WS_VISIBLE) != 0)
        {
            extent.cx = std::max(extent.cx, place.right);
            extent.cy = std::max(extent.cy, place.bottom);
        }
    });

    if (alive && HasOnBoardFrame())
    {
        dialogs::TakePlatformCaption(*this, m_takenStyles);
    }
    if (!alive)
    {
        return;
    }
    CRect frame;
    GetWindowRect(&frame);
    CRect client;
    GetClientRect(&client);
    const CSize margin = tabsBefore.TopLeft() - CPoint(0, 0); // the same on the other sides
    const CSize size = frame.Size() - client.Size() + extent + margin;
    ::SetWindowPos(sheet, nullptr, 0, 0, size.cx, size.cy,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Modal -----------------------------------------------------------------------------------------

bool CCustomPropSheet::IsModal()
{
    return m_inModalLoop;
}

INT_PTR CCustomPropSheet::DoModal()
{
    if (GetSafeHwnd() != nullptr)
    {
        return -1; // it has its window, and may be in its loop
    }
    m_inModalLoop = true;
    INT_PTR result = -1;
    {
        const dialogs::ModalNotice notice(m_efb);
        result = CPropertySheet::DoModal();
    }
    m_inModalLoop = false;
    return result;
}

LRESULT CCustomPropSheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY)
    {
        m_laidOut = false;
        m_takenStyles = 0;
        m_frameActive.reset();
    }
    const WindowAlive alive(*this);
    m_initialising = dialogs::IsInitialising(*this, message, m_initialising);
    const LRESULT result = CPropertySheet::WindowProc(message, wParam, lParam);
    if (alive && message == WM_INITDIALOG)
    {
        m_initialising = false;
    }
    return result;
}

HBRUSH CCustomPropSheet::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    const auto brush = dialogs::OnBoardColors(dc, control, kind);
    return brush ? *brush : CPropertySheet::OnCtlColor(dc, control, kind);
}

// The host --------------------------------------------------------------------------------------

void CCustomPropSheet::OnWindowPosChanged(WINDOWPOS* position)
{
    dialogs::PassAndKeepOrder(*this, m_host, dialogs::IsRestacked(position),
                              [&] { CPropertySheet::OnWindowPosChanged(position); });
}

void CCustomPropSheet::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    dialogs::PassAndKeepOrder(*this, m_host, true,
                              [&] { CPropertySheet::OnActivate(state, other, minimized); });
}

void CCustomPropSheet::OnMoving(UINT side, LPRECT proposed)
{
    const WindowAlive alive(*this);
    CPropertySheet::OnMoving(side, proposed);
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        dialogs::KeepInHostArea(*this, m_host, proposed, m_showEntire);
    }
}

// Non-client area -------------------------------------------------------------------------------

// A sheet that stands in another window as a child has a caption only if the platform gives it one.
bool CCustomPropSheet::HasOnBoardFrame() const
{
    const DWORD style = GetStyle() | m_takenStyles;
    return m_laidOut && COnBoardUIGeneral::InOnBoardMode() &&
           ((style & WS_CHILD) == 0 || (style & WS_CAPTION) == WS_CAPTION);
}

void CCustomPropSheet::DrawOBNC(bool active)
{
    dialogs::DrawOnBoardFrame(*this, m_captionHeight, active, false);
}

void CCustomPropSheet::OnNcPaint()
{
    if (!HasOnBoardFrame())
    {
        Default();
        return;
    }
    DrawOBNC(true);
}

BOOL CCustomPropSheet::OnNcActivate(BOOL active)
{
    m_frameActive = active == TRUE;
    if (!HasOnBoardFrame())
    {
        return CPropertySheet::OnNcActivate(active);
    }
    DrawOBNC(*m_frameActive);
    return TRUE;
}

void CCustomPropSheet::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* params)
{
    if (HasOnBoardFrame() && params != nullptr)
    {
        dialogs::CalcOnBoardFrame(*this, params->rgrc[0], m_captionHeight);
    }
    Default();
}

LRESULT CCustomPropSheet::OnNcHitTest(CPoint point)
{
    return HasOnBoardFrame() ? dialogs::HitOnBoardFrame(*this, point, m_captionHeight)
                             : CPropertySheet::OnNcHitTest(point);
}

LRESULT CCustomPropSheet::OnSetCaption(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    if (alive && HasOnBoardFrame())
    {
        DrawOBNC(m_frameActive.value_or(true));
    }
    return result;
}

void CCustomPropSheet::OnSysCommand(UINT, LPARAM)
{
    AnswerSystemRequest();
}

void CCustomPropSheet::OnContextMenu(CWnd*, CPoint)
{
    AnswerSystemRequest();
}

void CCustomPropSheet::OnNcLButtonDblClk(UINT, CPoint)
{
    AnswerSystemRequest();
}

void CCustomPropSheet::AnswerSystemRequest()
{
    if (!HasOnBoardFrame() || !dialogs::AsksForSystemCommand(*this, *GetCurrentMessage()))
    {
        Default();
    }
}
