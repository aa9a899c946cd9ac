#include "framework/Frame.h"

#include "StillThere.h"
#include "framework/App.h"
#include "framework/ControlBar.h"
#include "framework/Controls.h"
#include "framework/Menu.h"

#include <utility>

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
END_MESSAGE_MAP()

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

BOOL CFrameWnd::Create(LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect,
                       CWnd* parent, LPCSTR menuName, DWORD exStyle, CCreateContext* context)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    HMENU menu = nullptr;
    if (menuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(menuName, RT_MENU), menuName);
        if (menu == nullptr)
        {
            PostNcDestroy();
            return FALSE;
        }
    }
    const CRect& place = static_cast<const CRect&>(rect);
    const bool anywhere = place.left == CW_USEDEFAULT;
    if (CreateEx(exStyle, className, windowName, style, place.left, place.top,
                 anywhere ? CW_USEDEFAULT : place.right - place.left,
                 anywhere ? CW_USEDEFAULT : place.bottom - place.top,
                 parent == nullptr ? nullptr : parent->m_hWnd, menu, context))
    {
        return TRUE;
    }
    if (menu != nullptr)
    {
        ::DestroyMenu(menu); // gone already if the window existed for a while
    }
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT id, DWORD style, CWnd* parent, CCreateContext* context)
{
    const LPCSTR name = MAKEINTRESOURCE(id);
    const HICON icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    const LPCSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                            reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    CString text;
    CString title;
    text.LoadString(id);
    AfxExtractSubString(title, text, 0);
    if (!Create(windowClass, title, style, rectDefault, parent, name, 0, context))
    {
        return FALSE; // the frame may be gone
    }
    LoadAccelTable(name);
    return TRUE;
}

void CFrameWnd::InitialUpdateFrame(CDocument*, BOOL makeVisible)
{
    const framework::StillThere here(*this); // any step may end the frame
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    if (here && m_pViewActive == nullptr)
    {
        const HWND pane = ::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST);
        SetActiveView(DYNAMIC_DOWNCAST(CView, FromHandlePermanent(pane)), makeVisible);
    }
    if (here && makeVisible)
    {
        ActivateFrame();
    }
}

void CFrameWnd::ActivateFrame(int show)
{
    const framework::StillThere here(*this);
    ShowWindow(show != -1 ? show : IsIconic() ? SW_RESTORE : SW_SHOW);
    if (here)
    {
        BringWindowToTop();
    }
}

CWnd* CFrameWnd::CreateView(CCreateContext* context, UINT id)
{
    CObject* const made = context == nullptr || context->m_pNewViewClass == nullptr
                              ? nullptr
                              : context->m_pNewViewClass->CreateObject();
    auto* view = DYNAMIC_DOWNCAST(CWnd, made);
    if (view == nullptr)
    {
        delete made;
        return nullptr;
    }
    // A view that fails deletes itself.
    return view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 0, 0, 0),
                        this, id, context)
               ? view
               : nullptr;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    return context == nullptr || context->m_pNewViewClass == nullptr ||
           CreateView(context) != nullptr;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT cs)
{
    const framework::StillThere here(*this);
    if (CWnd::OnCreate(cs) == -1 ||
        !OnCreateClient(cs, static_cast<CCreateContext*>(cs->lpCreateParams)) || !here)
    {
        return -1;
    }
    RecalcLayout();
    return here ? 0 : -1;
}

void CFrameWnd::OnDestroy()
{
    m_pViewActive = nullptr;
    CWnd::OnDestroy();
}

void CFrameWnd::OnClose()
{
    DestroyWindow();
}

void CFrameWnd::OnSize(UINT type, int width, int height)
{
    const framework::StillThere here(*this);
    if (type == SIZE_MINIMIZED && m_pViewActive != nullptr && ::IsChild(m_hWnd, ::GetFocus()))
    {
        // Not every platform deactivates a window that is minimised, but it loses the focus.
        m_pViewActive->OnActivateFrame(WA_INACTIVE, this);
    }
    if (here)
    {
        CWnd::OnSize(type, width, height);
    }
    if (here && type != SIZE_MINIMIZED)
    {
        RecalcLayout();
    }
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* dc)
{
    if (m_pViewActive == nullptr)
    {
        return CWnd::OnEraseBkgnd(dc);
    }
    // The view covers the frame; erasing under it would only flicker. A flat bar has its parent
    // paint the ground into the bar's own context.
    if (dc != nullptr && ::WindowFromDC(dc->GetSafeHdc()) != m_hWnd)
    {
        CRect clip;
        dc->GetClipBox(&clip);
        ::FillRect(dc->GetSafeHdc(), &clip, ::GetSysColorBrush(COLOR_BTNFACE));
    }
    return TRUE;
}

void CFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    const framework::StillThere here(*this);
    if (state == WA_INACTIVE && m_pViewActive != nullptr)
    {
        m_pViewActive->OnActivateFrame(state, this); // it may end the frame
    }
    if (here)
    {
        CWnd::OnActivate(state, other, minimized);
    }
    if (here && m_pViewActive != nullptr)
    {
        m_pViewActive->OnActivateView(state != WA_INACTIVE, m_pViewActive, m_pViewActive);
    }
    if (here && state != WA_INACTIVE && m_pViewActive != nullptr)
    {
        m_pViewActive->OnActivateFrame(state, this);
    }
}

void CFrameWnd::OnSetFocus(CWnd* old)
{
    if (m_pViewActive != nullptr)
    {
        m_pViewActive->SetFocus();
    }
    else
    {
        CWnd::OnSetFocus(old);
    }
}

