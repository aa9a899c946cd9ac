#include "paint/KeptBuffer.h"

#include <algorithm>

bool KeptBuffer::Begin(CDC& target, const CRect& area)
{
    if (m_painting)
    {
        return false;
    }
    if (area.Width() > m_size.cx || area.Height() > m_size.cy)
    {
        const CSize size(std::max<int>(m_size.cx, area.Width()),
                         std::max<int>(m_size.cy, area.Height()));
        m_memory.DeleteDC();
        m_bitmap.DeleteObject();
        m_size = CSize(0, 0);
        if (!m_memory.CreateCompatibleDC(&target) ||
            !m_bitmap.CreateCompatibleBitmap(&target, size.cx, size.cy))
        {
            return false;
        }
        ::SelectObject(m_memory.GetSafeHdc(), m_bitmap.GetSafeHandle());
        m_size = size;
    }
    m_painting = true;
    m_memory.SetViewportOrg(-area.left, -area.top);
    m_memory.SelectClipRgn(nullptr);
    m_memory.IntersectClipRect(area);
    return true;
}

void KeptBuffer::End(CDC& target, const CRect& area)
{
    m_painting = false;
    target.BitBlt(area.left, area.top, area.Width(), area.Height(), &m_memory, area.left, area.top,
                  SRCCOPY);
}
