// The list box: its frame and bars, painted.

#include "CustomListBox.h"

#include "lists/ListBoxBars.h"
#include "paint/Palette.h"

// Painting --------------------------------------------------------------------------------------

void CCustomListBox::OnNcPaint()
{
    m_bars->NcPaint(*GetCurrentMessage());
}

void CCustomListBox::DrawOBBorders()
{
    m_bars->DrawBorder(m_OutlinePen, ::GetStockObject(NULL_BRUSH), palette::Panel);
}

void CCustomListBox::DrawOBScrollBars()
{
    DrawOBVScrollBar();
    DrawOBHScrollBar();
}

void CCustomListBox::DrawOBVScrollBar()
{
    if (!m_vBarSuppressed)
    {
        m_bars->DrawBar(SB_VERT);
    }
}

void CCustomListBox::DrawOBHScrollBar()
{
    m_bars->DrawBar(SB_HORZ);
}

void CCustomListBox::OnEnable(BOOL enable)
{
    m_bars->Enable(enable != FALSE);
}

void CCustomListBox::OnUpdateUIState(UINT action, UINT element)
{
    CListBox::OnUpdateUIState(action, element);
}
