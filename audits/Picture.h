#pragma once

#include <afxwin.h>

#include <vector>

// What the screen shows of a window, its frame included.
class Picture
{
public:
    explicit Picture(const CWnd& window);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    COLORREF At(int x, int y) const; // within the picture
    void Leave(const CRect& place);  // out of it: black
    bool operator==(const Picture& other) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<RGBQUAD> m_pixels; // from the top
};
