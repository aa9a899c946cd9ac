#pragma once

#include "CustomStatic.h"

// A one-line label in the bold version of its own font and in a colour of its own. On-board it is
// a CCustomStatic.
class ONBOARDUI_API CBoldStatic : public CCustomStatic
{
public:
    CBoldStatic();
    ~CBoldStatic() override;

    // The text colour; not redrawn.
    virtual void SetColor(COLORREF color);

protected:
    afx_msg void OnPaint();
    afx_msg LRESULT OnPrintClient(WPARAM wParam, LPARAM lParam);
    // Messages after which the platform's label draws itself at once.
    afx_msg LRESULT OnLookChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    COLORREF m_color;
};
