#pragma once

#include "GalleryHost.h"
#include "GalleryPage.h"
#include "PageBar.h"
#include "PageList.h"
#include "SwitchStrip.h"

#include <memory>
#include <optional>
#include <vector>

// The gallery's window: the mode switches on top, the list of pages at the left, the page, and
// below a line with what the page was told last. In two of the modes it covers the whole screen; in
// the other on-board modes it has a dark frame of its own, which is part of its client area.
class GalleryFrame : public CFrameWnd, private GalleryEvents
{
public:
    explicit GalleryFrame(GalleryHost& host);

    // Makes the window, hidden, in the current mode, with a page. FALSE when it cannot be made.
    BOOL Open(size_t page);

    // False when the page cannot be made; the one before stays.
    bool ShowPage(size_t index);
    void SwitchMode(APPMODE mode);
    // Whether a key in one of the program's other windows has switched the mode.
    bool SwitchByKey(const MSG& message);
    // The page that is shown.
    GalleryPage& Page() { return *m_pages[m_shown]; }
    // The switches, to be tapped.
    ModeSwitches& Switches() { return m_switches; }

    void RecalcLayout(BOOL notify = TRUE) override;
    BOOL PreTranslateMessage(MSG* message) override;

private:
    struct Layout
    {
        CRect caption; // of the frame of its own; empty without one
        CRect window;  // the switches in it
        CRect switches;
        CRect list;
        CRect page;
        CRect down;   // the page's bars; empty without one
        CRect across; // likewise
        CRect line;
    };

    void ParentWasTold(const CString& what) override;

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnEndSession(WPARAM ending, LPARAM reason);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg LRESULT OnExitMenuLoop(WPARAM ofShortcut, LPARAM);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnModeCommand(UINT id);
    afx_msg void OnPageCommand(UINT id);
    afx_msg void OnMinimize();
    afx_msg void OnPageSelected();
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

    Layout CurrentLayout() const;
    void DrawFrame(CDC& dc, const CRect& caption) const;
    // Size and place of the window in a mode that leaves it one.
    CRect InitialPlace() const;
    void TakePlace(APPMODE newMode, APPMODE oldMode);
    // Scrolls the page, or has its bars follow it.
    void ScrollPage(CPoint origin);

    GalleryHost& m_host;
    WindowSwitches m_windowSwitches;
    ModeSwitches m_switches;
    PageList m_list;
    PageBar m_down{SB_VERT};
    PageBar m_across{SB_HORZ};
    std::vector<std::unique_ptr<GalleryPage>> m_pages; // made when first shown
    size_t m_shown = 0;
    bool m_switching = false; // to another mode
    CString m_lastTold;
    HWND m_focusBefore = nullptr; // the child that had the focus when the window was left
    // Where the user left the window, in the standard look and in the dark one.
    std::optional<WINDOWPLACEMENT> m_places[2];
};
