#pragma once

#include <afxwin.h>

// Paints an area without flicker: what is drawn goes into a memory bitmap of the area and reaches
// the target in one block copy when the buffer ends. Drawing uses the area's own coordinates, as on
// the target. The bitmap starts undefined and with a context's default font and colours, so the
// painter covers the whole area.
//
// An empty or negative area takes drawing and copies nothing. When memory runs out, drawing goes
// straight to the target.
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
    CBitmap m_bitmap;
    HGDIOBJ m_oldBitmap = nullptr;
    bool m_direct = false; // no memory context or bitmap was to be had
};
