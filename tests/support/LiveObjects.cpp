#include "support/LiveObjects.h"

#include <algorithm>
#include <intrin.h>
#include <iterator>

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

// A heap that checks what is freed keeps the last 1,024 blocks for that and counts them as taken:
// makes those that it keeps ours, all alike.
void FillFreed(HANDLE heap)
{
    for (int block = 0; block < 1100; ++block)
    {
        ::HeapFree(heap, 0, ::HeapAlloc(heap, 0, 16));
    }
}

// The platform's; the run-time library may have one of its own.
std::vector<HANDLE> Heaps()
{
    std::vector<HANDLE> heaps(::GetProcessHeaps(0, nullptr));
    const DWORD count = ::GetProcessHeaps(DWORD(heaps.size()), heaps.data());
    heaps.resize(std::min<size_t>(count, heaps.size()));
    return heaps;
}

} // namespace

int GraphicsObjects()
{
    const int counted = int(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS));
    return counted != 0 ? counted
                        : int(std::count_if(Table(), Table() + TableSize,
                                            [](const HandleEntry& e) { return e.type != 0; }));
}

std::vector<HWND> TopLevelWindows()
{
    std::vector<HWND> windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), &Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<HWND> AllWindows()
{
    std::vector<HWND> windows = TopLevelWindows();
    for (const HWND window : TopLevelWindows())
    {
        ::EnumChildWindows(window, &Collect, reinterpret_cast<LPARAM>(&windows));
    }
    for (HWND window = nullptr;
         (window = ::FindWindowEx(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
    {
        if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
        {
            windows.push_back(window);
        }
    }
    return windows;
}

size_t AllocatedBytes()
{
    size_t bytes = 0;
    for (const HANDLE heap : Heaps())
    {
        FillFreed(heap);
        ::HeapLock(heap);
        PROCESS_HEAP_ENTRY entry = {};
        while (::HeapWalk(heap, &entry))
        {
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        }
        ::HeapUnlock(heap);
    }
    return bytes;
}

bool HeapsAreWhole()
{
    return std::ranges::all_of(Heaps(),
                               [](HANDLE heap) { return ::HeapValidate(heap, 0, nullptr); });
}
