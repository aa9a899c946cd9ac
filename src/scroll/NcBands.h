#pragma once

// What every host of faux bars does with its non-client area: the band taken from the client
// rectangle, the bar's place, the platform's own bars, and the pointer outside the client area.

#include <afxwin.h>

namespace scroll {

// In WM_NCCALCSIZE, before the default processing: takes inset.cx from the left and right and
// inset.cy from the top and bottom of the proposed rectangle, and a band for each bar that is
// shown. A rectangle too small for it ends empty, never reversed.
void TakeBands(RECT& proposed, const CSize& inset, bool verticalBar, bool horizontalBar);

// Area of a bar beside a client rectangle, in the same coordinates: right of it for SB_VERT, below
// it for SB_HORZ, a bar thick and reaching over the border at both ends.
CRect BarArea(int axis, const CRect& client);

// The same for an owner with a border of its own, which the bar leaves alone: all of the band, as
// long as the client rectangle.
CRect BandArea(int axis, const CRect& client);

// What the platform's own bar would show of a window's content; all 0 where it knows of none.
struct PlatformScroll
{
    int first = 0;
    int last = 0;
    int page = 0;
    int position = 0;

    PlatformScroll(const CWnd& window, int axis);

    // Whether there is more than a page of it.
    bool IsNeeded() const { return page > 0 && last > first; }
};

// The window's client rectangle in window coordinates (0, 0 is the window's top left corner): what
// a bar that is painted through the window's device context is placed against.
CRect ClientRectInWindow(const CWnd& window);

// A point of the screen in window coordinates.
CPoint ScreenToWindow(const CWnd& window, const CPoint& screen);

// Takes the platform's scroll bars away from a window, both or one of them, and returns the styles
// that it had (WS_VSCROLL, WS_HSCROLL or both). The style is written only when it changes, and the
// frame is not recalculated.
DWORD StripScrollStyles(const CWnd& window, DWORD styles = WS_VSCROLL | WS_HSCROLL);

// Gives scroll bar styles back in the same way; other bits of styles are ignored.
void RestoreScrollStyles(const CWnd& window, DWORD styles);

// Whether one of these two is writing the window's style: a change that is told meanwhile is none
// of the host's.
bool WritesScrollStyles(const CWnd& window);

// Has the frame recalculated, which sends WM_NCCALCSIZE and WM_NCPAINT. copyBits false also throws
// the client pixels away (SWP_NOCOPYBITS). Size, place and z-order stay.
void RecalculateFrame(const CWnd& window, bool copyBits = true);

// The same for a window that its caller repaints afterwards, with its frame: until then nothing is
// painted, neither it nor what stands around it.
void RecalculateFrameUnpainted(const CWnd& window);

// Whether a WM_WINDOWPOSCHANGING wants the frame calculated and nothing else, as the platform does
// for its bars.
bool ChangesFrameAlone(const WINDOWPOS& position);

// The styles, but for those of the bars, with which the frame was calculated last.
class FrameStyles
{
public:
    // In WM_NCCALCSIZE.
    void Note(const CWnd& window);

    // In WM_WINDOWPOSCHANGING, after a style of the platform's was taken away with which it wanted
    // the frame recalculated: saves that when the frame is all that changes, and is what it was.
    void SaveRecalculation(const CWnd& window, WINDOWPOS& position) const;

private:
    DWORD m_style = 0;
    DWORD m_exStyle = 0;
};

// Whether what is painted on the frame now would reach the screen, which it does not without a
// window. Else it is not worth the context, which takes its time: the window paints its frame when
// it is shown.
bool IsFrameSeen(const CWnd& window);

// Whether the region of a WM_NCPAINT (screen coordinates, or 1 for everything) reaches out of the
// client area. The message also comes along with paints of the client area alone.
bool TouchesFrame(const CWnd& window, HRGN updated);

// Asks for WM_NCMOUSELEAVE once, or takes the request back.
void RequestNcLeave(const CWnd& window);
void CancelNcLeave(const CWnd& window);

// Whether the left button is down at this moment, whatever messages are still waiting.
bool LeftButtonDown();

} // namespace scroll
