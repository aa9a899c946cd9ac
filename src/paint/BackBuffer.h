#pragma once

#include <afxwin.h>

// Paints an area without flicker: what is drawn goes into a memory bitmap of the area and reaches
// the target in one block copy when the buffer ends. Drawing uses the area's own coordinates, as on
// the target. The bitmap starts undefined and with a context's default font and colours, so the
// painter covers the whole area.
//
// An empty or negative area takes drawing and copies nothing. When memory runs out, drawing goes
// straight to the target.
//
// Buffers up to a screen in size share one context and bitmap, kept for the life of the thread,
// since making them takes longer than drawing a control. A buffer that begins while the shared ones
// are in use makes its own.
class BackBuffer
{
public:
    BackBuffer(CDC& target, const CRect& area);
    BackBuffer(const BackBuffer&) = delete;
    BackBuffer& operator=(const BackBuffer&) = delete;
    ~BackBuffer();

    // What to draw with. The target has to outlive the buffer.
    CDC& DC() { return m_direct ? m_target : m_memory; }
    operator CDC&() { return DC(); }

private:
    CDC& m_target;
    CRect m_area;
    CDC m_memory;
    CBitmap m_bitmap; // unless shared
    HGDIOBJ m_oldBitmap = nullptr;
    int m_savedState = 0;  // of the shared context, while it is borrowed
    bool m_direct = false; // no memory context or bitmap was to be had

    bool BorrowShared(LONGLONG width, LONGLONG height);
    void MakeOwn(LONGLONG width, LONGLONG height);
};
