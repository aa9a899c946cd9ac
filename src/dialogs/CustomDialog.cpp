#include "CustomDialog.h"

#include "AppAccess.h"
#include "CustomPropSheet.h"
#include "GMSUtil.h"
#include "OnBoardUI.h"
#include "OnBoardUIGeneral.h"
#include "dialogs/ControlList.h"
#include "dialogs/OnBoardFrame.h"
#include "dialogs/Opening.h"
#include "modes/ModeChanges.h"
#include "modes/WindowAlive.h"

IMPLEMENT_DYNAMIC(CCustomDialog, CDialog)

BEGIN_MESSAGE_MAP(CCustomDialog, CDialog)
    ON_WM_CREATE()
    ON_WM_CTLCOLOR()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_MOVING()
    ON_WM_NCPAINT()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_LBUTTONDOWN()
    ON_MESSAGE(WM_GETFONT, &CCustomDialog::OnGetFont)
    ON_MESSAGE(WM_SETTEXT, &CCustomDialog::OnSetCaption)
    ON_MESSAGE(WM_SETICON, &CCustomDialog::OnSetCaption)
    ON_WM_SYSCOMMAND()
    ON_WM_CONTEXTMENU()
    ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

IEFB* CCustomDialog::m_efb = nullptr;
CBrush CCustomDialog::m_BkBrush;
CBrush CCustomDialog::m_BkCaptionBrush;
CBrush CCustomDialog::m_BkDisabledBrush;
CBrush CCustomDialog::m_BkEditBrush;
CBrush CCustomDialog::m_BkEditDisabledBrush;
CPen CCustomDialog::m_BkBorderPen;
CPen CCustomDialog::m_BkDisabledPen;
CFont CCustomDialog::m_OBStaticTextFont;
CBrush CCustomDialog::m_BkRedTestBrush;
CBrush CCustomDialog::m_BkGrnTestBrush;
CBrush CCustomDialog::m_BkBluTestBrush;
CPen CCustomDialog::m_BkBorderRedPen;
CPen CCustomDialog::m_BkBorderGrnPen;
CPen CCustomDialog::m_BkBorderBluPen;

CCustomDialog::CCustomDialog(UINT templateId, CWnd* parent)
    : CCustomDialog(templateId, parent, nullptr)
{}

CCustomDialog::CCustomDialog(UINT templateId, CWnd* parent, IAppAccess* host)
    : CDialog(templateId, parent)
    , m_host(host)
    , m_frameWidth(::GetSystemMetrics(SM_CXFRAME))
    , m_frameHeight(::GetSystemMetrics(SM_CYFRAME))
    , m_captionHeight(::GetSystemMetrics(SM_CYCAPTION))
    , m_controlList(std::make_unique<dialogs::ControlList>())
{
    EnableActiveAccessibility();
    MiscConstruction();
}

void CCustomDialog::MiscConstruction()
{
    dialogs::CreateSharedObjects();
    COnBoardUIGeneral::AddCustomDialog(this);
}

CCustomDialog::~CCustomDialog()
{
    COnBoardUIGeneral::RemoveCustomDialog(this);
    // While the message map is still ours: the window's last messages need it.
    if (GetSafeHwnd() != nullptr && FromHandlePermanent(GetSafeHwnd()) == this)
    {
        CDialog::DestroyWindow();
    }
}

std::vector<CWnd*>& CCustomDialog::GetControls()
{
    m_controlList->Refresh(m_controls);
    return m_controls;
}

// Following the display mode --------------------------------------------------------------------

void CCustomDialog::AppModeChanged(APPMODE newMode, APPMODE oldMode)
{
    if (HasModeAlready(m_openedAt))
    {
        return;
    }
    const WindowAlive alive(*this);
    const HFONT font = StandardFont(); // the dialog may be asked, and end
    if (alive)
    {
        dialogs::Children children = {font, m_initialising, nullptr};
        if (m_layOutForMode != nullptr)
        {
            children.layOut = [this] { m_layOutForMode(*this); };
        }
        dialogs::TellPlatformOfActivation(*this, m_frameActive);
        dialogs::FollowMode(*this, newMode, oldMode, m_takenStyles, children);
    }
}

HFONT CCustomDialog::StandardFont() const
{
    return m_opening != nullptr ? m_opening->Template().StandardFont()
                                : dialogs::ChildrenOf(*this, false).standardFont;
}

