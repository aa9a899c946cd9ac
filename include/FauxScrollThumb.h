#pragma once

#include "FauxButton.h"

// Thumb of a faux scroll bar.
class ONBOARDUI_API CFauxScrollThumb : public CFauxButton
{
public:
    // orientation: SB_HORZ or SB_VERT.
    explicit CFauxScrollThumb(int orientation);
    ~CFauxScrollThumb() override;

    void ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode) override;

    // Also remakes the grip brushes, which a derived thumb may draw with: the dark one in c6 (the
    // pressed face, whose default it shares), the light one in c3 (the normal face).
    void SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                   COLORREF c6) override;

    // @{
    // The two looks, drawn whether the part is shown or not.
    virtual void ReDrawOnBoard(CDC& dc, int pressed, int enabled);
    virtual void ReDrawStd(CDC& dc, int pressed, int enabled);
    // @}

protected:
    CBrush m_gripBrush;
    CBrush m_gripLightBrush;
    int m_orientation;
};
