#pragma once

#include <afxwin.h>

#include <memory>

// A back buffer whose memory stays from one paint to the next, for windows that paint small strips
// many times over: making the bitmap would cost more than painting it. Whoever paints holds the
// shared pointer meanwhile, so that the buffer outlives a window that ends in the middle.
class KeptBuffer
{
public:
    KeptBuffer() = default;
    KeptBuffer(const KeptBuffer&) = delete;
    KeptBuffer& operator=(const KeptBuffer&) = delete;

    // Calls paint with a context for the area, in the target's coordinates, and copies the area to
    // the target in one block. Without memory, and in a paint within a paint, paint gets the target
    // itself. Nothing for an empty area.
    template <class Painter>
    static void Paint(std::shared_ptr<KeptBuffer> buffer, CDC& target, const CRect& area,
                      Painter paint)
    {
        if (area.IsRectEmpty())
        {
            return;
        }
        if (buffer == nullptr || !buffer->Begin(target, area))
        {
            paint(target);
            return;
        }
        paint(buffer->m_memory);
        buffer->End(target, area);
    }

private:
    CBitmap m_bitmap; // outlives the context that it is selected into
    CDC m_memory;
    CSize m_size;
    bool m_painting = false;

    bool Begin(CDC& target, const CRect& area);
    void End(CDC& target, const CRect& area);
};