// Whoever makes a control takes the dialog's font for it. The platform's answer for a rewritten
// template is a font of its own that no mode knows.
LRESULT CCustomDialog::OnGetFont(WPARAM, LPARAM)
{
    if (m_opening == nullptr)
    {
        return Default();
    }
    return reinterpret_cast<LRESULT>(COnBoardUIGeneral::InOnBoardMode() ? HFONT(m_OBStaticTextFont)
                                                                        : StandardFont());
}

BOOL CCustomDialog::OnInitDialog()
{
    const WindowAlive alive(*this);
    CDialog::OnInitDialog();
    if (!alive)
    {
        return TRUE;
    }
    m_showEntire = GetSpecialConfigVal("Dialog", "ShowEntireDialog", 0) != 0;
    m_initialising = false;
    m_openedAt = LastModeChange();
    {
        const std::shared_ptr<dialogs::Opening> opening = m_opening; // the dialog may go meanwhile
        const HWND window = GetSafeHwnd();
        const HFONT font = StandardFont();
        dialogs::OpenOnBoard(window, font,
                             opening != nullptr ? std::span(opening->Fixed())
                                                : std::span<const HWND>());
    }
    if (alive)
    {
        m_controls.clear();
        m_controlList->Clear();
        ::EnumChildWindows(GetSafeHwnd(), &CCustomDialog::BuildListOfControls,
                           reinterpret_cast<LPARAM>(this));
    }
    return TRUE;
}

// Creation --------------------------------------------------------------------------------------

// The template of a dialog on its way, kept by the call that creates it: the dialog may be deleted
// before that returns.
namespace {

using OpeningPtr = std::shared_ptr<dialogs::Opening>;

template <class... From> OpeningPtr OpenFrom(From... from)
{
    auto opening = std::make_shared<dialogs::Opening>();
    CCustomDialogTemplate& source = opening->Template();
    return source.Load(from...) && source.ChangeTemplateForOB() ? opening : nullptr;
}

// From global memory, which may move, or from a loaded resource.
OpeningPtr OpenFromHandle(HGLOBAL memory)
{
    const size_t bytes = memory == nullptr ? 0 : ::GlobalSize(memory);
    if (bytes == 0)
    {
        return OpenFrom(static_cast<LPCDLGTEMPLATE>(::LockResource(memory)));
    }
    OpeningPtr opening = OpenFrom<const void*>(::GlobalLock(memory), bytes);
    ::GlobalUnlock(memory);
    return opening;
}

} // namespace

BOOL CCustomDialog::Create(LPCSTR templateName, CWnd* parent)
{
    return COnBoardUIGeneral::InOnBoardMode() ? CreateFrom(templateName, parent)
                                              : CDialog::Create(templateName, parent);
}

BOOL CCustomDialog::Create(UINT templateId, CWnd* parent)
{
    return COnBoardUIGeneral::InOnBoardMode() ? CreateOB(templateId, parent)
                                              : CDialog::Create(templateId, parent);
}

BOOL CCustomDialog::CreateOB(UINT id, CWnd* parent)
{
    return COnBoardUIGeneral::InOnBoardMode() ? CreateFrom(MAKEINTRESOURCE(id), parent)
                                              : CDialog::Create(id, parent);
}

BOOL CCustomDialog::CreateFrom(LPCSTR templateName, CWnd* parent)
{
    if (GetSafeHwnd() != nullptr)
    {
        return FALSE;
    }
    m_lpszTemplateName = templateName;
    const OpeningPtr opening = OpenFrom(templateName, HINSTANCE(nullptr));
    m_opening = opening;
    return CreateDlgIndirect(opening == nullptr ? nullptr : opening->Template().Lock(), parent,
                             nullptr);
}

BOOL CCustomDialog::CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData)
{
    return CDialog::CreateIndirect(dialogTemplate, parent, initData); // by CreateDlgIndirect
}

BOOL CCustomDialog::CreateIndirect(HGLOBAL dialogTemplate, CWnd* parent)
{
    if (GetSafeHwnd() != nullptr || !COnBoardUIGeneral::InOnBoardMode())
    {
        return CDialog::CreateIndirect(dialogTemplate, parent);
    }
    const OpeningPtr opening = OpenFromHandle(dialogTemplate);
    m_opening = opening;
    return CreateDlgIndirect(opening == nullptr ? nullptr : opening->Template().Lock(), parent,
                             nullptr);
}

