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
