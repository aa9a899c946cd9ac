#pragma once

#include "FauxButton.h"

// Drop-down arrow of a combo box.
class ONBOARDUI_API CFauxDropButton : public CFauxButton
{
public:
    CFauxDropButton();
    ~CFauxDropButton() override;

    void ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode) override;

    // @{
    // The two looks, drawn whether the part is shown or not.
    virtual void ReDrawOnBoard(CDC& dc, int pressed, int enabled);
    virtual void ReDrawStd(CDC& dc, int pressed, int enabled);
    // @}
};
