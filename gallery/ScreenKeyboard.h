#pragma once

#include <afxwin.h>

// The on-screen keyboard of the flight-bag modes: it lies at the lower edge of the area that it is
// given, or at the upper one where it would cover what is typed into, and types into one window.
// It never takes the activation nor the focus.
class ScreenKeyboard : public CWnd
{
public:
    // area is on the screen. The owner keeps the keyboard in front of it.
    void ShowFor(HWND target, CWnd& owner, const CRect& area);
    void Hide();
    bool IsShown() const { return GetSafeHwnd() != nullptr && IsWindowVisible(); }

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* taker);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    struct Key
    {
        int row;
        int index; // in its row
    };

    CRect KeyRect(Key key) const;
    bool KeyAt(CPoint point, Key& key) const;
    void DrawKey(CDC& dc, Key key) const;
    void Type(Key key);
    bool IsDown(Key key) const;

    HWND m_target = nullptr;
    bool m_shift = false;
    bool m_pressing = false;
    Key m_pressed = {};
};
