#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>

// An edit with colours of its own: black on the colour of faces until others are set. All else is
// the platform's in every mode: it has no bar for a finger and asks for no on-screen keyboard.
class ONBOARDUI_API ColorEdit : public CEdit
{
    DECLARE_DYNAMIC(ColorEdit)

public:
    ColorEdit();

    // @{
    // The colours of the text and of all behind it, shown by the next paint.
    void SetTextColor(COLORREF color);
    void SetBackgroundColor(COLORREF color);
    // @}

    void PreSubclassWindow() override;

    // @{
    // What assistive programs are told: a text box, named by the label before it.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT get_accState(VARIANT child, VARIANT* state) override;
    // @}

protected:
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

    CBrush m_brush;
    COLORREF m_backgroundColor;
    COLORREF m_textColor = 0;

private:
    void ShowColors();
};
