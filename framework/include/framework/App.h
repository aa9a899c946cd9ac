#pragma once

#include "framework/Thread.h"

// The application: one object, made before main.
class FRAMEWORK_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCSTR appName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCSTR m_pszAppName = nullptr; // as given, else the program's file name; set by AfxWinInit
    LPCSTR m_pszExeName = nullptr; // the program's file, without folder and extension

    virtual BOOL InitApplication() { return TRUE; }
    int Run() override;
    // Tells the user as well, unless he knows (CUserException).
    LRESULT ProcessWndProcException(CException* thrown, const MSG* message) override;

    HICON LoadIcon(LPCSTR name) const;
    HICON LoadIcon(UINT id) const { return LoadIcon(MAKEINTRESOURCE(id)); }
    HICON LoadStandardIcon(LPCSTR name) const { return ::LoadIcon(nullptr, name); }
    HCURSOR LoadCursor(LPCSTR name) const;
    HCURSOR LoadCursor(UINT id) const { return LoadCursor(MAKEINTRESOURCE(id)); }
    HCURSOR LoadStandardCursor(LPCSTR name) const { return ::LoadCursor(nullptr, name); }

    // What AfxMessageBox shows; an override shows something else.
    virtual int DoMessageBox(LPCSTR text, UINT type, UINT helpId);

    // The application's settings: in the system's registry, under the user's key of this company
    // and the application, or, as long as no company is named, in a file of the application's name
    // in the system's folder. A null value or entry takes out what is there.
    void SetRegistryKey(LPCSTR company) { m_company = company; }
    void SetRegistryKey(UINT id) { m_company.LoadString(id); }
    UINT GetProfileInt(LPCSTR section, LPCSTR entry, int fallback);
    CString GetProfileString(LPCSTR section, LPCSTR entry, LPCSTR fallback = nullptr);
    BOOL WriteProfileInt(LPCSTR section, LPCSTR entry, int value);
    BOOL WriteProfileString(LPCSTR section, LPCSTR entry, LPCSTR value);

private:
    CString m_company;

    CString RegistrySection(LPCSTR section) const;
    CString SettingsFile() const;
};

FRAMEWORK_API CWinApp* AfxGetApp();
FRAMEWORK_API CWinThread* AfxGetThread();
FRAMEWORK_API CWnd* AfxGetMainWnd();
FRAMEWORK_API LPCSTR AfxGetAppName();

// The program's module, and the module that resources are read from first.
FRAMEWORK_API HINSTANCE AfxGetInstanceHandle();
FRAMEWORK_API HINSTANCE AfxGetResourceHandle();
FRAMEWORK_API void AfxSetResourceHandle(HINSTANCE module);
// The module that has the resource: the resource handle's, else the program's, else a registered
// extension's.
FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCSTR name, LPCSTR type);

// Sets up the framework for a program; a windowed one is set up by the framework's own entry.
FRAMEWORK_API BOOL AfxWinInit(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine,
                              int showCommand);
// The whole life of a windowed program: set up, InitInstance, Run.
FRAMEWORK_API int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine,
                             int showCommand);

// Name of a window class with these attributes, registered on first use; it lives with the module.
FRAMEWORK_API LPCSTR AfxRegisterWndClass(UINT style, HCURSOR cursor = nullptr,
                                         HBRUSH background = nullptr, HICON icon = nullptr);
// Registers a class once; TRUE also when it exists already.
FRAMEWORK_API BOOL AfxRegisterClass(WNDCLASS* windowClass);

FRAMEWORK_API int AfxMessageBox(LPCSTR text, UINT type = MB_OK, UINT helpId = 0);
FRAMEWORK_API int AfxMessageBox(UINT id, UINT type = MB_OK, UINT helpId = 0);
// The string resource with its %1 (and %2) replaced.
FRAMEWORK_API void AfxFormatString1(CString& text, UINT id, LPCSTR first);
FRAMEWORK_API void AfxFormatString2(CString& text, UINT id, LPCSTR first, LPCSTR second);
FRAMEWORK_API void AfxPostQuitMessage(int exitCode);
FRAMEWORK_API BOOL AfxPumpMessage();

// State of an extension module's resources (see CDynLinkLibrary).
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};
FRAMEWORK_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
FRAMEWORK_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL all = FALSE);

// Adds an extension module to those whose resources are searched. Made with new when the module is
// loaded; AfxTermExtensionModule deletes it.
class FRAMEWORK_API CDynLinkLibrary
{
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL system = FALSE);
    virtual ~CDynLinkLibrary();
    HMODULE m_hResource = nullptr;
};
