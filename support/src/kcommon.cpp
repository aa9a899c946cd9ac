#include "kcommon.h"

CritSect::CritSect()
{
    ::InitializeCriticalSection(&m_section);
}

CritSect::~CritSect()
{
    ::DeleteCriticalSection(&m_section);
}

void CritSect::Enter()
{
    ::EnterCriticalSection(&m_section);
}

void CritSect::Leave()
{
    ::LeaveCriticalSection(&m_section);
}
