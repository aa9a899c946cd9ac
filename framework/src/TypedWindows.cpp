#include "TypedWindows.h"

#include "HandleMap.h"

namespace framework {
namespace {

using ClassMaps = std::unordered_map<const CRuntimeClass*, HandleMap<HWND, CWnd>>;

// Never freed, like the rest of what a thread knows of its windows.
ClassMaps& ThreadMaps()
{
    static thread_local ClassMaps* maps = nullptr;
    if (maps == nullptr)
    {
        maps = new ClassMaps;
    }
    return *maps;
}

} // namespace

CWnd* TypedWindow(HWND window, const CRuntimeClass* wanted, std::unique_ptr<CWnd> (*make)())
{
    if (CWnd* permanent = CWnd::FromHandlePermanent(window);
        permanent != nullptr && permanent->IsKindOf(wanted))
    {
        return permanent;
    }
    CWnd* temporary = ThreadMaps()[wanted].Find(window, [make](HWND) { return make(); });
    if (temporary != nullptr)
    {
        temporary->m_hWnd = window; // also when somebody detached it
    }
    return temporary;
}

void DeleteTemporaryTypedWindows()
{
    for (auto& map : ThreadMaps())
    {
        map.second.DeleteTemporaries([](CWnd& window) { window.m_hWnd = nullptr; });
    }
}

} // namespace framework
