#include "framework/App.h"

#include "GdiMaps.h"
#include "Guarded.h"
#include "Idle.h"
#include "ThreadState.h"
#include "framework/Frame.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

using framework::CurrentThreadState;

// The thread ------------------------------------------------------------------------------------

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::~CWinThread()
{
    if (CurrentThreadState().thread == this)
    {
        CurrentThreadState().thread = nullptr;
    }
}

int CWinThread::Run()
{
    LONG idleRounds = 0;
    bool idle = true;
    for (;;)
    {
        MSG waiting;
        while (idle && !::PeekMessage(&waiting, nullptr, 0, 0, PM_NOREMOVE))
        {
            idle = OnIdle(idleRounds++);
        }
        if (!PumpMessage())
        {
            return ExitInstance();
        }
        if (IsIdleMessage(&m_msgCur))
        {
            idle = true;
            idleRounds = 0;
        }
    }
}

BOOL CWinThread::PumpMessage()
{
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0)
    {
        return FALSE;
    }
    // A handler may pump in turn, which overwrites m_msgCur.
    MSG message = m_msgCur;
    const MSG own = message;
    BOOL done = TRUE; // also when that throws
    framework::CallGuarded(own, [&] { return done = PreTranslateMessage(&message); });
    if (!done)
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    const HWND main = m_pMainWnd == nullptr ? nullptr : m_pMainWnd->m_hWnd;
    return message->hwnd != nullptr && CWnd::WalkPreTranslateTree(main, message);
}

namespace {

BOOL CALLBACK Collect(HWND window, LPARAM windows)
{
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

} // namespace

namespace framework {

// Who answers a bar may end any of them.
void UpdateBarsOfFrames(bool onlyEnabled)
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&windows));
    for (const HWND window : windows)
    {
        auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(window));
        if (frame != nullptr && (!onlyEnabled || frame->IsWindowEnabled()))
        {
            frame->UpdateBars();
        }
    }
}

void DeleteTemporaryObjects()
{
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    DeleteTemporaryGdiObjects();
}

} // namespace framework

BOOL CWinThread::OnIdle(LONG count)
{
    if (count == 0)
    {
        framework::UpdateBarsOfFrames(false);
    }
    framework::DeleteTemporaryObjects();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* message)
{
    constexpr UINT caretBlink = 0x0118; // the platform's timer for carets
    if (message->message == WM_PAINT || message->message == caretBlink)
    {
        return FALSE;
    }
    if (message->message != WM_MOUSEMOVE && message->message != WM_NCMOUSEMOVE)
    {
        return TRUE;
    }
    // A pointer at rest gives the idle work nothing new to do.
    const bool moved = message->message != m_lastMove || message->pt.x != m_lastMovePoint.x ||
                       message->pt.y != m_lastMovePoint.y;
    m_lastMove = message->message;
    m_lastMovePoint = message->pt;
    return moved;
}

CWinThread* AfxGetThread()
{
    CWinThread* const own = CurrentThreadState().thread;
    return own;
}

// The application -------------------------------------------------------------------------------

namespace {

struct ModuleState
{
    CWinApp* app = nullptr;
    HINSTANCE resources = nullptr;
    std::vector<const CDynLinkLibrary*> extensions;
    std::set<std::string> windowClasses;
    CString exeName;
};

ModuleState& State()
{
    static ModuleState* const state = new ModuleState; // outlives every static application object
    return *state;
}

} // namespace

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

CWinApp::CWinApp(LPCSTR appName)
    : m_pszAppName(appName)
{
    State().app = this;
    CurrentThreadState().thread = this;
    m_hInstance = ::GetModuleHandle(nullptr);
}

CWinApp::~CWinApp()
{
    if (State().app == this)
    {
        State().app = nullptr;
    }
}

int CWinApp::Run()
{
    // Without a window nothing would ever end the loop.
    if (m_pMainWnd == nullptr)
    {
        AfxPostQuitMessage(0);
    }
    return CWinThread::Run();
}

HICON CWinApp::LoadIcon(LPCSTR name) const
{
    return ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
}

