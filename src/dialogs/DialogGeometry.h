#pragma once

// Where the parts of an on-board dialog lie: pure functions of rectangles and measures.

#include "modes/Rounding.h"
#include "paint/Metrics.h"

#include <afxwin.h>

#include <algorithm>

namespace dialogs {

// A dialog unit is so many parts of the font's average character.
constexpr int UnitsAcross = 4;
constexpr int UnitsDown = 8;

// Height of the on-board caption band over a system caption height.
constexpr int BandHeight(int captionHeight)
{
    return Truncated(captionHeight * metrics::OnBoardScale);
}

// The frame that a window's styles give it, by the platform's metrics.
struct Frame
{
    int width = 0;
    int height = 0;
    bool sizing = false;

    static Frame Of(DWORD style, DWORD exStyle)
    {
        if ((style & WS_THICKFRAME) != 0)
        {
            return {::GetSystemMetrics(SM_CXFRAME), ::GetSystemMetrics(SM_CYFRAME), true};
        }
        if ((exStyle & WS_EX_DLGMODALFRAME) != 0)
        {
            return {::GetSystemMetrics(SM_CXDLGFRAME), ::GetSystemMetrics(SM_CYDLGFRAME), false};
        }
        return {};
    }
};

// In WM_NCCALCSIZE, before the default processing takes its own frame and caption: leaves what
// makes a frame of metrics::Border pixels and a band above the client area. padded says that the
// platform pads sizing frames by a few pixels that its metrics do not count.
inline void AdjustProposed(RECT& proposed, const Frame& frame, int captionHeight,
                           bool platformCaption, bool padded)
{
    if (frame.sizing && padded)
    {
        proposed.top -= metrics::SizingPad;
    }
    proposed.left -= frame.width - metrics::Border;
    proposed.top -= frame.height - metrics::Border;
    proposed.right += frame.width - metrics::Border;
    proposed.bottom += frame.height - metrics::Border;
    if (platformCaption)
    {
        proposed.top -= captionHeight;
    }
    proposed.top += BandHeight(captionHeight);
}

// The band with the frame above it. All rectangles are in window coordinates.
inline CRect CaptionArea(const CRect& window, int captionHeight)
{
    return CRect(window.left, window.top, window.right,
                 window.top + metrics::Border + BandHeight(captionHeight));
}

// Where a press drags the dialog.
inline CRect CaptionHitArea(const CRect& window, int captionHeight)
{
    return CRect(window.left + 3, window.top + 5, window.right - 2,
                 window.top + 4 + BandHeight(captionHeight));
}

inline CRect CaptionTextArea(const CRect& window, int captionHeight)
{
    CRect area = CaptionArea(window, captionHeight);
    area.DeflateRect(metrics::CaptionMargin, 0);
    return area;
}

// A rectangle on its way, shifted so that it stays inside an area (whole), or at least a good grip
// of it does. The checks run left, right, top, bottom: the later one wins.
inline CRect KeptInside(const CRect& proposed, int x, int y, int width, int height, bool whole)
{
    constexpr LONGLONG grip = metrics::DialogGrip;
    const LONGLONG right = LONGLONG(x) + width;
    const LONGLONG bottom = LONGLONG(y) + height;
    LONGLONG left = proposed.left;
    LONGLONG top = proposed.top;
    const LONGLONG across = LONGLONG(proposed.right) - proposed.left;
    const LONGLONG down = LONGLONG(proposed.bottom) - proposed.top;
    if (whole)
    {
        left = std::max<LONGLONG>(left, x);
        left = std::min(left, right - across);
        top = std::max<LONGLONG>(top, y);
        top = std::min(top, bottom - down);
    }
    else
    {
        left = std::max(left, x + grip - across);
        left = std::min(left, right - grip);
        top = std::max<LONGLONG>(top, y);
        top = std::min(top, bottom - grip);
    }
    const auto pixel = [](LONGLONG value) { return Truncated(double(value)); };
    return CRect(pixel(left), pixel(top), pixel(left + across), pixel(top + down));
}

} // namespace dialogs
