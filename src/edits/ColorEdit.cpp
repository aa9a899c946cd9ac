#include "ColorEdit.h"

#include "modes/TakenOver.h"

IMPLEMENT_DYNAMIC(ColorEdit, CEdit)

BEGIN_MESSAGE_MAP(ColorEdit, CEdit)
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

ColorEdit::ColorEdit()
    : m_backgroundColor(::GetSysColor(COLOR_3DFACE))
{
    EnableActiveAccessibility();
    m_brush.CreateSolidBrush(m_backgroundColor);
}

void ColorEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    ShowTakenOver(*this);
}

void ColorEdit::SetTextColor(COLORREF color)
{
    m_textColor = color;
    ShowColors();
}

void ColorEdit::SetBackgroundColor(COLORREF color)
{
    m_backgroundColor = color;
    m_brush.DeleteObject();
    m_brush.CreateSolidBrush(color);
    ShowColors();
}

void ColorEdit::ShowColors()
{
    if (GetSafeHwnd() != nullptr)
    {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
    }
}

HBRUSH ColorEdit::CtlColor(CDC* dc, UINT)
{
    if (dc != nullptr)
    {
        dc->SetBkColor(m_backgroundColor);
        dc->SetTextColor(m_textColor);
    }
    return m_brush;
}
