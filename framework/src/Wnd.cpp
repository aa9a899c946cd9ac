// The life of a window object: handles, creation, subclassing, the window procedure and its end.

#include "framework/Wnd.h"

#include "Guarded.h"
#include "Idle.h"
#include "StillThere.h"
#include "ThreadState.h"
#include "TypedWindows.h"
#include "framework/App.h"

#include <algorithm>

using framework::CurrentThreadState;
using framework::ThreadState;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_MESSAGE(WM_VKEYTOITEM, &CWnd::OnKeyToItem)
    ON_MESSAGE(WM_CHARTOITEM, &CWnd::OnKeyToItem)
    ON_WM_PARENTNOTIFY()
    ON_MESSAGE(WM_GETOBJECT, &CWnd::OnGetObject)
END_MESSAGE_MAP()

// Handles and objects ---------------------------------------------------------------------------

CWnd* PASCAL CWnd::FromHandle(HWND window)
{
    CWnd* const wnd =
        CurrentThreadState().windows.Find(window, [](HWND) { return std::make_unique<CWnd>(); });
    if (wnd != nullptr)
    {
        wnd->m_hWnd = window; // also when somebody detached it
    }
    return wnd;
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND window)
{
    return window == nullptr ? nullptr : CurrentThreadState().windows.FindPermanent(window);
}

void PASCAL CWnd::DeleteTempMap()
{
    framework::DeleteTemporaryTypedWindows();
    CurrentThreadState().windows.DeleteTemporaries([](CWnd& wnd) { wnd.m_hWnd = nullptr; });
}

BOOL CWnd::Attach(HWND window)
{
    if (window == nullptr || m_hWnd != nullptr || FromHandlePermanent(window) != nullptr)
    {
        return FALSE;
    }
    ThreadState& state = CurrentThreadState();
    m_hWnd = window;
    state.windows.SetPermanent(window, this);
    if (const auto left = state.leftProcedures.find(window); left != state.leftProcedures.end())
    {
        m_previousProc = left->second;
        state.leftProcedures.erase(left);
    }
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    EndAccessibility();
    if (window != nullptr)
    {
        ThreadState& state = CurrentThreadState();
        state.windows.Remove(window, this);
        m_hWnd = nullptr;
        // Our procedure stays where it is and passes on what the control under it has to see.
        if (m_previousProc != nullptr)
        {
            state.leftProcedures[window] = m_previousProc;
            m_previousProc = nullptr;
        }
    }
    return window;
}

CWnd::~CWnd()
{
    ThreadState& state = CurrentThreadState();
    if (state.creating == this)
    {
        state.creating = nullptr;
    }
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
    {
        CWnd::DestroyWindow();
        if (m_hWnd != nullptr)
        {
            Detach(); // it has ended before its messages came here
        }
    }
    EndAccessibility();
}

// Subclassing -----------------------------------------------------------------------------------

void CWnd::TakeProcedure()
{
    if (m_previousProc != nullptr)
    {
        return; // an object before this one left ours in the chain
    }
    const auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::Procedure)));
    if (previous != &CWnd::Procedure)
    {
        m_previousProc = previous;
    }
}

void CWnd::BindTo(HWND window)
{
    if (!Attach(window))
    {
        return;
    }
    PreSubclassWindow();
    if (FromHandlePermanent(window) != this)
    {
        return; // the object was deleted, or let the window go
    }
    if (::IsWindow(window))
    {
        TakeProcedure();
    }
    else
    {
        Detach(); // its last message has not come here
    }
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!::IsWindow(window) || m_hWnd != nullptr || FromHandlePermanent(window) != nullptr)
    {
        return FALSE;
    }
    BindTo(window);
    return FromHandlePermanent(window) == this; // which may be gone
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    const HWND item = parent == nullptr ? nullptr : ::GetDlgItem(parent->m_hWnd, int(id));
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow()
{
    if (m_hWnd != nullptr && m_previousProc != nullptr &&
        reinterpret_cast<WNDPROC>(::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC)) == &CWnd::Procedure)
    {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_previousProc));
        m_previousProc = nullptr;
    }
    return Detach();
}

