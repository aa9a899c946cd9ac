#include "FauxScrollBar.h"

#include "OnBoardUIGeneral.h"
#include "paint/GdiGuards.h"
#include "paint/Palette.h"
#include "scroll/FauxScrollGeometry.h"
#include "scroll/PartObjects.h"

using scroll::Saturated;
using scroll::Span;
using scroll::SpanAlong;

namespace {

// Where the thumb may be: from the first button's end to the second button's start.
Span TrackBetween(int axis, const CFauxButton& first, const CFauxButton& second)
{
    return {SpanAlong(axis, first.GetArea()).end, SpanAlong(axis, second.GetArea()).start};
}

} // namespace

int CFauxScrollBar::Range::Clamp(LONGLONG position) const
{
    return Saturated(std::max<LONGLONG>(std::min<LONGLONG>(position, maximum), minimum));
}

CFauxScrollBar::CFauxScrollBar(int orientation)
    : m_orientation(orientation == SB_HORZ ? SB_HORZ : SB_VERT)
    , m_firstButton(true, m_orientation)
    , m_secondButton(false, m_orientation)
    , m_thumb(m_orientation)
    , m_lastHit(PRESSED_NONE)
    , m_shown(TRUE)
    , m_position(0)
    , m_page(1)
    , m_pixelsPerStep(0.0)
    , m_colorsVersion(0)
{
    CreateOnBoardOutlinePen(m_outlinePen, palette::Outline);
    RemakeBrush(m_brush1, palette::Trough);
    RemakeBrush(m_brush2, palette::TroughDisabled);
    RemakeBrush(m_brush3, palette::TroughHeld);
}

CFauxScrollBar::~CFauxScrollBar() = default;

int CFauxScrollBar::SetScrollPos(int position, int)
{
    const int previous = m_position;
    m_position = m_range.Clamp(position);
    UpdateThumbDrawingPos();
    return previous;
}

int CFauxScrollBar::IncrementScrollPos(int amount)
{
    return SetScrollPos(Saturated(LONGLONG{m_position} + amount));
}

void CFauxScrollBar::GetScrollRange(int* minimum, int* maximum) const
{
    if (minimum == nullptr || maximum == nullptr)
    {
        return;
    }
    *minimum = m_range.minimum;
    *maximum = m_range.maximum;
}

void CFauxScrollBar::SetScrollRange(int minimum, int maximum, int)
{
    if (minimum == m_range.minimum && maximum == m_range.maximum)
    {
        return; // hosts repeat their range in every paint, also while the thumb is dragged
    }
    m_range.minimum = minimum;
    m_range.maximum = maximum;
    m_position = m_range.Clamp(m_position);
    CalcScrollData();
    UpdateThumbDrawingPos();
}

int CFauxScrollBar::SetScrollInfo(SCROLLINFO* info, int redraw)
{
    // Meant: the flag shows or hides the bar, and not its parts.
    m_shown = redraw;
    if (info == nullptr)
    {
        return m_position;
    }
    if ((info->fMask & SIF_PAGE) != 0)
    {
        SetPageSize(Saturated(LONGLONG{info->nPage}), redraw);
    }
    if ((info->fMask & SIF_POS) != 0)
    {
        SetScrollPos(info->nPos, redraw);
    }
    if ((info->fMask & SIF_RANGE) != 0)
    {
        SetScrollRange(info->nMin, info->nMax, redraw);
    }
    if ((info->fMask & SIF_TRACKPOS) != 0)
    {
        SetScrollPos(info->nTrackPos, redraw);
    }
    return m_position;
}

int CFauxScrollBar::GetScrollInfo(SCROLLINFO* info, UINT mask)
{
    if (info == nullptr)
    {
        return FALSE;
    }
    if ((mask & SIF_RANGE) != 0)
    {
        info->nMin = m_range.minimum;
        info->nMax = m_range.maximum;
    }
    if ((mask & SIF_PAGE) != 0)
    {
        info->nPage = static_cast<UINT>(std::max(0, m_page));
    }
    if ((mask & SIF_POS) != 0)
    {
        info->nPos = m_position;
    }
    if ((mask & SIF_TRACKPOS) != 0)
    {
        info->nTrackPos = m_position;
    }
    return TRUE;
}

int CFauxScrollBar::GetPageSize() const
{
    return m_page;
}

int CFauxScrollBar::SetPageSize(int page, int)
{
    const int previous = m_page;
    m_page = page;
    return previous;
}

int CFauxScrollBar::ShowScrollBar() const
{
    return m_shown;
}

void CFauxScrollBar::ShowScrollBar(int show)
{
    m_shown = show;
    m_firstButton.SetShow(show);
    m_secondButton.SetShow(show);
    m_thumb.SetShow(show);
}

