#pragma once

#include <afxwin.h>

// Moves of several children of one window, done together when the object goes. Nothing is copied on
// the screen: a child that lies on another's new place for a moment would leave its pixels there.
class WindowMoves
{
public:
    WindowMoves() = default;
    WindowMoves(const WindowMoves&) = delete;
    WindowMoves& operator=(const WindowMoves&) = delete;
    ~WindowMoves()
    {
        if (m_moves != nullptr)
        {
            ::EndDeferWindowPos(m_moves);
        }
    }

    void Add(const CWnd& child, const CRect& place) { Add(child.GetSafeHwnd(), place); }
    void Add(HWND child, const CRect& place)
    {
        constexpr UINT Flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
        // Null once memory is short; then a child is moved by itself.
        m_moves = m_moves == nullptr
                      ? nullptr
                      : ::DeferWindowPos(m_moves, child, nullptr, place.left, place.top,
                                         place.Width(), place.Height(), Flags);
        if (m_moves == nullptr)
        {
            ::SetWindowPos(child, nullptr, place.left, place.top, place.Width(), place.Height(),
                           Flags);
        }
    }

private:
    HDWP m_moves = ::BeginDeferWindowPos(8);
};
