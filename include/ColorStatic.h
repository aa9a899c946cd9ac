#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// A swatch of one colour. It has none until Set gives it one, which must come before it is first
// painted.
class ONBOARDUI_API CColorStatic : public CStatic
{
public:
    CColorStatic();
    ~CColorStatic() override;

    // The colour, shown by the next paint.
    void Set(COLORREF color);

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a picture, named by the window's text, which is not drawn.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM, LPARAM) { return OnPaint(), 0; }
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    COLORREF m_color; // meant: not set by the constructor
};
