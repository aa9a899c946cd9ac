#include "AppIcon.h"

#include "Look.h"

namespace {

// The icon is designed on a grid of 16 by 16.
constexpr int Grid = 16;

struct Patch
{
    int left;
    int top;
    int right;
    int bottom;
    COLORREF color;
};

constexpr COLORREF Panel = RGB(50, 50, 50);
constexpr COLORREF Row = RGB(180, 180, 180);

constexpr Patch Patches[] = {
    {0, 1, 16, 15, look::DarkOutline},   // frame
    {1, 2, 15, 14, Panel},               // panel
    {3, 4, 10, 6, Row},                  // three rows
    {3, 7, 10, 9, look::DarkActiveEdge}, // the second one selected
    {3, 10, 10, 12, Row},
    {11, 3, 14, 13, RGB(26, 26, 26)},   // scroll bar
    {11, 5, 14, 8, RGB(150, 150, 150)}, // thumb
};

} // namespace

HICON MakeAppIcon(int size)
{
    CClientDC screen(nullptr);
    CBitmap color;
    CBitmap mask;
    color.CreateCompatibleBitmap(&screen, size, size);
    mask.CreateBitmap(size, size, 1, 1, nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);

    // Transparent is white in the mask and black in the colours.
    const auto scaled = [size](int units) { return units * size / Grid; };
    const auto rect = [&scaled](const Patch& patch) {
        return CRect(scaled(patch.left), scaled(patch.top), scaled(patch.right),
                     scaled(patch.bottom));
    };
    const CRect panel = rect(Patches[0]);
    {
        const InUse drawn(dc, mask);
        dc.FillSolidRect(0, 0, size, size, RGB(255, 255, 255));
        dc.FillSolidRect(&panel, RGB(0, 0, 0));
    }
    {
        const InUse drawn(dc, color);
        dc.FillSolidRect(0, 0, size, size, RGB(0, 0, 0));
        for (const Patch& patch : Patches)
        {
            const CRect area = rect(patch);
            dc.FillSolidRect(&area, patch.color);
        }
    }

    ICONINFO info = {TRUE, 0, 0, mask, color};
    return ::CreateIconIndirect(&info);
}