void CFauxScrollBar::HandleScroll(UINT scrollCode, UINT, CScrollBar*)
{
    const LONGLONG page = std::max(0, m_page); // a negative page would turn the direction round
    LONGLONG position = m_position;
    switch (scrollCode)
    {
    case SB_LINEUP:
        position -= 1;
        break;
    case SB_LINEDOWN:
        position += 1;
        break;
    case SB_PAGEUP:
        position -= page;
        break;
    case SB_PAGEDOWN:
        position += page;
        break;
    case SB_TOP:
        position = m_range.minimum;
        break;
    case SB_BOTTOM:
        position = m_range.maximum;
        break;
    default:
        // The thumb codes end here: placing the thumb would take back what a drag has moved it
        // within its step.
        return;
    }
    m_position = m_range.Clamp(position);
    UpdateThumbDrawingPos();
}

void CFauxScrollBar::ReDraw(CDC& dc, ePRESSED pressed, int enabled)
{
    if (m_shown == 0 || m_area.IsRectEmpty())
    {
        return;
    }
    const APPMODE mode = COnBoardUIGeneral::GetAppMode();
    if (mode == STD)
    {
        ReDrawStd(dc, pressed, enabled);
    }
    else
    {
        ReDrawOB(dc, pressed, enabled);
    }
    m_firstButton.ReDraw(dc, pressed == PRESSED_FIRST, enabled, mode);
    m_secondButton.ReDraw(dc, pressed == PRESSED_SECOND, enabled, mode);
    m_thumb.ReDraw(dc, pressed == PRESSED_THUMB, enabled, mode);
}

void CFauxScrollBar::SetArea(const CRect& area)
{
    m_area = area;
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        CalcOBSpacing();
    }
    else
    {
        CalcStdSpacing();
    }
}

const CRect& CFauxScrollBar::GetArea() const
{
    return m_area;
}

int CFauxScrollBar::SetHeight(int height, bool fromTop)
{
    const int previous = Saturated(LONGLONG{m_area.bottom} - m_area.top);
    CRect area = m_area;
    if (fromTop)
    {
        area.bottom = Saturated(LONGLONG{area.top} + height);
    }
    else
    {
        area.top = Saturated(LONGLONG{area.bottom} - height);
    }
    SetArea(area);
    return previous;
}

UINT CFauxScrollBar::GetHitTest(const CPoint& point)
{
    m_lastHit = PRESSED_NONE;
    if (!m_area.PtInRect(point))
    {
        return 0;
    }
    if (m_firstButton.GetArea().PtInRect(point))
    {
        m_lastHit = PRESSED_FIRST;
    }
    else if (m_secondButton.GetArea().PtInRect(point))
    {
        m_lastHit = PRESSED_SECOND;
    }
    else if (m_thumb.GetArea().PtInRect(point))
    {
        m_lastHit = PRESSED_THUMB;
    }
    else if (m_orientation == SB_HORZ)
    {
        HandleHorzTrough(point);
    }
    else
    {
        HandleVertTrough(point);
    }
    if (m_lastHit == PRESSED_NONE)
    {
        return 0;
    }
    return m_orientation == SB_HORZ ? HTHSCROLL : HTVSCROLL;
}

CFauxScrollBar::ePRESSED CFauxScrollBar::GetLastHit() const
{
    return m_lastHit;
}

void CFauxScrollBar::SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                               COLORREF c6)
{
    CreateOnBoardOutlinePen(m_outlinePen, c1);
    RemakeBrush(m_brush1, c2);
    RemakeBrush(m_brush2, c4);
    RemakeBrush(m_brush3, c3);
    m_firstButton.SetColors(c1, c2, c3, c4, c5, c6);
    m_secondButton.SetColors(c1, c2, c3, c4, c5, c6);
    m_thumb.SetColors(c1, c2, c3, c4, c5, c6);
    ++m_colorsVersion;
}

int CFauxScrollBar::IncrementScrollByPixels(int pixels)
{
    const LONGLONG steps = m_range.Steps();
    // A pointer that has not moved must not change the position: where a step is shorter than a
    // pixel, the centre of the thumb stands for several positions.
    if (steps <= 0 || pixels == 0)
    {
        return 0;
    }
    const bool horizontal = m_orientation == SB_HORZ;
    const Span track = TrackBetween(m_orientation, m_firstButton, m_secondButton);
    const Span before = SpanAlong(m_orientation, m_thumb.GetArea());
    const int moved = scroll::LimitedShift(before, track, pixels);
    m_thumb.ShiftArea(horizontal ? moved : 0, horizontal ? 0 : moved);

    const int firstCentre = Saturated(LONGLONG{track.start} + before.Length() / 2);
    const scroll::StepBands bands(firstCentre, m_pixelsPerStep, steps);
    LONGLONG band = bands.Find(horizontal ? m_thumb.GetHCenter() : m_thumb.GetVCenter());
    if (horizontal && SpanAlong(m_orientation, m_thumb.GetArea()).start <= track.start)
    {
        band = 0;
    }
    if (band >= 0)
    {
        // Bands count from 0 whatever the minimum is; the range then clamps.
        m_position = m_range.Clamp(band);
    }
    return moved;
}

double CFauxScrollBar::GetPixelsPerScroll() const
{
    const Span track = TrackBetween(m_orientation, m_firstButton, m_secondButton);
    const LONGLONG freeTrack =
        LONGLONG{track.end} - track.start - SpanAlong(m_orientation, m_thumb.GetArea()).Length();
    return scroll::PixelsPerStep(m_orientation, m_range.Steps(), freeTrack);
}

