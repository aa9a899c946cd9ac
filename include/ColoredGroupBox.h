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

protected:
    afx_msg void OnPaint();
    afx_msg void OnEnable(BOOL enable);
    DECLARE_MESSAGE_MAP()

    COLORREF m_color;
};