BOOL CCustomDialog::CreateDlgIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent,
                                      HINSTANCE instance)
{
    if (GetSafeHwnd() != nullptr)
    {
        return FALSE;
    }
    OpeningPtr opening = m_opening;
    if (opening == nullptr || !opening->IsPending())
    {
        const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
        opening = onBoard ? OpenFrom(dialogTemplate) : nullptr;
        m_opening = opening;
        if (onBoard)
        {
            dialogTemplate = opening == nullptr ? nullptr : opening->Template().Lock();
        }
    }
    if (dialogTemplate == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    if (instance == nullptr && opening != nullptr)
    {
        // Its pictures and window classes are looked for where the template was.
        instance = opening->Template().Module();
    }
    m_initialising = true; // what the mode does to controls on their way is done at their end
    const BOOL created = CDialog::CreateDlgIndirect(dialogTemplate, parent, instance);
    if (opening != nullptr)
    {
        opening->End();
        opening->Template().Unlock();
    }
    return created;
}

LRESULT CCustomDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    if (message == WM_INITDIALOG && m_opening != nullptr && m_opening->IsPending())
    {
        const OpeningPtr opening = m_opening;
        opening->End();
        opening->PlaceControls(GetSafeHwnd());
        if (!alive)
        {
            return FALSE;
        }
    }
    else if (message == WM_NCDESTROY)
    {
        m_opening.reset();
        m_takenStyles = 0;
        m_initialising = false;
        m_frameActive.reset();
    }
    const LRESULT result = CDialog::WindowProc(message, wParam, lParam);
    if (message == WM_INITDIALOG && alive)
    {
        m_initialising = false; // also when a derived class leaves our part out
    }
    return result;
}

int CCustomDialog::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    const int result = CDialog::OnCreate(cs);
    if (result != -1 && alive)
    {
        dialogs::TakePlatformCaption(*this, m_takenStyles);
    }
    return result;
}

// Modal -----------------------------------------------------------------------------------------

bool CCustomDialog::IsModal()
{
    return m_inModalLoop;
}

INT_PTR CCustomDialog::DoModal()
{
    if (GetSafeHwnd() != nullptr)
    {
        return -1; // it has its window, and may be in its loop
    }
    m_inModalLoop = true;
    INT_PTR result = -1;
    {
        const dialogs::ModalNotice notice(m_efb);
        // The flight bag may have changed the mode.
        result = COnBoardUIGeneral::InOnBoardMode() ? DoModalOB() : CDialog::DoModal();
    }
    m_inModalLoop = false;
    return result;
}

INT_PTR CCustomDialog::DoModalOB()
{
    const LPCSTR name = m_lpszTemplateName;
    const LPCDLGTEMPLATE memory = m_lpDialogTemplate;
    const OpeningPtr opening = name != nullptr                ? OpenFrom(name, HINSTANCE(nullptr))
                               : memory != nullptr            ? OpenFrom(memory)
                               : m_hDialogTemplate != nullptr ? OpenFromHandle(m_hDialogTemplate)
                                                              : nullptr;
    if (opening == nullptr)
    {
        return -1;
    }
    m_opening = opening;
    m_lpszTemplateName = nullptr;
    InitModalIndirect(opening->Template().Lock(), m_pParentWnd, m_lpDialogInit);
    const INT_PTR result = CDialog::DoModal();
    opening->Template().Unlock();
    // The object can run again, in any mode.
    m_lpszTemplateName = name;
    m_lpDialogTemplate = memory;
    return result;
}

void CCustomDialog::CheckForChildDialog(CWnd* window)
{
    bool modal = false;
    if (auto* const dialog = DYNAMIC_DOWNCAST(CCustomDialog, window))
    {
        modal = dialog->IsModal();
    }
    else if (auto* const sheet = DYNAMIC_DOWNCAST(CCustomPropSheet, window))
    {
        modal = sheet->IsModal();
    }
    if (modal && GetSafeHwnd() != nullptr && ::GetParent(window->GetSafeHwnd()) == GetSafeHwnd())
    {
        m_hasModalChild = true;
    }
}

BOOL CALLBACK CCustomDialog::CheckForChildDialog(HWND window, LPARAM data)
{
    auto* const dialog = reinterpret_cast<CCustomDialog*>(data);
    if (dialog != nullptr && window != nullptr)
    {
        dialog->CheckForChildDialog(CWnd::FromHandle(window));
    }
    return TRUE;
}

// Controls --------------------------------------------------------------------------------------

void CCustomDialog::BuildListOfControls(CWnd* control)
{
    if (control != nullptr && control->GetSafeHwnd() != nullptr)
    {
        m_controls.push_back(m_controlList->ObjectFor(control->GetSafeHwnd()));
    }
}

