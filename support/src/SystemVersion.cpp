#include "GMSUtil.h"

#include <windows.h>

bool IsVistaOrHigher()
{
    // The kernel library's own query: unlike GetVersionEx it is not bent by compatibility settings
    // or by what the manifest leaves out. It has no import declaration in the plain headers.
    using VersionQuery = LONG(WINAPI*)(OSVERSIONINFOW*);
    const HMODULE kernel = ::GetModuleHandleA("ntdll.dll");
    if (kernel == nullptr)
    {
        return false;
    }
    const auto query = reinterpret_cast<VersionQuery>(
        reinterpret_cast<void*>(::GetProcAddress(kernel, "RtlGetVersion")));
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    constexpr DWORD VISTA_MAJOR = 6;
    return query != nullptr && query(&version) == 0 && version.dwMajorVersion >= VISTA_MAJOR;
}
