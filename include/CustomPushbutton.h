#pragma once

#include "CustomButton.h"

// A push button, its caption placed by the style (BS_LEFT, BS_TOP, BS_MULTILINE and so on).
class ONBOARDUI_API CCustomPushbutton : public CCustomButton
{
    DECLARE_DYNAMIC(CCustomPushbutton)

public:
    CCustomPushbutton();
    ~CCustomPushbutton() override;

    using CCustomButton::DrawOB;
    void DrawOB(CDC& dc) override;

protected:
    DECLARE_MESSAGE_MAP()
};
