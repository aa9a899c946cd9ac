#include "FauxNcButton.h"

#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "scroll/PartObjects.h"

#include <utility>

namespace {

constexpr int GlyphHeight = 12;
constexpr int BorderSize = 4; // both frames, both sides

// One frame a pixel wide, after which the rectangle is what lies inside it.
void DrawFrame(CDC& dc, CRect& rect, int topLeft, int bottomRight, bool exchanged)
{
    if (exchanged)
    {
        std::swap(topLeft, bottomRight);
    }
    dc.Draw3dRect(&rect, ::GetSysColor(topLeft), ::GetSysColor(bottomRight));
    rect.DeflateRect(1, 1);
}

} // namespace

CFauxNcButton::CFauxNcButton()
    : m_data(0)
    , m_border(false)
    , m_buttonType(BUTTON_NONE)
{
    RemakeLinePen(m_blackPen, palette::GlyphLine);
    RemakeLinePen(m_greyPen, palette::Outline);
    m_font.CreateFont(GlyphHeight, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, SYMBOL_CHARSET,
                      OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                      DEFAULT_PITCH | FF_DONTCARE, "Marlett");
}

CFauxNcButton::~CFauxNcButton() = default;

void CFauxNcButton::ReDraw(CDC& dc, int pressed, int enabled, APPMODE mode)
{
    if (m_show == 0 || mode != STD)
    {
        return;
    }
    CRect rect = m_area;
    if (m_border)
    {
        const bool sunken = pressed != 0;
        DrawFrame(dc, rect, COLOR_3DHILIGHT, COLOR_3DDKSHADOW, sunken);
        DrawFrame(dc, rect, COLOR_3DLIGHT, COLOR_3DSHADOW, sunken);
    }
    const TextColor color(dc, ::GetSysColor(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    const BackgroundMode transparent(dc, TRANSPARENT);
    const Selected font(dc, m_font);
    dc.DrawText(Glyph(), &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

int CFauxNcButton::HitTest(CPoint point) const
{
    return m_area.PtInRect(point) ? 1 : 0;
}

void CFauxNcButton::GetMinVisibleSize(CDC* dc, CSize& size) const
{
    if (dc == nullptr)
    {
        return;
    }
    const Selected font(*dc, m_font);
    size = dc->GetTextExtent(Glyph());
    if (m_border)
    {
        size.cx += BorderSize;
        size.cy += BorderSize;
    }
}

// Empty without a glyph.
CString CFauxNcButton::Glyph() const
{
    const char text[] = {static_cast<char>(m_buttonType), '\0'};
    return CString(text);
}
