#pragma once

#include "FauxButton.h"

// Arrow button at either end of a faux scroll bar.
class ONBOARDUI_API CFauxScrollButton : public CFauxButton
{
public:
    // first: the up or left button. orientation: SB_HORZ or SB_VERT.
    CFauxScrollButton(bool first, int orientation);
    ~CFauxScrollButton() override;

    void ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode) override;

    // @{
    // The two looks, drawn whether the part is shown or not.
    void ReDrawOnBoard(CDC& dc, int pressed, int enabled);
    void ReDrawStd(CDC& dc, int pressed, int enabled);
    // @}

protected:
    bool m_first;
    int m_orientation;
};
