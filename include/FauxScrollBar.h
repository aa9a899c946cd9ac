#pragma once

#include "FauxScrollButton.h"
#include "FauxScrollThumb.h"

// A windowless scroll bar that a control paints into its own non-client area in place of the
// system's. It sends no messages: the control gives it an area, mirrors its scroll state into it,
// asks it what a point hits, applies scroll codes and reads the position back.
//
// Coordinates are those of the host's window. Sizes of buttons and thumb follow the area alone and
// are set for the display mode of the moment by SetArea, so a host sets the area again after a mode
// change.
//
// A host calls SetArea, SetScrollRange and SetScrollPos as its size and content change, and on a
// press, if the bar is shown, GetHitTest and GetLastHit: then HandleScroll with the code of the
// arrow or trough, or, while the thumb is held, IncrementScrollByPixels with the way that the
// pointer has gone. After either it takes GetScrollPos and paints.
//
// Ranges are not those of the platform's bars. They begin at 0: with another minimum thumb and
// drags go astray. The page is how far a press beside the thumb goes, and shortens no range. A drag
// ends one below the maximum. So a vertical range has a maximum one above the last position, to
// which the host clamps; that of a horizontal one is the last position, for which the host calls
// HandleScroll(SB_RIGHT) when a drag has brought the thumb to the end of the trough (GetPartArea).
// In a range of a single step nothing can be dragged.
class ONBOARDUI_API CFauxScrollBar
{
public:
    // Parts of the bar, as a hit test reports them.
    enum ePRESSED
    {
        PRESSED_NONE = 0,
        PRESSED_FIRST = 1,        // up or left button
        PRESSED_SECOND = 2,       // down or right button
        PRESSED_BEFORE_THUMB = 3, // trough: a page up or left
        PRESSED_AFTER_THUMB = 4,  // trough: a page down or right
        PRESSED_THUMB = 5,
    };

    // orientation: SB_HORZ or SB_VERT.
    explicit CFauxScrollBar(int orientation);
    CFauxScrollBar(const CFauxScrollBar&) = delete;
    CFauxScrollBar& operator=(const CFauxScrollBar&) = delete;
    virtual ~CFauxScrollBar();

    // Sets the position, clamped into the range, and moves the thumb onto it; the result is the
    // previous position. The redraw flags of this and the following operations change nothing: the
    // bar has no window, its host paints it.
    virtual int SetScrollPos(int position, int redraw = TRUE);
    // Moves the position by so many steps, as SetScrollPos does; gives the previous one.
    virtual int IncrementScrollPos(int amount);

    // Nothing when either pointer is null.
    virtual void GetScrollRange(int* minimum, int* maximum) const;

    // A maximum below the minimum leaves no steps. The position is clamped into the new range, and
    // step length and thumb follow at once; an unchanged range leaves the thumb where a drag has
    // put it.
    virtual void SetScrollRange(int minimum, int maximum, int redraw = TRUE);

    // Applies page, position, range and track position in this order, each by its bit in fMask, and
    // returns the position. The position is thus clamped by the range as it was: a host whose range
    // grows sets the range first. The redraw flag is meant to become the shown flag: with 0 the bar
    // stays hidden until the next call with 1 or ShowScrollBar(TRUE). Nothing more for null.
    virtual int SetScrollInfo(SCROLLINFO* info, int redraw = TRUE);

    // Fills the fields that mask asks for. 0 for a null pointer, otherwise non-zero.
    virtual int GetScrollInfo(SCROLLINFO* info, UINT mask = SIF_ALL);

    // @{
    // Page in scroll units; setting returns the previous page.
    virtual int GetPageSize() const;
    virtual int SetPageSize(int page, int redraw = TRUE);
    // @}

    // @{
    // Whether the bar is drawn. Setting passes the flag on to the buttons and the thumb.
    virtual int ShowScrollBar() const;
    virtual void ShowScrollBar(int show);
    // @}

    // Applies a scroll code (SB_LINEUP ...) to the position. The thumb codes change nothing: a drag
    // has moved position and thumb already. Only scrollCode is used.
    virtual void HandleScroll(UINT scrollCode, UINT position = 0, CScrollBar* bar = nullptr);

    // Paints the bar unless it is hidden; pressed is the part held down.
    virtual void ReDraw(CDC& dc, ePRESSED pressed, int enabled);

