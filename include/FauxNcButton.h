#pragma once

#include "FauxButton.h"

// Small caption-style button that a control paints into its non-client area: one glyph of the
// "Marlett" symbol font, with or without a border. It shows in the standard mode only.
class ONBOARDUI_API CFauxNcButton : public CFauxButton
{
public:
    // Character code of the glyph; every glyph of the font is valid.
    enum BUTTON_TYPE : int
    {
        BUTTON_NONE = 0,
        BUTTON_MINIMIZE = '0',
        BUTTON_MAXIMIZE = '1',
        BUTTON_RESTORE = '2',
        BUTTON_CLOSE = 'r',
    };

    CFauxNcButton();
    ~CFauxNcButton() override;

    void ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode) override;

    // 1 when the point (same coordinates as the area) lies in the area, otherwise 0.
    int HitTest(CPoint point) const;

    // @{
    // Whether a border is drawn round the glyph, which makes the least size larger by it.
    bool GetBorder() const { return m_border; }
    void SetBorder(bool border) { m_border = border; }
    // @}

    // @{
    // The glyph that is drawn; BUTTON_NONE at first.
    BUTTON_TYPE GetButtonType() const { return m_buttonType; }
    void SetButtonType(BUTTON_TYPE type) { m_buttonType = type; }
    // @}

    // Size of the glyph, with the border when there is one, in pixels of dc. Without a context the
    // size stays as it is.
    void GetMinVisibleSize(CDC* dc, CSize& size) const;

protected:
    // The glyph as a text of the symbol font.
    CString Glyph() const;

    int m_data; // free for the owner's derived class
    bool m_border;
    BUTTON_TYPE m_buttonType;
    CPen m_blackPen; // for derived classes, as the next
    CPen m_greyPen;
    CFont m_font;
};
