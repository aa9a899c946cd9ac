// The library's module: an extension of the framework, so that its resources are found like the
// program's own.

#include <afxdllx.h>

namespace {

AFX_EXTENSION_MODULE s_library = {};

} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(s_library, module))
        {
            return FALSE;
        }
        new CDynLinkLibrary(s_library); // the framework's from here on
    }
    else if (reason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(s_library);
    }
    return TRUE;
}
