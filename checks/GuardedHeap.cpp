// The heap of the preset "heap", compiled into every module in place of the run-time library's:
// each block ends where its pages end, so that whoever reads or writes past it faults there and
// then, and a block that was given back has no pages any more. What no fault shows, a few bytes
// before a block or between its end and the next multiple of the alignment, is looked at when it is
// given back.

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <new>
#include <utility>

namespace {

constexpr size_t Page = 4096;
constexpr uintptr_t Granule = 0x10000; // the platform's, on which every reservation starts
constexpr size_t Alignment = 16;
constexpr size_t WatchedBefore = 48;
constexpr unsigned char Untouched = 0xA7; // bytes that are nobody's
constexpr unsigned char Fresh = 0xCD;     // bytes that nobody has set yet
constexpr uint64_t Mark = 0x6B636F6C42444721;

// At the start of the block's pages.
struct Head
{
    uint64_t mark;
    size_t size;
};

constexpr size_t RoundedUp(size_t value, size_t unit)
{
    return (value + unit - 1) / unit * unit;
}

constexpr size_t PagesFor(size_t size)
{
    return RoundedUp(sizeof(Head) + WatchedBefore + RoundedUp(size, Alignment), Page);
}

// Blocks given back lately, whose addresses are not given out again yet.
constexpr size_t LatelyFreed = 2048;
SRWLOCK freedLock = SRWLOCK_INIT;
void* freed[LatelyFreed];
size_t nextFreed = 0;

[[noreturn]] void Stop(const char* what, const void* block)
{
    std::fprintf(stderr, "guarded heap: %s, block %p\n", what, block);
    std::fflush(stderr);
    __builtin_trap();
}

bool AllUntouched(const unsigned char* from, const unsigned char* to)
{
    return std::all_of(from, to, [](unsigned char byte) { return byte == Untouched; });
}

void* Allocate(size_t size)
{
    const size_t bytes = PagesFor(size);
    // What is left of the last granule is nobody's. A whole one is followed by a page more, which
    // is never filled.
    const size_t reserved = bytes % Granule == 0 ? bytes + Page : bytes;
    void* const pages =
        size > reserved ? nullptr : ::VirtualAlloc(nullptr, reserved, MEM_RESERVE, PAGE_NOACCESS);
    if (pages == nullptr || ::VirtualAlloc(pages, bytes, MEM_COMMIT, PAGE_READWRITE) == nullptr)
    {
        Stop("no memory", pages);
    }
    auto* const start = static_cast<unsigned char*>(pages);
    auto* const block = start + bytes - RoundedUp(size, Alignment);
    *static_cast<Head*>(pages) = {Mark, size};
    std::fill(block - WatchedBefore, block, Untouched);
    std::fill_n(block, size, Fresh);
    std::fill(block + size, start + bytes, Untouched);
    return block;
}

void Free(void* pointer)
{
    if (pointer == nullptr)
    {
        return;
    }
    // The block begins in the first two pages, so in the first granule.
    auto* const block = static_cast<unsigned char*>(pointer);
    auto* const start = block - reinterpret_cast<uintptr_t>(block) % Granule;
    const Head head = *reinterpret_cast<Head*>(start); // faults for a block freed before
    const size_t bytes = PagesFor(head.size);
    if (head.mark != Mark || start + bytes - RoundedUp(head.size, Alignment) != block)
    {
        Stop("not a block's start", block);
    }
    if (!AllUntouched(block - WatchedBefore, block))
    {
        Stop("written before its start", block);
    }
    if (!AllUntouched(block + head.size, start + bytes))
    {
        Stop("written past its end", block);
    }
    ::VirtualFree(start, bytes, MEM_DECOMMIT);
    ::AcquireSRWLockExclusive(&freedLock);
    void* const oldest = std::exchange(freed[nextFreed], start);
    nextFreed = (nextFreed + 1) % LatelyFreed;
    ::ReleaseSRWLockExclusive(&freedLock);
    if (oldest != nullptr)
    {
        ::VirtualFree(oldest, 0, MEM_RELEASE);
    }
}

} // namespace

// The other forms come down to these.
void* operator new(size_t size)
{
    return Allocate(size);
}

void operator delete(void* block) noexcept
{
    Free(block);
}

void operator delete(void* block, size_t) noexcept
{
    Free(block);
}
