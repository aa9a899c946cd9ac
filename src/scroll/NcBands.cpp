#include "scroll/NcBands.h"

#include "paint/Metrics.h"
#include "scroll/FauxScrollGeometry.h"

#include <algorithm>
#include <utility>

namespace scroll {

namespace {

constexpr DWORD ScrollStyles = WS_VSCROLL | WS_HSCROLL;

HWND s_written = nullptr;

void WriteScrollStyles(HWND window, DWORD style, DWORD scrollStyles)
{
    const DWORD wanted = (style & ~ScrollStyles) | scrollStyles;
    if (wanted != style)
    {
        const HWND outer = std::exchange(s_written, window);
        ::SetWindowLongPtr(window, GWL_STYLE, static_cast<LONG_PTR>(wanted));
        s_written = outer;
    }
}

DWORD StyleOfWindow(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtr(window, GWL_STYLE));
}

void TrackNcLeave(const CWnd& window, DWORD flags)
{
    TRACKMOUSEEVENT track = {};
    track.cbSize = sizeof(track);
    track.dwFlags = TME_NONCLIENT | TME_LEAVE | flags;
    track.hwndTrack = window.GetSafeHwnd();
    ::TrackMouseEvent(&track);
}

} // namespace

void TakeBands(RECT& proposed, const CSize& inset, bool verticalBar, bool horizontalBar)
{
    const int right = inset.cx + (verticalBar ? metrics::ScrollBand : 0);
    const int bottom = inset.cy + (horizontalBar ? metrics::ScrollBand : 0);
    proposed.left = Saturated(LONGLONG{proposed.left} + inset.cx);
    proposed.top = Saturated(LONGLONG{proposed.top} + inset.cy);
    proposed.right = Saturated(LONGLONG{proposed.right} - right);
    proposed.bottom = Saturated(LONGLONG{proposed.bottom} - bottom);
    proposed.right = std::max(proposed.left, proposed.right);
    proposed.bottom = std::max(proposed.top, proposed.bottom);
}

CRect BarArea(int axis, const CRect& client)
{
    return axis == SB_VERT
               ? CRect(client.right, client.top - metrics::Border,
                       client.right + metrics::ScrollBar, client.bottom + metrics::Border)
               : CRect(client.left - metrics::Border, client.bottom, client.right + metrics::Border,
                       client.bottom + metrics::ScrollBar);
}

CRect BandArea(int axis, const CRect& client)
{
    return axis == SB_VERT
               ? CRect(client.right, client.top, client.right + metrics::ScrollBand, client.bottom)
               : CRect(client.left, client.bottom, client.right,
                       client.bottom + metrics::ScrollBand);
}

PlatformScroll::PlatformScroll(const CWnd& window, int axis)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    const HWND handle = window.GetSafeHwnd();
    if (handle != nullptr && ::GetScrollInfo(handle, axis, &info))
    {
        first = info.nMin;
        last = info.nMax - std::max(0, int(info.nPage) - 1);
        page = int(info.nPage);
        position = info.nPos;
    }
}

CRect ClientRectInWindow(const CWnd& window)
{
    RECT client = {};
    ::GetClientRect(window.GetSafeHwnd(), &client);
    POINT corner = {client.left, client.top};
    ::ClientToScreen(window.GetSafeHwnd(), &corner);
    const CPoint origin = ScreenToWindow(window, corner);
    CRect result(client);
    result.OffsetRect(origin.x, origin.y);
    return result;
}

CPoint ScreenToWindow(const CWnd& window, const CPoint& screen)
{
    RECT frame = {};
    ::GetWindowRect(window.GetSafeHwnd(), &frame);
    return CPoint(screen.x - frame.left, screen.y - frame.top);
}

DWORD StripScrollStyles(const CWnd& window, DWORD styles)
{
    const DWORD style = StyleOfWindow(window.GetSafeHwnd());
    const DWORD had = style & styles & ScrollStyles;
    WriteScrollStyles(window.GetSafeHwnd(), style, style & ScrollStyles & ~had);
    return had;
}

void RestoreScrollStyles(const CWnd& window, DWORD styles)
{
    const DWORD style = StyleOfWindow(window.GetSafeHwnd());
    WriteScrollStyles(window.GetSafeHwnd(), style, (style | styles) & ScrollStyles);
}

bool WritesScrollStyles(const CWnd& window)
{
    return s_written != nullptr && s_written == window.GetSafeHwnd();
}

namespace {

constexpr UINT FrameAlone = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_FRAMECHANGED;

} // namespace

void RecalculateFrame(const CWnd& window, bool copyBits)
{
    const HWND handle = window.GetSafeHwnd();
    // A window of its own must not become the active one by it.
    const bool child = (StyleOfWindow(handle) & WS_CHILD) != 0;
    const UINT flags = SWP_NOSIZE | SWP_NOMOVE | SWP_FRAMECHANGED |
                       (copyBits ? 0 : SWP_NOCOPYBITS) | (child ? 0 : SWP_NOACTIVATE);
    // Placed behind its own predecessor, the window keeps its place in the order of its siblings,
    // which is also the tab order of a dialog.
    HWND predecessor = ::GetWindow(handle, GW_HWNDPREV);
    ::SetWindowPos(handle, predecessor != nullptr ? predecessor : HWND_TOP, 0, 0, 0, 0, flags);
}

void RecalculateFrameUnpainted(const CWnd& window)
{
    constexpr UINT Unpainted = SWP_NOCOPYBITS | SWP_NOREDRAW | SWP_DEFERERASE;
    ::SetWindowPos(window.GetSafeHwnd(), nullptr, 0, 0, 0, 0,
                   FrameAlone | SWP_NOACTIVATE | Unpainted);
}

bool IsFrameSeen(const CWnd& window)
{
    return ::IsWindowVisible(window.GetSafeHwnd()) != FALSE;
}

bool ChangesFrameAlone(const WINDOWPOS& position)
{
    return (position.flags & FrameAlone) == FrameAlone;
}

void FrameStyles::Note(const CWnd& window)
{
    m_style = StyleOfWindow(window.GetSafeHwnd()) & ~ScrollStyles;
    m_exStyle = window.GetExStyle();
}

void FrameStyles::SaveRecalculation(const CWnd& window, WINDOWPOS& position) const
{
    FrameStyles now;
    now.Note(window);
    if (ChangesFrameAlone(position) && now.m_style == m_style && now.m_exStyle == m_exStyle)
    {
        position.flags &= ~UINT(SWP_FRAMECHANGED);
    }
}

bool TouchesFrame(const CWnd& window, HRGN updated)
{
    const auto everything = reinterpret_cast<HRGN>(1);
    CRect bounds;
    if (updated == nullptr || updated == everything || ::GetRgnBox(updated, &bounds) == RGN_ERROR)
    {
        return true;
    }
    CRect client;
    window.GetClientRect(&client);
    window.ClientToScreen(&client);
    CRect common;
    common.UnionRect(bounds, client);
    return common != client;
}

void RequestNcLeave(const CWnd& window)
{
    TrackNcLeave(window, 0);
}

void CancelNcLeave(const CWnd& window)
{
    TrackNcLeave(window, TME_CANCEL);
}

bool LeftButtonDown()
{
    // The keys are the buttons of the device; the messages go by what the user makes of them.
    return ::GetAsyncKeyState(::GetSystemMetrics(SM_SWAPBUTTON) ? VK_RBUTTON : VK_LBUTTON) < 0;
}

} // namespace scroll
