#include "framework/Frame.h"

#include "ChildWindows.h"
#include "StillThere.h"
#include "framework/App.h"
#include "framework/ControlBar.h"

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
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
    auto* const view =
        here
            ? DYNAMIC_DOWNCAST(CView, FromHandlePermanent(::GetDlgItem(m_hWnd, AFX_IDW_PANE_FIRST)))
            : nullptr;
    if (view != nullptr)
    {
        const framework::StillThere viewThere(*view);
        view->OnInitialUpdate();
        if (here && viewThere)
        {
            SetActiveView(view, FALSE);
        }
    }
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
    // The view covers the frame; erasing under it would only flicker.
    return m_pViewActive != nullptr ? TRUE : CWnd::OnEraseBkgnd(dc);
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
    const framework::StillThere here(*this);
    for (const HWND child : framework::ChildWindows(m_hWnd))
    {
        auto* bar = DYNAMIC_DOWNCAST(CControlBar, FromHandlePermanent(child));
        if (here && bar != nullptr && bar->IsWindowVisible())
        {
            bar->OnUpdateCmdUI(this, TRUE);
        }
    }
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
