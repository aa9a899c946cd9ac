#include "paint/BackBuffer.h"

#include <climits>

BackBuffer::BackBuffer(CDC& target, const CRect& area)
    : m_target(target)
    , m_area(area)
{
    // In 64 bits: the sides of a wild rectangle may lie further apart than an int reaches.
    const LONGLONG width = LONGLONG{m_area.right} - m_area.left;
    const LONGLONG height = LONGLONG{m_area.bottom} - m_area.top;
    if (!m_memory.CreateCompatibleDC(&target))
    {
        m_direct = true;
        return;
    }
    if (width <= 0 || height <= 0)
    {
        return; // the context's own single pixel takes whatever is drawn
    }
    if (width > INT_MAX || height > INT_MAX ||
        !m_bitmap.CreateCompatibleBitmap(&target, static_cast<int>(width),
                                         static_cast<int>(height)))
    {
        m_direct = true;
        return;
    }
    m_oldBitmap = ::SelectObject(m_memory.GetSafeHdc(), m_bitmap.GetSafeHandle());
    m_memory.SetViewportOrg(-m_area.left, -m_area.top);
}

BackBuffer::~BackBuffer()
{
    if (m_oldBitmap == nullptr)
    {
        return;
    }
    m_target.BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), &m_memory,
                    m_area.left, m_area.top, SRCCOPY);
    ::SelectObject(m_memory.GetSafeHdc(), m_oldBitmap);
}
