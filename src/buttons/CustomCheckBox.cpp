#include "CustomCheckBox.h"

#include "OnBoardUI.h"
#include "buttons/ButtonLayout.h"
#include "modes/KeyState.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "paint/Rings.h"
#include "paint/SharedObjects.h"

IMPLEMENT_DYNAMIC(CCustomCheckBox, CCustomButton)

BEGIN_MESSAGE_MAP(CCustomCheckBox, CCustomButton)
    ON_WM_UPDATEUISTATE()
END_MESSAGE_MAP()

CPen CCustomCheckBox::m_penCheckEnabled;
CPen CCustomCheckBox::m_penCheckDisabled;

CCustomCheckBox::CCustomCheckBox()
{
    MakeControlPen(m_penCheckEnabled, palette::MarkEnabled.sign);
    MakeControlPen(m_penCheckDisabled, palette::MarkDisabled.sign);
}

CCustomCheckBox::~CCustomCheckBox() = default;

void CCustomCheckBox::HandleBMClick()
{
    const WindowAlive alive(*this);
    switch (m_check)
    {
    case BST_UNCHECKED:
    case BST_INDETERMINATE:
        ChangeCheck(BST_CHECKED);
        break;
    case BST_CHECKED:
        ChangeCheck(BST_UNCHECKED);
        break;
    default:
        break; // a host's own state stays
    }
    // Meant: a click tells the parent here and once more in the handling that all buttons share; a
    // key tells it only here.
    if (alive)
    {
        NotifyParentClicked();
    }
}

void CCustomCheckBox::HandleKeyDown(UINT key, UINT, UINT flags)
{
    if (key == VK_SPACE && (flags & WasDownBefore) == 0) // held, it would flicker
    {
        ClickByKey();
    }
}

void CCustomCheckBox::DrawOB(CDC& dc)
{
    DrawChoice(dc, [&](const CRect& item, CRect& mark) { DrawCheckBox(dc, item, mark); });
}

void CCustomCheckBox::DrawCheckBox(CDC& dc, const CRect& item, CRect& mark)
{
    TEXTMETRIC text = {};
    dc.GetTextMetrics(&text);
    mark = buttons::CheckSquare(item, int(text.tmHeight + text.tmExternalLeading));

    const bool enabled = IsWindowEnabled();
    const palette::Mark& colors = enabled ? palette::MarkEnabled : palette::MarkDisabled;
    dc.FillSolidRect(&mark, colors.face);
    const CRect inner = DrawRings(dc, mark, colors.rim, colors.light);
    if (m_check != BST_UNCHECKED)
    {
        const Selected pen(dc, enabled ? m_penCheckEnabled : m_penCheckDisabled);
        dc.MoveTo(inner.left + 1, inner.top + 1);
        dc.LineTo(inner.right - 2, inner.bottom - 2);
        dc.MoveTo(inner.left + 1, inner.bottom - 2);
        dc.LineTo(inner.right - 2, inner.top + 1);
    }
}