    // @{
    // The area, in pixels of the host's window. Setting it lays buttons and thumb out for the mode
    // of the moment.
    virtual void SetArea(const CRect& area);
    virtual const CRect& GetArea() const;
    // @}

    // Changes the height of the area, keeping its top (fromTop) or its bottom. The result is the
    // previous height.
    virtual int SetHeight(int height, bool fromTop);

    // @{
    // HTVSCROLL or HTHSCROLL when the point hits a part, otherwise 0; GetLastHit then tells the
    // part. A hidden bar is hit, too.
    virtual UINT GetHitTest(const CPoint& point);
    virtual ePRESSED GetLastHit() const;
    // @}

    // Recolours the bar (c1 outline, c2 trough, c4 disabled trough, c3 standard trough and held
    // trough) and passes all six on to buttons and thumb, which show few of them; see CFauxButton.
    virtual void SetColors(COLORREF c1, COLORREF c2, COLORREF c3, COLORREF c4, COLORREF c5,
                           COLORREF c6);

    // The position, in steps.
    int GetScrollPos() const { return m_position; }

    // Moves the thumb by pixels along the bar, as far as the trough goes, and takes the position
    // that its centre stands for, below the maximum. The result is how far it moved.
    int IncrementScrollByPixels(int pixels);

    // Length of one step in pixels; 0 with at most one step and where the thumb does not fit.
    double GetPixelsPerScroll() const;

    // Where a part is, in the area's coordinates; the whole area for PRESSED_NONE.
    CRect GetPartArea(ePRESSED part) const;

    // SB_HORZ or SB_VERT.
    int GetOrientation() const { return m_orientation; }

    // Whether buttons and thumb are drawn when the bar is.
    int GetPartsShown() const { return m_thumb.GetShow(); }

    // Counts the calls of SetColors: a painter tells by it that what it has drawn is out of date.
    unsigned GetColorsVersion() const { return m_colorsVersion; }

protected:
    // Puts the thumb where the position is.
    virtual void UpdateThumbDrawingPos();

    // @{
    // What a point that hit neither buttons nor thumb hits in the trough; sets the last hit.
    virtual void HandleVertTrough(const CPoint& point);
    virtual void HandleHorzTrough(const CPoint& point);
    // @}

    // @{
    // UpdateThumbDrawingPos for a bar of the one and of the other orientation.
    virtual void UpdateVertThumbDrwPos();
    virtual void UpdateHorzThumbDrwPos();
    // @}

    // @{
    // Size and place of buttons and thumb in the area, in the on-board look and in the standard
    // one.
    virtual void CalcOBSpacing();
    virtual void CalcStdSpacing();
    // @}

    // @{
    // Trough and outline in the on-board look and in the standard one; the parts are drawn on top
    // of it.
    virtual void ReDrawOB(CDC& dc, ePRESSED pressed, int enabled);
    virtual void ReDrawStd(CDC& dc, ePRESSED pressed, int enabled);
    // @}

    // Takes the step length from range and spacing. The band of pixels that belongs to a position
    // follows from it and is computed when asked for, so that a range of a million steps costs what
    // one of ten costs.
    void CalcScrollData();

    // A maximum below the minimum holds the minimum alone.
    struct Range
    {
        int minimum = 0;
        int maximum = 0;

        // The nearest position in the range.
        int Clamp(LONGLONG position) const;
        // How many there are, below 0 for none.
        LONGLONG Steps() const { return static_cast<LONGLONG>(maximum) - minimum; }
    };

    CPen m_outlinePen;
    CBrush m_brush1; // trough
    CBrush m_brush2; // disabled trough
    CBrush m_brush3; // standard trough; held part of the on-board trough
    int m_orientation;
    CRect m_area;
    CFauxScrollButton m_firstButton;
    CFauxScrollButton m_secondButton;
    CFauxScrollThumb m_thumb;
    ePRESSED m_lastHit;
    int m_shown;
    Range m_range;
    int m_position;
    int m_page;
    double m_pixelsPerStep;

private:
    void ApplySpacing(const CRect& first, const CRect& second, const CRect& thumb);
    void HandleTrough(const CPoint& point);
    void PlaceThumb(int axis);
    CRect TroughPart(ePRESSED part, int margin) const;
    void DrawHeldTrough(CDC& dc, ePRESSED pressed, int enabled, CBrush& brush) const;

    unsigned m_colorsVersion;
};