CRect CFauxScrollBar::GetPartArea(ePRESSED part) const
{
    switch (part)
    {
    case PRESSED_FIRST:
        return m_firstButton.GetArea();
    case PRESSED_SECOND:
        return m_secondButton.GetArea();
    case PRESSED_BEFORE_THUMB:
    case PRESSED_AFTER_THUMB:
        return TroughPart(part, metrics::TroughHitMargin);
    case PRESSED_THUMB:
        return m_thumb.GetArea();
    case PRESSED_NONE:
        break;
    }
    return m_area;
}

void CFauxScrollBar::UpdateThumbDrawingPos()
{
    if (m_orientation == SB_HORZ)
    {
        UpdateHorzThumbDrwPos();
    }
    else
    {
        UpdateVertThumbDrwPos();
    }
}

void CFauxScrollBar::HandleVertTrough(const CPoint& point)
{
    HandleTrough(point);
}

void CFauxScrollBar::HandleHorzTrough(const CPoint& point)
{
    HandleTrough(point);
}

void CFauxScrollBar::UpdateVertThumbDrwPos()
{
    PlaceThumb(SB_VERT);
}

void CFauxScrollBar::UpdateHorzThumbDrwPos()
{
    PlaceThumb(SB_HORZ);
}

void CFauxScrollBar::CalcOBSpacing()
{
    const scroll::BarLayout layout = scroll::OnBoardLayout(m_orientation, m_area);
    ApplySpacing(layout.first, layout.second, layout.thumb);
}

void CFauxScrollBar::CalcStdSpacing()
{
    const scroll::BarLayout layout = scroll::StandardLayout(m_orientation, m_area);
    ApplySpacing(layout.first, layout.second, layout.thumb);
}

void CFauxScrollBar::ReDrawOB(CDC& dc, ePRESSED pressed, int enabled)
{
    // Filled first: the outline leaves the corner pixels out.
    dc.FillRect(&m_area, enabled ? &m_brush1 : &m_brush2);
    DrawHeldTrough(dc, pressed, enabled, m_brush3);
    const Selected pen(dc, m_outlinePen);
    const Selected brush(dc, ::GetStockObject(NULL_BRUSH));
    dc.Rectangle(&m_area);
}

void CFauxScrollBar::ReDrawStd(CDC& dc, ePRESSED pressed, int enabled)
{
    // No outline: like the platform's bar, which is trough up to its edges.
    dc.FillRect(&m_area, enabled ? &m_brush3 : &m_brush2);
    DrawHeldTrough(dc, pressed, enabled, m_brush1);
}

void CFauxScrollBar::CalcScrollData()
{
    m_pixelsPerStep = GetPixelsPerScroll();
}

void CFauxScrollBar::ApplySpacing(const CRect& first, const CRect& second, const CRect& thumb)
{
    m_firstButton.SetArea(first);
    m_secondButton.SetArea(second);
    m_thumb.SetArea(thumb);
    CalcScrollData();
    UpdateThumbDrawingPos();
}

void CFauxScrollBar::HandleTrough(const CPoint& point)
{
    // The margins along the trough's long edges take no press: a touch on the outline is a miss.
    for (const ePRESSED part : {PRESSED_BEFORE_THUMB, PRESSED_AFTER_THUMB})
    {
        if (GetPartArea(part).PtInRect(point))
        {
            m_lastHit = part;
            return;
        }
    }
}

void CFauxScrollBar::PlaceThumb(int axis)
{
    const Span track = TrackBetween(axis, m_firstButton, m_secondButton);
    const Span place = scroll::ThumbAt(SpanAlong(axis, m_thumb.GetArea()), track, m_range.Steps(),
                                       m_position, m_pixelsPerStep);
    if (axis == SB_HORZ)
    {
        m_thumb.SetLeftRight(place.start, place.end);
    }
    else
    {
        m_thumb.SetTopBottom(place.start, place.end);
    }
}

// The trough on one side of the thumb, without a margin along its long edges.
CRect CFauxScrollBar::TroughPart(ePRESSED part, int margin) const
{
    const Span track = TrackBetween(m_orientation, m_firstButton, m_secondButton);
    const Span thumb = SpanAlong(m_orientation, m_thumb.GetArea());
    const Span along =
        part == PRESSED_BEFORE_THUMB ? Span{track.start, thumb.start} : Span{thumb.end, track.end};
    const Span across = scroll::Narrowed(scroll::SpanAcross(m_orientation, m_area), margin);
    return scroll::RectOf(m_orientation, along, across);
}

void CFauxScrollBar::DrawHeldTrough(CDC& dc, ePRESSED pressed, int enabled, CBrush& brush) const
{
    if (enabled && (pressed == PRESSED_BEFORE_THUMB || pressed == PRESSED_AFTER_THUMB))
    {
        const CRect held = TroughPart(pressed, 0);
        dc.FillRect(&held, &brush);
    }
}
