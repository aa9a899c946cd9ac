#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

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

// During its life a fault of memory access fails the test: the platform passes over those that
// happen while it delivers a message.
class AccessFaults
{
public:
    AccessFaults() = default;
    AccessFaults(const AccessFaults&) = delete;
    AccessFaults& operator=(const AccessFaults&) = delete;
    ~AccessFaults() { ::RemoveVectoredExceptionHandler(m_handler); }

private:
    static LONG CALLBACK See(EXCEPTION_POINTERS* exception)
    {
        if (exception->ExceptionRecord->ExceptionCode == DWORD(EXCEPTION_ACCESS_VIOLATION))
        {
            ADD_FAILURE() << "memory was touched that is not there";
        }
        return EXCEPTION_CONTINUE_SEARCH;
    }

    void* m_handler = ::AddVectoredExceptionHandler(1, &See);
};
