#pragma once

// Where the parts of a button lie, free of windows and device contexts.

#include "paint/Metrics.h"

#include <afxwin.h>

namespace buttons {

// The part of a check box's or radio button's client area that mark and caption share.
inline CRect ItemArea(const CRect& client)
{
    return CRect(client.left + 1, client.top + 1, client.right, client.bottom);
}

// The square of a check box for a line of text of that height. Meant: the sides are the item's
// height, so that only an item some pixels lower than its text shows the whole square; in a higher
// one the square goes on below the edge.
inline CRect CheckSquare(const CRect& item, int lineHeight)
{
    CRect mark(item);
    mark.left += metrics::MarkInset;
    mark.OffsetRect(0, (item.Height() - lineHeight) / 2 + metrics::MarkInset);
    mark.right = mark.left + mark.Height();
    return mark;
}

// The square about a radio button's circle.
inline CRect RadioSquare(const CRect& item)
{
    const int top = item.top + (item.Height() - metrics::RadioMark) / 2;
    return CRect(CPoint(item.left + metrics::MarkInset, top),
                 CSize(metrics::RadioMark, metrics::RadioMark));
}

// What is left for the caption beside a mark.
inline CRect CaptionArea(const CRect& item, const CRect& mark)
{
    return CRect(mark.right + metrics::MarkGap, item.top, item.right, item.bottom);
}

// A measured caption, moved to the middle of the item.
inline CRect CentredCaption(const CRect& measured, const CRect& item)
{
    return measured + CPoint(0, (item.Height() - measured.Height()) / 2);
}

// The focus frame round a caption. Its bottom edge comes up under the letters: the measured line
// has room for what hangs below them.
inline CRect FocusFrame(const CRect& caption)
{
    return CRect(caption.left - 1, caption.top - 1, caption.right + 1, caption.bottom + 1 - 2);
}

inline UINT MarkCaptionFormat(DWORD style)
{
    return (style & BS_MULTILINE) != 0 ? DT_WORDBREAK : DT_SINGLELINE | DT_VCENTER;
}

inline UINT PushCaptionFormat(DWORD style)
{
    UINT format = (style & BS_MULTILINE) != 0 ? DT_WORDBREAK : DT_SINGLELINE;
    switch (style & BS_VCENTER)
    {
    case BS_TOP:
        format |= DT_TOP;
        break;
    case BS_BOTTOM:
        format |= DT_BOTTOM;
        break;
    default:
        format |= DT_VCENTER;
        break;
    }
    switch (style & BS_CENTER)
    {
    case BS_LEFT:
        format |= DT_LEFT;
        break;
    case BS_RIGHT:
        format |= DT_RIGHT;
        break;
    default:
        format |= DT_CENTER;
        break;
    }
    return format;
}

} // namespace buttons
