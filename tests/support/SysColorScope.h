#pragma once

#include <afxwin.h>

// One of the system's colours changed, as the user does it, and put back.
class SysColorScope
{
public:
    SysColorScope(int index, COLORREF color)
        : m_index(index)
        , m_before(::GetSysColor(index))
    {
        ::SetSysColors(1, &m_index, &color);
    }
    SysColorScope(const SysColorScope&) = delete;
    SysColorScope& operator=(const SysColorScope&) = delete;
    ~SysColorScope() { ::SetSysColors(1, &m_index, &m_before); }

    COLORREF Before() const { return m_before; }

private:
    const int m_index;
    const COLORREF m_before;
};