bool CFrameWnd::ScrollActiveView(UINT message, UINT code, UINT position, CScrollBar* bar)
{
    if (m_pViewActive == nullptr)
    {
        return false;
    }
    m_pViewActive->SendMessage(message, MAKEWPARAM(code, position),
                               LPARAM(bar == nullptr ? nullptr : bar->m_hWnd));
    return true;
}

void CFrameWnd::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (!ScrollActiveView(WM_HSCROLL, code, position, bar))
    {
        CWnd::OnHScroll(code, position, bar);
    }
}

void CFrameWnd::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (!ScrollActiveView(WM_VSCROLL, code, position, bar))
    {
        CWnd::OnVScroll(code, position, bar);
    }
}

// Menus -----------------------------------------------------------------------------------------

void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT index, BOOL ofSystem)
{
    const framework::StillThere here(*this);
    CWnd::OnInitMenuPopup(menu, index, ofSystem);
    if (ofSystem || menu == nullptr)
    {
        return;
    }
    const HMENU handle = menu->m_hMenu;
    // Handlers may put items in and take some out, and may step over those that they have done.
    CCmdUI ui;
    for (int last = ::GetMenuItemCount(handle); here && int(ui.m_nIndex) < last; ++ui.m_nIndex)
    {
        const HMENU opens = ::GetSubMenu(handle, int(ui.m_nIndex));
        ui.m_pMenu = CMenu::FromHandle(handle);
        ui.m_pSubMenu = CMenu::FromHandle(opens);
        ui.m_nIndexMax = UINT(last);
        ui.m_nID = opens == nullptr ? ::GetMenuItemID(handle, int(ui.m_nIndex))
                                    : ::GetMenuItemID(opens, 0);
        if (ui.m_nID == 0 || ui.m_nID == UINT(-1))
        {
            continue; // a separator, or a menu that begins with another one
        }
        const bool isCommand = opens == nullptr && ui.m_nID < 0xF000; // not one of the system's
        ui.DoUpdate(this, m_bAutoMenuEnable && isCommand);
        const int before = std::exchange(last, ::GetMenuItemCount(handle));
        if (last < before && ::GetMenuItemID(handle, int(ui.m_nIndex)) != ui.m_nID)
        {
            --ui.m_nIndex; // the next one is where this one was
        }
    }
}

// The bar is the host's while a menu is open, too: what it says there then, it has back afterwards.
void CFrameWnd::OnMenuSelect(UINT item, UINT flags, HMENU menu)
{
    const framework::StillThere here(*this);
    CWnd::OnMenuSelect(item, flags, menu);
    CWnd* const bar = here ? GetMessageBar() : nullptr;
    if (bar == nullptr)
    {
        return;
    }
    CString shown;
    bar->GetWindowText(shown);
    if (!here)
    {
        return;
    }
    const bool isOfMenu = m_menuOpen && shown == m_messageOfMenu;
    m_menuOpen = flags != 0xFFFF || menu != nullptr;
    if (!isOfMenu)
    {
        m_messageBefore = shown;
    }
    if (!m_menuOpen)
    {
        SetMessageText(m_messageBefore);
        return;
    }
    CString text;
    const bool isCommand = (flags & (MF_POPUP | MF_SEPARATOR | MF_SYSMENU)) == 0;
    if (isCommand && item != 0)
    {
        GetMessageString(item, text);
    }
    m_messageOfMenu = text;
    SetMessageText(text);
}

void CFrameWnd::GetMessageString(UINT id, CString& text) const
{
    CString lines;
    lines.LoadString(id);
    AfxExtractSubString(text, lines, 0);
}

CWnd* CFrameWnd::GetMessageBar()
{
    return GetControlBar(AFX_IDW_STATUS_BAR);
}

void CFrameWnd::SetMessageText(LPCSTR text)
{
    if (CWnd* const bar = GetMessageBar())
    {
        bar->SetWindowText(text);
    }
}

void CFrameWnd::SetMessageText(UINT id)
{
    CString text;
    GetMessageString(id, text);
    SetMessageText(text);
}

// Bars ------------------------------------------------------------------------------------------

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    return DYNAMIC_DOWNCAST(CControlBar, FromHandlePermanent(::GetDlgItem(m_hWnd, int(id))));
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL)
{
    const framework::StillThere here(*this);
    if (bar != nullptr)
    {
        bar->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    }
    if (here)
    {
        RecalcLayout();
    }
}

void CFrameWnd::SetActiveView(CView* view, BOOL notify)
{
    CView* const before = m_pViewActive;
    if (view == before)
    {
        return;
    }
    const HWND window = view == nullptr ? nullptr : view->m_hWnd;
    m_pViewActive = nullptr;
    if (before != nullptr)
    {
        before->OnActivateView(FALSE, view, before);
    }
    // The one that was active may have ended the one to be.
    m_pViewActive = FromHandlePermanent(window) == view ? view : nullptr;
    if (m_pViewActive != nullptr && notify)
    {
        view->OnActivateView(TRUE, view, before);
    }
}

BOOL CFrameWnd::LoadAccelTable(LPCSTR name)
{
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
    return m_hAccelTable != nullptr;
}

void CFrameWnd::RecalcLayout(BOOL)
{
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
}

void CFrameWnd::UpdateBars()
{
    SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, FALSE, TRUE);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    // Who declines may have ended the frame all the same.
    const framework::StillThere here(*this);
    if ((m_pViewActive != nullptr && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) ||
        (here && CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)))
    {
        return TRUE;
    }
    CWinApp* const app = AfxGetApp();
    return here && app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    return CWnd::PreTranslateMessage(message) ||
           (m_hAccelTable != nullptr && message->message >= WM_KEYFIRST &&
            message->message <= WM_KEYLAST &&
            ::TranslateAccelerator(m_hWnd, m_hAccelTable, message));
}