// Creation --------------------------------------------------------------------------------------

// Sees each window of the thread before its first message and binds the waiting object to it.
class CreationHook
{
public:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        ThreadState& state = CurrentThreadState();
        const auto window = reinterpret_cast<HWND>(wParam);
        // An input method's helper window may be made on the way to the one that is meant.
        if (code == HCBT_CREATEWND && state.creating != nullptr &&
            (state.creatingIn == nullptr ||
             state.creatingIn == reinterpret_cast<CBT_CREATEWND*>(lParam)->lpcs->hwndParent) &&
            (::GetClassLongPtr(window, GCL_STYLE) & CS_IME) == 0)
        {
            CWnd* const wnd = state.creating;
            state.creating = nullptr;
            wnd->BindTo(window);
        }
        return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
    }
};

void AfxHookWindowCreate(CWnd* wnd, HWND parent)
{
    ThreadState& state = CurrentThreadState();
    if (state.creationHook == nullptr)
    {
        state.creationHook =
            ::SetWindowsHookEx(WH_CBT, &CreationHook::Hook, nullptr, ::GetCurrentThreadId());
    }
    state.creating = wnd;
    state.creatingIn = parent;
}

BOOL AfxUnhookWindowCreate()
{
    ThreadState& state = CurrentThreadState();
    const BOOL bound = state.creating == nullptr;
    state.creating = nullptr;
    if (state.creationHook != nullptr)
    {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    return bound;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                    int width, int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    CREATESTRUCT cs = {param,       AfxGetInstanceHandle(),
                       idOrMenu,    parent,
                       height,      width,
                       y,           x,
                       LONG(style), windowName,
                       className,   exStyle};
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND window =
        ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, DWORD(cs.style), cs.x, cs.y,
                         cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    // A window that was bound and failed later has had its last message already.
    if (!AfxUnhookWindowCreate())
    {
        PostNcDestroy();
    }
    return window != nullptr;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style,
                    const RECT& rect, CWnd* parent, UINT id, LPVOID param)
{
    return CreateEx(exStyle, className, windowName, style, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top,
                    parent == nullptr ? nullptr : parent->m_hWnd,
                    reinterpret_cast<HMENU>(UINT_PTR(id)), param);
}

BOOL CWnd::Create(LPCSTR className, LPCSTR windowName, DWORD style, const RECT& rect, CWnd* parent,
                  UINT id, CCreateContext* context)
{
    return CreateEx(0, className, windowName, style | WS_CHILD, rect, parent, id, context);
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
    {
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    }
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    const framework::StillThere here(*this);
    const BOOL destroyed = window != nullptr && ::DestroyWindow(window);
    if (destroyed && here && m_hWnd == window)
    {
        Detach(); // only attached, so its last message did not come here
    }
    return destroyed;
}

// The window procedure --------------------------------------------------------------------------

namespace {

LRESULT ProcedureWithoutObject(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto& procedures = CurrentThreadState().leftProcedures;
    const auto left = procedures.find(window);
    if (left == procedures.end())
    {
        return ::DefWindowProc(window, message, wParam, lParam);
    }
    const WNDPROC previous = left->second;
    if (message == WM_NCDESTROY)
    {
        procedures.erase(left);
    }
    return ::CallWindowProc(previous, window, message, wParam, lParam);
}

} // namespace

LRESULT CALLBACK CWnd::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd* const wnd = FromHandlePermanent(window);
    if (wnd == nullptr)
    {
        return ProcedureWithoutObject(window, message, wParam, lParam);
    }
    // Sends nest, so the message that was in progress is put back when this one is done.
    MSG& current = CurrentThreadState().current;
    const MSG outer = current;
    const DWORD position = ::GetMessagePos();
    const MSG own = {window,
                     message,
                     wParam,
                     lParam,
                     DWORD(::GetMessageTime()),
                     {GET_X_LPARAM(position), GET_Y_LPARAM(position)}};
    current = own;
    const LRESULT result =
        framework::CallGuarded(own, [&] { return wnd->WindowProc(message, wParam, lParam); });
    current = outer;
    return result;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const framework::StillThere here(*this);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
    {
        return result;
    }
    // A handler that declines may have ended the object all the same.
    return here ? DefWindowProc(message, wParam, lParam) : 0;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_hWnd == nullptr)
    {
        return 0; // destroyed by a handler on the way here
    }
    return m_previousProc == nullptr
               ? ::DefWindowProc(m_hWnd, message, wParam, lParam)
               : ::CallWindowProc(m_previousProc, m_hWnd, message, wParam, lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    return &CurrentThreadState().current;
}

