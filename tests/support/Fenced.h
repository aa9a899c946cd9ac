#pragma once

#include <afxwin.h>

// An object whose memory cannot be touched any more once it is deleted: a test that does faults.
template <class Base> struct Fenced : Base
{
    using Base::Base;

    static void* operator new(size_t size)
    {
        return ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    }
    static void operator delete(void* memory) { ::VirtualFree(memory, 0, MEM_RELEASE); }
};

// Counts the faults of memory access during its life: the platform passes over those that happen
// while it delivers a message.
class AccessFaults
{
public:
    AccessFaults() { s_count = 0; }
    AccessFaults(const AccessFaults&) = delete;
    AccessFaults& operator=(const AccessFaults&) = delete;
    ~AccessFaults() { ::RemoveVectoredExceptionHandler(m_handler); }

    int Count() const { return s_count; }

private:
    static LONG CALLBACK See(EXCEPTION_POINTERS* exception)
    {
        s_count += exception->ExceptionRecord->ExceptionCode == DWORD(EXCEPTION_ACCESS_VIOLATION);
        return EXCEPTION_CONTINUE_SEARCH;
    }

    static inline int s_count = 0;
    void* m_handler = ::AddVectoredExceptionHandler(1, &See);
};
