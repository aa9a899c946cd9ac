// The drop-list combo: its painting.

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"

#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/BackBuffer.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/PaintContext.h"
#include "paint/Palette.h"

namespace {

constexpr int SelectionGap = 1; // from the border to the ground of a focused text

struct TextLook
{
    COLORREF text;
    COLORREF ground;
};

TextLook LookOf(bool onBoard, bool enabled, bool focused)
{
    if (!enabled)
    {
        return onBoard ? TextLook{palette::FieldTextDisabled, palette::FieldDisabled}
                       : TextLook{::GetSysColor(COLOR_GRAYTEXT), ::GetSysColor(COLOR_BTNFACE)};
    }
    if (focused)
    {
        return onBoard
                   ? TextLook{palette::HighlightText, palette::Highlight}
                   : TextLook{::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT)};
    }
    return onBoard ? TextLook{palette::FieldText, palette::Field}
                   : TextLook{::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_WINDOW)};
}

} // namespace

BOOL CCustomDropListCombo::OnEraseBkgnd(CDC*)
{
    return TRUE; // the painter covers everything
}

void CCustomDropListCombo::OnPaint()
{
    const WindowAlive alive(*this);
    PaintContext context(*this);
    if (!alive)
    {
        return;
    }
    BackBuffer buffer(context, context.Area());
    OnPaint(buffer.DC());
}

void CCustomDropListCombo::OnPaint(CDC& dc)
{
    CRect client;
    GetClientRect(&client);
    const bool enabled = IsWindowEnabled() != FALSE;
    const bool onBoard = COnBoardUIGeneral::InOnBoardMode();
    const WindowAlive alive(*this);
    CalculateSpacing();
    if (!alive)
    {
        return;
    }
    if (onBoard)
    {
        dc.FillSolidRect(&client, palette::Outline); // a thick line rounds its corners off
        const Selected pen(dc, m_OBOutlinePen);
        const Selected brush(dc, enabled ? m_BkBrush : m_BkDisabledBrush);
        dc.Rectangle(&client);
    }
    else
    {
        CRect edge = client;
        dc.FillSolidRect(&client, LookOf(false, enabled, false).ground);
        dc.DrawEdge(&edge, EDGE_SUNKEN, BF_RECT);
    }
    if (dc.RectVisible(m_textArea))
    {
        DrawEditText(dc, GetCurSel()); // asks the list for the text
    }
    if (!alive)
    {
        return;
    }
    m_dropButton.ReDraw(dc, m_expanded, enabled, COnBoardUIGeneral::GetAppMode());
}

void CCustomDropListCombo::DrawEditText(CDC& dc, int index)
{
    const bool focused = m_hasFocus && IsWindowEnabled();
    const TextLook look =
        LookOf(COnBoardUIGeneral::InOnBoardMode(), IsWindowEnabled() != FALSE, m_hasFocus);
    CRect ground = m_textArea;
    ground.DeflateRect(SelectionGap, SelectionGap);
    if (ground.Width() <= 0 || ground.Height() <= 0)
    {
        return;
    }
    if (focused)
    {
        dc.FillSolidRect(&ground, look.ground);
    }
    CString text;
    if (const CCustomComboLBox* const list = ListIfMade(); list != nullptr && index >= 0)
    {
        const WindowAlive alive(*this);
        list->GetText(index, text);
        if (!alive)
        {
            return;
        }
    }
    {
        const Selected font(dc, Font());
        const TextColor color(dc, look.text);
        const BackgroundMode transparent(dc, TRANSPARENT);
        CRect inside = ground;
        inside.DeflateRect(metrics::ListRowMargin - SelectionGap, 0);
        dc.DrawText(text, &inside, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    if (focused && !COnBoardUIGeneral::InOnBoardMode())
    {
        dc.DrawFocusRect(&ground);
    }
}
