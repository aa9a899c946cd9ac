#pragma once

#include "SupportExport.h"

#include <windows.h>

// A lock between the threads of one process. The thread that holds it may enter again and leaves
// as often as it entered.
class SUPPORT_API CritSect
{
public:
    CritSect();
    ~CritSect();
    CritSect(const CritSect&) = delete;
    CritSect& operator=(const CritSect&) = delete;

    void Enter();
    void Leave();

private:
    CRITICAL_SECTION m_section;
};

// Holds a CritSect for the length of a scope. The lock has to outlive it.
class CritSectLock
{
public:
    [[nodiscard]] explicit CritSectLock(CritSect& section)
        : m_section(section)
    {
        m_section.Enter();
    }
    ~CritSectLock() { m_section.Leave(); }
    CritSectLock(const CritSectLock&) = delete;
    CritSectLock& operator=(const CritSectLock&) = delete;

private:
    CritSect& m_section;
};