HCURSOR CWinApp::LoadCursor(LPCSTR name) const
{
    return ::LoadCursor(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

int CWinApp::DoMessageBox(LPCSTR text, UINT type, UINT)
{
    const CWnd* main = AfxGetMainWnd();
    const HWND owner = ::GetActiveWindow() != nullptr ? ::GetActiveWindow()
                       : main == nullptr              ? nullptr
                                                      : main->GetSafeHwnd();
    return ::MessageBox(owner, text, AfxGetAppName(), type);
}

CWinApp* AfxGetApp()
{
    return State().app;
}

CWnd* AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread == nullptr ? nullptr : thread->GetMainWnd();
}

LPCSTR AfxGetAppName()
{
    const CWinApp* app = AfxGetApp();
    return app == nullptr || app->m_pszAppName == nullptr ? "" : app->m_pszAppName;
}

HINSTANCE AfxGetInstanceHandle()
{
    return ::GetModuleHandle(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    return State().resources != nullptr ? State().resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE module)
{
    State().resources = module;
}

namespace {

// Where resources are looked for, in order.
std::vector<HINSTANCE> ResourceModules()
{
    std::vector<HINSTANCE> modules = {AfxGetResourceHandle(), AfxGetInstanceHandle()};
    for (const CDynLinkLibrary* extension : State().extensions)
    {
        modules.push_back(extension->m_hResource);
    }
    return modules;
}

} // namespace

HINSTANCE AfxFindResourceHandle(LPCSTR name, LPCSTR type)
{
    for (const HINSTANCE module : ResourceModules())
    {
        if (::FindResource(module, name, type) != nullptr)
        {
            return module;
        }
    }
    return AfxGetResourceHandle();
}

// Sixteen strings share one resource, so a module may have that and not the string.
BOOL CString::LoadString(UINT id)
{
    for (const HINSTANCE module : ResourceModules())
    {
        if (LoadString(module, id))
        {
            return TRUE;
        }
    }
    return FALSE;
}

namespace {

// Of the program's file, without folder and extension.
CString ExeName()
{
    char path[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    CString name(path);
    name = name.Mid(name.ReverseFind('\\') + 1);
    const int extension = name.ReverseFind('.');
    return extension > 0 ? name.Left(extension) : name;
}

} // namespace

BOOL AfxWinInit(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int showCommand)
{
    if (CWinApp* app = AfxGetApp())
    {
        app->m_hInstance = instance;
        app->m_lpCmdLine = commandLine;
        app->m_nCmdShow = showCommand;
        State().exeName = ExeName();
        app->m_pszExeName = State().exeName;
        app->m_pszAppName = app->m_pszAppName == nullptr ? app->m_pszExeName : app->m_pszAppName;
    }
    const INITCOMMONCONTROLSEX classes = {
        sizeof(classes), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    return TRUE;
}

int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand)
{
    CWinApp* const app = AfxGetApp();
    if (app == nullptr || !AfxWinInit(instance, previous, commandLine, showCommand) ||
        !app->InitApplication())
    {
        return -1;
    }
    if (!app->InitInstance())
    {
        if (app->m_pMainWnd != nullptr)
        {
            app->m_pMainWnd->DestroyWindow();
        }
        // The last message of a modal dialog is not the application's exit code.
        if (app->m_msgCur.message != WM_QUIT)
        {
            app->m_msgCur = {};
        }
        return app->ExitInstance();
    }
    return app->Run();
}

// Window classes --------------------------------------------------------------------------------

BOOL AfxRegisterClass(WNDCLASS* windowClass)
{
    WNDCLASS existing = {};
    return ::GetClassInfo(windowClass->hInstance, windowClass->lpszClassName, &existing) ||
           ::RegisterClass(windowClass) != 0;
}

LPCSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    CString name;
    name.Format("Framework:%x:%p:%p:%p", style, static_cast<void*>(cursor),
                static_cast<void*>(background), static_cast<void*>(icon));
    // The name is handed out, so it is kept for the life of the process.
    const char* const kept = State().windowClasses.insert(LPCSTR(name)).first->c_str();
    WNDCLASS windowClass = {};
    windowClass.style = style;
    windowClass.lpfnWndProc = &::DefWindowProc;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hIcon = icon;
    windowClass.hCursor = cursor;
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = kept;
    return AfxRegisterClass(&windowClass) ? kept : nullptr;
}

// Small services --------------------------------------------------------------------------------

int AfxMessageBox(LPCSTR text, UINT type, UINT helpId)
{
    CWinApp* const app = AfxGetApp();
    return app != nullptr ? app->DoMessageBox(text, type, helpId)
                          : ::MessageBox(::GetActiveWindow(), text, AfxGetAppName(), type);
}

int AfxMessageBox(UINT id, UINT type, UINT helpId)
{
    CString text;
    text.LoadString(id);
    return AfxMessageBox(text, type, helpId);
}

void AfxFormatString1(CString& text, UINT id, LPCSTR first)
{
    CString replaced; // what it is replaced by may be the text itself
    replaced.LoadString(id);
    replaced.Replace("%1", first);
    text = replaced;
}

void AfxFormatString2(CString& text, UINT id, LPCSTR first, LPCSTR second)
{
    CString pattern;
    pattern.LoadString(id);
    CString made;
    for (const char* at = pattern; *at != '\0'; ++at)
    {
        const bool replaced = at[0] == '%' && (at[1] == '1' || at[1] == '2');
        at += replaced ? 1 : 0;
        made += replaced ? CString(*at == '1' ? first : second) : CString(*at);
    }
    text = made;
}

void AfxPostQuitMessage(int exitCode)
{
    ::PostQuitMessage(exitCode);
}

BOOL AfxPumpMessage()
{
    if (CWinThread* thread = AfxGetThread())
    {
        return thread->PumpMessage();
    }
    MSG message;
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
    {
        return FALSE;
    }
    if (!CWnd::WalkPreTranslateTree(nullptr, &message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    state.bInitialized = TRUE;
    state.hModule = module;
    state.hResource = module;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL)
{
    // The module made them, the framework ends them.
    const auto extensions = State().extensions;
    for (const CDynLinkLibrary* extension : extensions)
    {
        if (extension->m_hResource == state.hResource)
        {
            delete extension;
        }
    }
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL)
    : m_hResource(state.hResource)
{
    State().extensions.push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    auto& extensions = State().extensions;
    extensions.erase(std::remove(extensions.begin(), extensions.end(), this), extensions.end());
}
