#pragma once

#include <AppMode.h>

#include <afxwin.h>

#include <span>

// A strip of large switches beside each other; one may be marked as the active one. A tap, or the
// space bar on the focused one, sends the parent its command. A tap leaves the focus where it is,
// so that nothing is taken from the page.
class SwitchStrip : public CWnd
{
public:
    struct Switch
    {
        const char* caption;
        UINT command;
    };

    using CWnd::Create;
    // The switches have to outlive the window. style is added to that of a visible child; with
    // WS_TABSTOP the keys reach it.
    BOOL Create(CWnd& parent, UINT id, const char* name, std::span<const Switch> switches,
                DWORD style);

    // Presses and releases a switch by pointer messages.
    void Tap(int index);

protected:
    static constexpr int None = -1;

    // The switch that is marked.
    virtual int Active() const { return None; }

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
    int Count() const { return int(m_switches.size()); }
    CRect SwitchRect(int index) const;
    int SwitchAt(CPoint point) const;
    void DrawSwitch(CDC& dc, int index) const;
    int WidestCaption(CDC& dc) const;
    void Choose(int index);

    std::span<const Switch> m_switches;
    int m_pressed = None;  // the switch that the pointer was pressed on, while it is down
    bool m_inside = false; // whether the pointer is still over it
    int m_focused = 0;     // the switch that the keys work on
};

// One switch for each display mode, the one that is on marked; its command is ID_MODE_FIRST plus
// the mode.
class ModeSwitches : public SwitchStrip
{
public:
    using SwitchStrip::Create;
    BOOL Create(CWnd& parent, UINT id);

protected:
    int Active() const override;
};

// What a window's frame offers while the gallery draws its own: to minimise and to close it.
class WindowSwitches : public SwitchStrip
{
public:
    using SwitchStrip::Create;
    BOOL Create(CWnd& parent, UINT id);
};
