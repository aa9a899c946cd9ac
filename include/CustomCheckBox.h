#pragma once

#include "CustomButton.h"

// A check box. On-board, a click or the space key changes 0 to 1, 1 to 0 and 2 (indeterminate) to
// 1, whatever button type the style names; an indeterminate box looks checked.
class ONBOARDUI_API CCustomCheckBox : public CCustomButton
{
    DECLARE_DYNAMIC(CCustomCheckBox)

public:
    CCustomCheckBox();
    ~CCustomCheckBox() override;

    // Changes the check state and tells the parent.
    void HandleBMClick() override;
    void HandleKeyDown(UINT key, UINT repeat, UINT flags) override;
    using CCustomButton::DrawOB;
    void DrawOB(CDC& dc) override;
    // Draws the square into item and gives its place, in the font that is selected.
    virtual void DrawCheckBox(CDC& dc, const CRect& item, CRect& mark);

    // Assistive programs are told of a check button, in every mode.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;

protected:
    DECLARE_MESSAGE_MAP()

    static CPen m_penCheckEnabled;
    static CPen m_penCheckDisabled;
};
