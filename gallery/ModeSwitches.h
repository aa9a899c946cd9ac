#pragma once

#include <AppMode.h>

#include <afxwin.h>

// The strip of five large switches, one for each display mode; the active one is marked. A tap, or
// the space bar on the focused one, sends the parent the command ID_MODE_FIRST plus the mode.
class ModeSwitches : public CWnd
{
public:
    using CWnd::Create;
    BOOL Create(CWnd& parent, UINT id);

    // Presses and releases a switch by pointer messages.
    void Tap(APPMODE mode);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int None = -1;

    CRect SwitchRect(int mode) const;
    int SwitchAt(CPoint point) const;
    void DrawSwitch(CDC& dc, int mode) const;
    void Choose(int mode);

    int m_pressed = None;  // the switch that the pointer was pressed on, while it is down
    bool m_inside = false; // whether the pointer is still over it
    int m_focused = STD;   // the switch that the keys work on
};
