#include "scroll/PlatformDrag.h"

#include <algorithm>
#include <iterator>

namespace scroll {

namespace {

// What of a bar of the platform's the pointer holds; 0 for nothing. The thumb is the third part.
int HeldPart(HWND window, LONG which)
{
    SCROLLBARINFO bar = {};
    bar.cbSize = sizeof(bar);
    if (!::GetScrollBarInfo(window, which, &bar) || (bar.rgstate[0] & STATE_SYSTEM_INVISIBLE) != 0)
    {
        return 0;
    }
    const auto held = [](DWORD state) { return (state & STATE_SYSTEM_PRESSED) != 0; };
    const auto part = std::find_if(std::begin(bar.rgstate) + 1, std::end(bar.rgstate), held);
    return part == std::end(bar.rgstate) ? 0 : int(part - std::begin(bar.rgstate));
}

// A platform that has lost the capture may draw the thumb where it was held, and take it for held,
// until a button goes up over some bar of its own.
void ForgetHeldBar()
{
    const HWND bar = ::CreateWindow("ScrollBar", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                    AfxGetInstanceHandle(), nullptr);
    ::SendMessage(bar, WM_LBUTTONUP, 0, 0);
    ::DestroyWindow(bar);
}

} // namespace

void EndPlatformScrolling(const CWnd& window)
{
    const HWND holder = ::GetCapture();
    if (holder == nullptr || (holder != window.m_hWnd && ::GetParent(holder) != window.m_hWnd))
    {
        return;
    }
    constexpr int Thumb = 3;
    for (const bool across : {false, true})
    {
        const int held = HeldPart(holder, across ? OBJID_HSCROLL : OBJID_VSCROLL);
        if (held == Thumb)
        {
            // As a release does: some controls leave their bar alone until they are told.
            SCROLLINFO info = {};
            info.cbSize = sizeof(info);
            info.fMask = SIF_TRACKPOS;
            ::GetScrollInfo(holder, across ? SB_HORZ : SB_VERT, &info);
            ::SendMessage(holder, across ? WM_HSCROLL : WM_VSCROLL,
                          MAKEWPARAM(SB_THUMBPOSITION, info.nTrackPos), 0);
        }
        if (held != 0)
        {
            ::SendMessage(holder, WM_CANCELMODE, 0, 0);
            ForgetHeldBar();
            return;
        }
    }
}

} // namespace scroll
