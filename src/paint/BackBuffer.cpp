#include "paint/BackBuffer.h"

#include <algorithm>
#include <climits>

namespace {

// Larger buffers are rare and not worth their memory between two paints.
constexpr LONGLONG LargestKeptPixels = 4096 * 2304;
// The kept bitmap grows in steps, so that controls of similar sizes do not each make it anew.
constexpr LONGLONG GrowthStep = 128;

struct SharedBuffer
{
    HDC context;
    HBITMAP bitmap;
    LONGLONG width, height;
    bool lent;
};

// Never freed: a thread that paints controls lives as long as the process.
thread_local SharedBuffer t_shared;

bool IsOnDisplay(CDC& dc)
{
    return ::GetObjectType(dc.GetSafeHdc()) == OBJ_DC &&
           dc.GetDeviceCaps(TECHNOLOGY) == DT_RASDISPLAY;
}

// Has the shared bitmap hold that much. It has a format of its own, 32 bits a pixel, so that a
// change of the display's needs no notice: asking for the display's format at every paint would
// take longer than the copy.
bool MakeShared(LONGLONG width, LONGLONG height)
{
    SharedBuffer& shared = t_shared;
    if (width <= shared.width && height <= shared.height)
    {
        return true;
    }
    if (shared.context == nullptr)
    {
        shared.context = ::CreateCompatibleDC(nullptr);
    }
    const auto stepped = [](LONGLONG size) {
        return (size + GrowthStep - 1) / GrowthStep * GrowthStep;
    };
    width = stepped(std::max(width, shared.width));
    height = stepped(std::max(height, shared.height));
    if (shared.context == nullptr || width * height > LargestKeptPixels)
    {
        return false;
    }
    BITMAPINFO format{};
    format.bmiHeader = {
        sizeof(BITMAPINFOHEADER), LONG(width), LONG(-height), 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap =
        ::CreateDIBSection(shared.context, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap == nullptr)
    {
        return false;
    }
    ::SelectObject(shared.context, bitmap);
    if (shared.bitmap != nullptr)
    {
        ::DeleteObject(shared.bitmap);
    }
    shared.bitmap = bitmap;
    shared.width = width;
    shared.height = height;
    return true;
}

} // namespace

BackBuffer::BackBuffer(CDC& target, const CRect& area)
    : m_target(target)
    , m_area(area)
{
    // In 64 bits: the sides of a wild rectangle may lie further apart than an int reaches.
    const LONGLONG width = LONGLONG{m_area.right} - m_area.left;
    const LONGLONG height = LONGLONG{m_area.bottom} - m_area.top;
    if (!BorrowShared(width, height))
    {
        MakeOwn(width, height);
    }
}

bool BackBuffer::BorrowShared(LONGLONG width, LONGLONG height)
{
    if (width <= 0 || height <= 0 || width > INT_MAX || height > INT_MAX ||
        width * height > LargestKeptPixels || t_shared.lent || !IsOnDisplay(m_target) ||
        !MakeShared(width, height))
    {
        return false;
    }
    m_savedState = ::SaveDC(t_shared.context);
    if (m_savedState == 0)
    {
        return false;
    }
    t_shared.lent = true;
    m_memory.Attach(t_shared.context);
    m_memory.SetViewportOrg(-m_area.left, -m_area.top);
    // The bitmap is as large as the largest area so far: painters that ask what is to be drawn are
    // to see the area alone.
    m_memory.IntersectClipRect(m_area);
    return true;
}

void BackBuffer::MakeOwn(LONGLONG width, LONGLONG height)
{
    if (!m_memory.CreateCompatibleDC(&m_target))
    {
        m_direct = true;
        return;
    }
    if (width <= 0 || height <= 0)
    {
        return; // the context's own single pixel takes whatever is drawn
    }
    if (width > INT_MAX || height > INT_MAX ||
        !m_bitmap.CreateCompatibleBitmap(&m_target, static_cast<int>(width),
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
    const bool borrowed = m_savedState != 0;
    if (borrowed || m_oldBitmap != nullptr)
    {
        m_target.BitBlt(m_area.left, m_area.top, m_area.Width(), m_area.Height(), &m_memory,
                        m_area.left, m_area.top, SRCCOPY);
    }
    if (borrowed)
    {
        ::RestoreDC(m_memory.Detach(), m_savedState);
        t_shared.lent = false;
    }
    else if (m_oldBitmap != nullptr)
    {
        ::SelectObject(m_memory.GetSafeHdc(), m_oldBitmap);
    }
}
