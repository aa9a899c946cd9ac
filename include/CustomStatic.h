#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

#include <vector>

// A label or group box that follows the display mode. On-board it draws a group box dark with a
// thick outline, over the controls' gaps only, and gives a client edge a border of three pixels.
// In the standard mode it is the platform's control. A group box is the platform's button with
// BS_GROUPBOX, taken over by this class; labels with SS_BLACKFRAME or SS_ENHMETAFILE, whose numbers
// end alike, count as one.
class ONBOARDUI_API CCustomStatic : public CStatic
{
    DECLARE_DYNAMIC(CCustomStatic)

public:
    CCustomStatic();
    ~CCustomStatic() override;

    // @{
    // Fonts of all labels, made on first use and kept for the life of the process.
    static CFont& GetOnBoardFont();
    static CFont& GetStdFont();
    // @}

    // The on-board fill behind a group box, but for its caption, which stays on the panel colour;
    // gives the one before. Not redrawn. Non-zero useDefault puts the panel colour back.
    COLORREF SetBackgroundColor(int useDefault, COLORREF color);

    // @{
    // Draw the control, or a group box, in answer to the message in progress. WM_PRINTCLIENT asks
    // no heir: what an override draws is on the window, not in the context that comes with it.
    virtual void Draw();
    virtual void DrawGroupBox();
    // @}

    // Draws the border on the screen now, and has the client area painted again.
    virtual void DrawOBNC();

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a group box, a picture or a text, by the style, with the
    // caption as its name.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    // The controls of a dialog, property page or form view that is the parent; with any other
    // parent the list stays as it was.
    void GetParentControls(std::vector<CWnd*>& controls);

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateUIState(UINT action, UINT element);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnSysColorChange();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcPaint();
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    DECLARE_MESSAGE_MAP()

    static CFont m_OBFont;
    static CFont m_StdFont;
    static CPen m_OutlinePen;

    bool m_groupBox = false; // by the style that the window had when this object took it
    COLORREF m_background;

private:
    void SuitTransparencyToMode();
};
