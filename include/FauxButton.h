#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

// A painted, windowless part: an area that its owner places, hit-tests and asks to paint. In the
// standard mode it looks like the platform's own part, in every other mode it has the large
// gradient look.
class ONBOARDUI_API CFauxButton
{
public:
    CFauxButton();
    CFauxButton(const CFauxButton&) = delete;
    CFauxButton& operator=(const CFauxButton&) = delete;
    virtual ~CFauxButton();

    // Paints the part for a mode, unless it is hidden. A disabled part paints disabled even when it
    // is reported pressed.
    virtual void ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode) = 0;

    // @{
    // The area, in the owner's window coordinates: all of it, its edges two by two, or moved by so
    // many pixels. It is not painted.
    virtual void SetArea(const CRect& area);
    virtual void SetTopBottom(int top, int bottom);
    virtual void SetLeftRight(int left, int right);
    virtual void ShiftArea(int dx, int dy);
    // @}

    // @{
    // The middle of the area, from top to bottom and from left to right.
    virtual int GetVCenter() const;
    virtual int GetHCenter() const;
    // @}

    // Remakes every pen and brush: c1 outline and arrow line, c2 first brush, c3 normal face,
    // c4 disabled face and third outline, c5 second outline and second brush, c6 pressed face.
    // Faces show them only where the platform draws no gradients: those have colours of their own.
    // An arrow is c4 when disabled, that of a drop button also c6, and c3 when pressed. In the
    // standard mode nothing is shown of them.
    virtual void SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                           COLORREF c6);

    // The area, as it was set last.
    const CRect& GetArea() const { return m_area; }

    // @{
    // Whether ReDraw draws the part: non-zero, as at first. It is not painted.
    int GetShow() const { return m_show; }
    void SetShow(int show) { m_show = show; }
    // @}

    // Computes the arrow of a button with this area: an outer triangle (points 0 to 2, apex first)
    // and the one inside it (3 to 5). orientation is SB_HORZ or SB_VERT; first is the arrow up or
    // left. Writes nothing when count is below 6 or for any other orientation.
    void CalculateOBTriangle(POINT* points, int count, int orientation, bool first) const;

protected:
    // One frame-control call on the area: base state plus what disabled and pressed add.
    void DrawStdPart(CDC& dc, UINT type, UINT state, int pressed, int enabled) const;

    // Gradient and outline of the area. gradient is GRADIENT_FILL_RECT_H or _V.
    void DrawOBFace(CDC& dc, int pressed, int enabled, unsigned long gradient);

    // Fills the inner triangle of the six points and draws both outlines; nothing is clipped.
    void DrawOBArrow(CDC& dc, const POINT* points, const CBrush& fill) const;

    CPen m_outlinePen;
    // The second and third pen, the first and second brush: for derived classes.
    CPen m_secondOutlinePen;
    CPen m_thirdOutlinePen;
    CBrush m_firstBrush;
    CBrush m_secondBrush;
    CBrush m_disabledBrush;
    CBrush m_normalBrush;
    CBrush m_pressedBrush;
    CPen m_linePen; // arrow outlines
    CRect m_area;
    int m_show;
};
