#include "FauxScrollThumb.h"

#include "paint/Palette.h"
#include "scroll/LookOfPart.h"
#include "scroll/PartObjects.h"

CFauxScrollThumb::CFauxScrollThumb(int orientation)
    : m_orientation(orientation)
{
    RemakeBrush(m_gripBrush, palette::ThumbGrip);
    RemakeBrush(m_gripLightBrush, palette::ThumbGripLight);
}

CFauxScrollThumb::~CFauxScrollThumb() = default;

void CFauxScrollThumb::ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode)
{
    scroll::DrawInMode(*this, dc, pressed, enabled, mode);
}

void CFauxScrollThumb::SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                                 COLORREF c6)
{
    CFauxButton::SetColors(c1, c2, c3, c4, c5, c6);
    RemakeBrush(m_gripBrush, c6);
    RemakeBrush(m_gripLightBrush, c3);
}

void CFauxScrollThumb::ReDrawOnBoard(CDC& dc, int pressed, int enabled)
{
    DrawOBFace(dc, pressed, enabled,
               m_orientation == SB_HORZ ? GRADIENT_FILL_RECT_V : GRADIENT_FILL_RECT_H);
}

void CFauxScrollThumb::ReDrawStd(CDC& dc, int pressed, int enabled)
{
    DrawStdPart(dc, DFC_BUTTON, DFCS_BUTTONPUSH, pressed, enabled);
}
