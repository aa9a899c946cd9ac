#pragma once

// What the gallery paints itself, in the look of the current display mode: the system's colours in
// the standard mode, dark in the others. Fonts and brushes are made once and kept.

#include <afxwin.h>

namespace look {

// Whether the dark, large look applies.
bool Dark();

// What is so many pixels at 96 dots per inch, on this screen.
int Scaled(int pixels);
CRect Scaled(const CRect& rect);

COLORREF Ground();
COLORREF Text();

// The background of what lies on the ground, for answering a colour message. Valid until the next
// change of the system's colours, so never to be kept.
HBRUSH GroundBrush();

// Faces and edges of the dark look.
constexpr COLORREF DarkOutline = RGB(70, 70, 70);
constexpr COLORREF DarkFaceTop = RGB(86, 86, 86);
constexpr COLORREF DarkFaceBottom = RGB(58, 58, 58);
constexpr COLORREF DarkPressed = RGB(32, 32, 32);
constexpr COLORREF DarkActiveTop = RGB(62, 100, 138);
constexpr COLORREF DarkActiveBottom = RGB(44, 70, 96);
constexpr COLORREF DarkActiveEdge = RGB(120, 165, 210);

// What a coloured edit shows in place of the colours of edits.
constexpr COLORREF ColouredText = RGB(255, 214, 90);
constexpr COLORREF ColouredGround = RGB(24, 52, 84);

// Fonts of labels, and of what a label names in bold.
CFont& LabelFont();
CFont& BoldFont();

} // namespace look

// Painting in answer to WM_PAINT, in client coordinates, shown in one copy when the object goes.
// It begins with the ground, the colour of text on it, and no background behind text.
class BufferedPaint
{
public:
    explicit BufferedPaint(CWnd& window);
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;
    ~BufferedPaint();

    CDC& Context() { return m_memory; }

private:
    CPaintDC m_window;
    CRect m_painted; // what needs it
    CDC m_memory;
    CBitmap m_bitmap;
    HGDIOBJ m_before = nullptr;
};

// A font, pen, brush or bitmap selected into a context for as long as the object lives.
class InUse
{
public:
    InUse(CDC& dc, HGDIOBJ object)
        : m_dc(dc.GetSafeHdc())
        , m_before(::SelectObject(m_dc, object))
    {}
    InUse(CDC& dc, const CGdiObject& object)
        : InUse(dc, object.GetSafeHandle())
    {}
    InUse(const InUse&) = delete;
    InUse& operator=(const InUse&) = delete;
    ~InUse() { ::SelectObject(m_dc, m_before); }

private:
    HDC m_dc;
    HGDIOBJ m_before;
};
