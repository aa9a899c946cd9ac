#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// A rectangle's outline in a colour of its own, without a caption: one pixel wide, on-board three.
class ONBOARDUI_API CColoredGroupBox : public CStatic
{
public:
    CColoredGroupBox();
    ~CColoredGroupBox() override;

    // The colour of the outline; not redrawn.
    virtual void SetColor(COLORREF color);

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a group, named by the window's text, which is not drawn.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    COLORREF m_color;
};