LRESULT CWnd::Default()
{
    const MSG current = CurrentThreadState().current;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

void CWnd::OnNcDestroy()
{
    const HWND window = m_hWnd;
    CWinThread* const thread = AfxGetThread();
    if (thread != nullptr && thread->m_pMainWnd == this)
    {
        thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    m_modalRunning = false;
    Default();
    UnsubclassWindow();
    CurrentThreadState().leftProcedures.erase(window); // nothing comes after this message
    PostNcDestroy();
}

// Modal loops -----------------------------------------------------------------------------------

namespace {

// While it lives, the thread is in one more modal loop.
class ModalLoopScope
{
public:
    explicit ModalLoopScope(HWND window) { CurrentThreadState().modalWindows.push_back(window); }
    ModalLoopScope(const ModalLoopScope&) = delete;
    ModalLoopScope& operator=(const ModalLoopScope&) = delete;
    ~ModalLoopScope() { CurrentThreadState().modalWindows.pop_back(); }
};

// Nothing waits for a modal window: its owner and the window are told, which may end it.
void TellIdle(HWND window, DWORD flags)
{
    const HWND own = ::GetWindow(window, GW_OWNER);
    const HWND owner = own != nullptr ? own : ::GetParent(window);
    if ((flags & MLF_NOIDLEMSG) == 0 && owner != nullptr)
    {
        ::SendMessage(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(window));
    }
    if ((flags & MLF_NOKICKIDLE) == 0 && ::IsWindow(window))
    {
        ::SendMessage(window, WM_KICKIDLE, 0, 0);
    }
}

} // namespace

int CWnd::RunModalLoop(DWORD flags)
{
    const ModalLoopScope loop(m_hWnd);
    CWinThread* const thread = AfxGetThread();
    bool toShow = (flags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible();
    m_modalRunning = true;
    m_modalResult = -1;
    bool idle = true;
    while (ContinueModal())
    {
        MSG waiting;
        if (idle && !::PeekMessage(&waiting, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (toShow)
            {
                toShow = false;
                ShowWindow(SW_SHOWNORMAL);
                UpdateWindow();
            }
            else
            {
                idle = false;
                TellIdle(m_hWnd, flags);
                framework::UpdateBarsOfFrames(true);
                framework::DeleteTemporaryObjects();
            }
            continue;
        }
        if (!AfxPumpMessage())
        {
            // For the loop outside, with its exit code.
            AfxPostQuitMessage(thread == nullptr ? 0 : int(thread->m_msgCur.wParam));
            m_modalRunning = false;
            return -1;
        }
        if (toShow && thread != nullptr && thread->m_msgCur.message == WM_TIMER &&
            m_hWnd != nullptr)
        {
            toShow = false; // a steady timer must not keep the window from showing
            ShowWindow(SW_SHOWNORMAL);
        }
        if (thread == nullptr || thread->IsIdleMessage(&thread->m_msgCur))
        {
            idle = true;
        }
    }
    m_modalRunning = false;
    return m_modalResult;
}

void CWnd::EndModalLoop(int result)
{
    m_modalResult = result;
    if (m_modalRunning)
    {
        m_modalRunning = false;
        PostMessage(WM_NULL); // wakes a loop that waits
    }
}
