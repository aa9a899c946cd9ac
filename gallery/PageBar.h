#pragma once

#include <afxwin.h>

#include <FauxScrollBar.h>

#include <functional>

// A scroll bar beside a page that is larger than its place: the library's painted bar on a window
// of its own, in the look of the mode.
class PageBar : public CWnd
{
public:
    explicit PageBar(int orientation)
        : m_bar(orientation)
    {}

    // How thick it is in the current mode.
    static int Thickness();

    // moved is told of each position that the user chooses, in pixels of the page.
    BOOL Create(CWnd& parent, UINT id, std::function<void(int)> moved);

    // Shows so many pixels of a whole, from a position on.
    void Follow(int whole, int shown, int position);

private:
    CFauxScrollBar m_bar;
    std::function<void(int)> m_moved;
    CFauxScrollBar::ePRESSED m_pressed = CFauxScrollBar::PRESSED_NONE;
    CPoint m_last; // of the pointer

    void Step();

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()
};
