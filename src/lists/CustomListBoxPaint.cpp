// The list box: its frame and bars, painted.

#include "CustomListBox.h"

#include "OnBoardUIGeneral.h"
#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"
#include "paint/Metrics.h"
#include "paint/Palette.h"
#include "scroll/BarPaint.h"
#include "scroll/NcBands.h"

// Painting --------------------------------------------------------------------------------------

void CCustomListBox::OnNcPaint()
{
    const WindowAlive alive(*this);
    const auto updated = reinterpret_cast<HRGN>(GetCurrentMessage()->wParam);
    const bool onBoard = FollowMode();
    if (!alive)
    {
        return;
    }
    if (!onBoard)
    {
        Default();
        return;
    }
    if (m_resizePending)
    {
        ResizeOBScrollBars();
    }
    if (alive && scroll::TouchesFrame(*this, updated))
    {
        m_vPainter->Invalidate();
        m_hPainter->Invalidate();
        DrawOBBorders();
        DrawOBScrollBars();
    }
}

void CCustomListBox::DrawOBBorders()
{
    CWindowDC dc(this);
    CRect frame;
    GetWindowRect(&frame);
    frame.OffsetRect(-frame.TopLeft());
    // Only round the client area: a frame narrower than the pen must not be painted over rows.
    dc.ExcludeClipRect(scroll::ClientRectInWindow(*this));
    for (const int axis : {SB_VERT, SB_HORZ})
    {
        if (Needed(axis) && !(axis == SB_VERT && m_vBarSuppressed))
        {
            dc.ExcludeClipRect(Bar(axis).GetArea());
        }
    }
    dc.FillSolidRect(frame, palette::Outline);
    {
        const Selected pen(dc, m_OutlinePen);
        const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
        dc.Rectangle(frame);
    }
    if (m_vBarNeeded && m_hBarNeeded)
    {
        // Where the two bands meet belongs to neither bar.
        CRect corner(m_vBar.GetArea().left, m_hBar.GetArea().top, frame.right, frame.bottom);
        corner.DeflateRect(metrics::Border, metrics::Border);
        dc.FillSolidRect(corner, palette::Panel);
    }
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
        DrawBar(SB_VERT);
    }
}

void CCustomListBox::DrawOBHScrollBar()
{
    DrawBar(SB_HORZ);
}

void CCustomListBox::DrawBar(int axis)
{
    if (m_onBoard && COnBoardUIGeneral::InOnBoardMode() && GetSafeHwnd() != nullptr)
    {
        scroll::BarPainter& painter = axis == SB_VERT ? *m_vPainter : *m_hPainter;
        painter.Draw(*this, Bar(axis), m_tracking ? Pressed(axis) : CFauxScrollBar::PRESSED_NONE);
    }
}

void CCustomListBox::OnEnable(BOOL enable)
{
    const WindowAlive alive(*this);
    if (!enable)
    {
        EndTracking();
    }
    CListBox::OnEnable(enable);
    if (alive && FollowMode())
    {
        DrawOBScrollBars();
    }
}

void CCustomListBox::OnUpdateUIState(UINT action, UINT element)
{
    CListBox::OnUpdateUIState(action, element);
}
