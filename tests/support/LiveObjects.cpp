#include "support/LiveObjects.h"

#include <intrin.h>

namespace {

// One entry of the process's own table of graphics handles.
struct HandleEntry
{
    UINT64 object;
    UINT32 owner;
    UINT16 unique; // the handle's high word; the low one is the place in the table
    UINT8 type;    // 0: free
    UINT8 flags;
    UINT64 user;
};
static_assert(sizeof(HandleEntry) == 24);

constexpr int TableSize = 0x4000;
constexpr unsigned ProcessBlock = 0x60;    // in the thread's block
constexpr size_t HandleTableOffset = 0xF8; // in the process's block

// GetGuiResources answers nothing here, so the table itself is read.
const HandleEntry* Table()
{
    const auto process = reinterpret_cast<const char*>(__readgsqword(ProcessBlock));
    return *reinterpret_cast<const HandleEntry* const*>(process + HandleTableOffset);
}

UINT KindOf(const HandleEntry& entry, int index)
{
    const auto handle = (UINT_PTR(entry.unique) << 16) | UINT_PTR(index);
    switch (const DWORD kind = ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)))
    {
    case OBJ_MEMDC:
        return OBJ_DC;
    case OBJ_EXTPEN:
        return OBJ_PEN;
    default:
        return kind;
    }
}

BOOL CALLBACK Collect(HWND window, LPARAM list)
{
    char name[64] = "";
    ::GetClassName(window, name, sizeof(name));
    if (::lstrcmpi(name, "IME") != 0 && ::lstrcmpi(name, "MSCTFIME UI") != 0)
    {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

} // namespace

std::map<UINT, int> GraphicsObjectsByKind()
{
    std::map<UINT, int> counts;
    const HandleEntry* const table = Table();
    for (int index = 0; index < TableSize; ++index)
    {
        if (table[index].type != 0)
        {
            ++counts[KindOf(table[index], index)];
        }
    }
    return counts;
}

int GraphicsObjects()
{
    int total = int(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
    if (total == 0)
    {
        for (const auto& [kind, count] : GraphicsObjectsByKind())
        {
            total += count;
        }
    }
    return total;
}

std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

int WindowsOfThread()
{
    const std::vector<HWND> top = TopLevelWindows();
    std::vector<HWND> children;
    for (const HWND window : top)
    {
        ::EnumChildWindows(window, &Collect, reinterpret_cast<LPARAM>(&children));
    }
    return int(top.size() + children.size());
}