BOOL CALLBACK CCustomDialog::BuildListOfControls(HWND window, LPARAM data)
{
    auto* const dialog = reinterpret_cast<CCustomDialog*>(data);
    if (dialog != nullptr && window != nullptr)
    {
        dialog->BuildListOfControls(CWnd::FromHandle(window));
    }
    return TRUE;
}

void CCustomDialog::SetCtrlTabOrder(const UINT* ids)
{
    const WindowAlive alive(*this); // the controls may end it when they are told
    HWND placed = HWND_TOP;
    for (; alive && ids != nullptr && *ids != 0; ++ids)
    {
        const HWND control = ::GetDlgItem(GetSafeHwnd(), int(*ids));
        if (control == nullptr || control == placed)
        {
            continue;
        }
        ::SetWindowLongPtr(control, GWL_STYLE, ::GetWindowLongPtr(control, GWL_STYLE) | WS_TABSTOP);
        ::SetWindowPos(control, placed, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
        placed = control;
    }
}

HBRUSH CCustomDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    const auto brush = dialogs::OnBoardColors(dc, control, kind);
    return brush ? *brush : CDialog::OnCtlColor(dc, control, kind);
}

// The host --------------------------------------------------------------------------------------

void CCustomDialog::OnWindowPosChanged(WINDOWPOS* position)
{
    dialogs::PassAndKeepOrder(*this, m_host, dialogs::IsRestacked(position),
                              [&] { CDialog::OnWindowPosChanged(position); });
}

void CCustomDialog::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    dialogs::PassAndKeepOrder(*this, m_host, true,
                              [&] { CDialog::OnActivate(state, other, minimized); });
}

void CCustomDialog::OnActivateApp(BOOL active, DWORD thread)
{
    CDialog::OnActivateApp(active, thread);
}

void CCustomDialog::OnMoving(UINT side, LPRECT proposed)
{
    const WindowAlive alive(*this);
    CDialog::OnMoving(side, proposed);
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        dialogs::KeepInHostArea(*this, m_host, proposed, m_showEntire);
    }
}

// Non-client area -------------------------------------------------------------------------------

void CCustomDialog::DrawOBNC(bool active)
{
    dialogs::DrawOnBoardFrame(*this, m_captionHeight, active, m_centredTitle);
}

void CCustomDialog::OnNcPaint()
{
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        Default();
        return;
    }
    DrawOBNC(true);
}

BOOL CCustomDialog::OnNcActivate(BOOL active)
{
    m_frameActive = active == TRUE;
    if (!COnBoardUIGeneral::InOnBoardMode())
    {
        return CDialog::OnNcActivate(active);
    }
    DrawOBNC(*m_frameActive);
    return TRUE; // the activation goes on
}

void CCustomDialog::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* params)
{
    if (COnBoardUIGeneral::InOnBoardMode() && params != nullptr)
    {
        // The proposed rectangle stands first in either form of the message.
        const dialogs::Frame frame =
            dialogs::CalcOnBoardFrame(*this, params->rgrc[0], m_captionHeight);
        m_frameWidth = frame.width;
        m_frameHeight = frame.height;
    }
    Default();
}

LRESULT CCustomDialog::OnNcHitTest(CPoint point)
{
    return COnBoardUIGeneral::InOnBoardMode()
               ? dialogs::HitOnBoardFrame(*this, point, m_captionHeight)
               : CDialog::OnNcHitTest(point);
}

void CCustomDialog::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    CDialog::OnNcLButtonDown(hitTest, point);
}

void CCustomDialog::OnLButtonDown(UINT flags, CPoint point)
{
    CDialog::OnLButtonDown(flags, point);
}

LRESULT CCustomDialog::OnSetCaption(WPARAM, LPARAM)
{
    const WindowAlive alive(*this);
    const LRESULT result = Default();
    // The platform paints its own caption with the new text or icon.
    if (alive && COnBoardUIGeneral::InOnBoardMode())
    {
        DrawOBNC(m_frameActive.value_or(true));
    }
    return result;
}

void CCustomDialog::OnSysCommand(UINT, LPARAM)
{
    AnswerSystemRequest();
}

void CCustomDialog::OnContextMenu(CWnd*, CPoint)
{
    AnswerSystemRequest();
}

void CCustomDialog::OnNcLButtonDblClk(UINT, CPoint)
{
    AnswerSystemRequest();
}

void CCustomDialog::AnswerSystemRequest()
{
    if (!dialogs::AsksForSystemCommand(*this, *GetCurrentMessage()))
    {
        Default();
    }
}
