#pragma once

#include "OnBoardUIExport.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <vector>

// A status bar that follows the display mode: the platform's in the standard mode; dark, in the
// on-board font and high enough for it in the others, unless its owner places it (CCS_NORESIZE).
// Created by Create or put over an existing status bar, in any mode.
class ONBOARDUI_API CCustomStatusBar : public CStatusBarCtrl
{
    DECLARE_DYNAMIC(CCustomStatusBar)

public:
    CCustomStatusBar();
    ~CCustomStatusBar() override;

    // Shared, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();

    // Draws the whole client area in the on-board look.
    virtual void DrawOB(CDC& dc);

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a status bar, whose value is the texts of its panes with
    // "; " between them. Empty panes and those that the owner draws have none.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accValue(VARIANT child, BSTR* value) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnSetFont(WPARAM font, LPARAM redraw);
    afx_msg LRESULT OnSetPaneText(WPARAM pane, LPARAM text);
    afx_msg LRESULT OnGetPaneRect(WPARAM pane, LPARAM place);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    DECLARE_MESSAGE_MAP()

    static CFont m_OBFont;

private:
    bool m_onBoard = false; // laid out for an on-board mode
    HFONT m_standardFont = nullptr;

    bool FollowMode();
    void TellPlatformOfPanes();
    std::vector<CRect> PanePlaces() const;
    void DrawPane(CDC& dc, int pane, const CRect& place);
    CString PaneText(int pane) const;
};
