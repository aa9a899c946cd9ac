#pragma once

#include "catalog/Pixels.h"

// A memory bitmap to paint on, filled with a colour that no painter uses.
class Canvas
{
public:
    static constexpr COLORREF Untouched = RGB(255, 0, 255);

    Canvas(int width, int height)
        : m_area(0, 0, width, height)
    {
        m_bitmap.Attach(MakeBitmap(width, height));
        m_dc.CreateCompatibleDC(nullptr);
        m_dc.SelectObject(&m_bitmap);
        m_dc.FillSolidRect(m_area, Untouched);
    }

    CDC& DC() { return m_dc; }
    COLORREF At(int x, int y) const { return m_dc.GetPixel(x, y); }
    COLORREF At(CPoint point) const { return At(point.x, point.y); }
    Pixels Picture() const { return Pixels(m_dc, m_area); }
    bool IsUntouched() const
    {
        return Picture().Count(Untouched) == m_area.Width() * m_area.Height();
    }

private:
    CRect m_area;
    CBitmap m_bitmap; // outlives the context that it is selected into
    CDC m_dc;
};
