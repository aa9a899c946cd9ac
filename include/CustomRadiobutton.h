#pragma once

#include "CustomButton.h"

// A radio button. On-board, a click checks it and clears the others of its group: the automatic
// radio buttons from the one with WS_GROUP on. Without such a head the others keep their checks.
// In every mode the group boxes that it lies in are told of a click on it.
class ONBOARDUI_API CCustomRadiobutton : public CCustomButton
{
    DECLARE_DYNAMIC(CCustomRadiobutton)

public:
    CCustomRadiobutton();
    ~CCustomRadiobutton() override;

    // @{
    // Whether a window has the style of an automatic radio button, and whether it heads a group by
    // WS_GROUP as well. False for null.
    static bool IsAutoRadio(CWnd* window);
    static bool IsAutoRadioGroupCtrl(CWnd* window);
    // @}

    void HandleBMClick() override;
    // Tells the group boxes that the button lies in of the click, by BN_CLICKED with its id.
    void HandleGroupClick() override;
    void HandleKeyDown(UINT key, UINT repeat, UINT flags) override;
    using CCustomButton::DrawOB;
    void DrawOB(CDC& dc) override;
    // Draws the circle into item and gives its place.
    virtual void DrawRadioCircle(CDC& dc, const CRect& item, CRect& mark);
    // Checks this button and clears the others of the group, each of them repainted at once.
    virtual void HandleRadioGroup();

    // Assistive programs are told of a radio button, in every mode.
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;

protected:
    afx_msg void OnUpdateUIState(UINT action, UINT element);
    DECLARE_MESSAGE_MAP()

    static CBrush m_DotBrush; // for derived classes that draw a circle of their own
};
