#pragma once

// Where the parts of a message box lie: pure functions of measures. All lengths are pixels.

#include "AppMode.h"
#include "dialogs/DialogGeometry.h"
#include "modes/Rounding.h"
#include "paint/Metrics.h"

#include <afxwin.h>

#include <algorithm>

namespace windows {

constexpr int MessageIconSize = 48; // both ways, in every mode

// The lengths that are given in dialog units.
struct MessageUnits
{
    CSize button;
    CSize margin;
    CSize spacing;
    CSize text; // the least that is left of the text

    // unit is what an average character of the standard mode measures.
    static MessageUnits Of(const CSize& unit, bool onBoard)
    {
        const double scale = onBoard ? metrics::OnBoardScale : 1.0;
        const auto size = [&](int across, int down) {
            return CSize(Truncated(::MulDiv(across, unit.cx, dialogs::UnitsAcross) * scale),
                         Truncated(::MulDiv(down, unit.cy, dialogs::UnitsDown) * scale));
        };
        return {size(50, 14), size(7, 7), size(4, 4), size(50, 8)};
    }

    bool operator==(const MessageUnits&) const = default;
};

// What a box is laid out for.
struct MessageContent
{
    CSize text; // as measured
    int titleWidth = 0;
    int buttons = 0;
    CSize area;  // the most that the box may take, frame and all
    CSize frame; // what caption and frame add to the client area
    int captionHeight = 0;
    int lineHead = 0; // rows of the text's line above its letters
    int barWidth = 0; // of the platform's vertical scroll bar
};

// How large a box is to be. The client area may become up to GrowthSlack larger.
struct MessageSize
{
    CSize client;
    CSize text;
    int top = 0;          // of the icon
    bool scrolls = false; // the text does not fit
};

constexpr int GrowthSlack = 3;

// The width of a row of buttons: as many gaps as buttons, if there is more than one.
inline CSize MessageButtonsSize(const MessageUnits& units, int buttons)
{
    const int gaps = buttons > 1 ? buttons : 0;
    return CSize(buttons * units.button.cx + gaps * units.spacing.cy, units.button.cy);
}

// By how much the caption band of the on-board modes is higher than the system's caption.
constexpr int CaptionRise(int captionHeight)
{
    return Truncated(captionHeight * (metrics::OnBoardScale - 1));
}

// By how much a text lower than the icon stands below the icon's top: beside its middle.
constexpr int BesideIcon(int textHeight)
{
    return std::max((MessageIconSize - textHeight) / 2, 0);
}

// The top of the icon: the margin less that rise, which may well be some rows above the client
// area. At higher resolutions captions are higher than margins follow, and then the letters of a
// text that begins where the icon does would lie under the caption: of such a text only the rows
// above its letters ever do.
inline int MessageTop(const MessageUnits& units, int captionHeight, int textHeight, int lineHead)
{
    return std::max<int>(units.margin.cy - CaptionRise(captionHeight),
                         -lineHead - BesideIcon(textHeight));
}

// By how much a length has to be shortened for an area. One that is too long ends a little short of
// the area. It keeps its smallest value, whatever the area.
constexpr int MessageExcess(int length, int smallest, int area, int shortOfArea, int frame)
{
    LONGLONG left = length;
    if (left > area)
    {
        left = LONGLONG(area) - shortOfArea;
    }
    left = std::min(left, LONGLONG(area) - frame - GrowthSlack);
    return int(length - std::max<LONGLONG>(left, std::min(length, smallest)));
}

inline MessageSize SizeMessageBox(const MessageUnits& units, const MessageContent& content)
{
    constexpr int scrolledExtra = 78;
    const CSize shortOfArea(25, 14);

    MessageSize size;
    size.text = content.text;
    // Beside the icon there is always room.
    const int limit = std::max(int(LONGLONG(content.area.cy) * 3 / 5), MessageIconSize);
    if (size.text.cy < limit)
    {
        size.text += CSize(content.barWidth, 1);
    }
    else
    {
        size.text = CSize(size.text.cx + scrolledExtra, limit);
        size.scrolls = true;
    }

    const CSize buttons = MessageButtonsSize(units, content.buttons);
    size.top = MessageTop(units, content.captionHeight, size.text.cy, content.lineHead);
    // What the icon's top keeps of the caption's rise has to be made room for below it.
    const int lowered = size.top - (int(units.margin.cy) - CaptionRise(content.captionHeight));
    const CSize around(2 * units.margin.cx + units.spacing.cx,
                       3 * units.margin.cy / 2 + buttons.cy + 2 * units.spacing.cy +
                           CaptionRise(content.captionHeight) + lowered);
    // It is meant that this gap across is as wide as the gaps down.
    const int beside = units.spacing.cy + MessageIconSize;
    const CSize inside(std::max({content.titleWidth, int(buttons.cx), int(size.text.cx) + beside}),
                       std::max(int(size.text.cy), MessageIconSize));
    size.client = inside + around;
    const CSize smallest = CSize(std::max(int(buttons.cx), int(units.text.cx) + beside),
                                 std::max(int(units.text.cy), MessageIconSize)) +
                           around;

    const CSize excess(MessageExcess(size.client.cx, smallest.cx, content.area.cx, shortOfArea.cx,
                                     content.frame.cx),
                       MessageExcess(size.client.cy, smallest.cy, content.area.cy, shortOfArea.cy,
                                     content.frame.cy));
    size.client -= excess;
    // What the text takes of the excess: all of it, unless something else is the widest.
    const CSize room = size.client - around - CSize(beside, 0);
    size.text = CSize(std::min(size.text.cx, room.cx), std::min(size.text.cy, room.cy));
    // Lines that became too long are broken again, by the edit, into more of them.
    size.scrolls = size.scrolls || size.text.cx < content.text.cx || size.text.cy < content.text.cy;
    return size;
}

// By how much every side of a window moves outwards to give it a client area of this size.
inline CSize MessageGrowth(const CSize& wanted, const CSize& client)
{
    return CSize((wanted.cx - client.cx) / 2 + 1, (wanted.cy - client.cy) / 2 + 1);
}

// The places of the parts in client coordinates.
struct MessagePlaces
{
    CRect icon;
    CRect text;
    CRect firstButton;
    int buttonStep = 0; // from one button to the next

    CRect Button(int index) const { return firstButton + CPoint(index * buttonStep, 0); }
};

inline MessagePlaces PlaceMessageParts(const MessageUnits& units, const MessageSize& size,
                                       const CSize& client, int captionHeight, int buttons)
{
    MessagePlaces places;
    places.icon = CRect(CPoint(units.margin.cx, size.top), CSize(MessageIconSize, MessageIconSize));
    places.text = CRect(CPoint(places.icon.right + units.margin.cx,
                               places.icon.top + BesideIcon(int(size.text.cy))),
                        size.text);

    const CSize row = MessageButtonsSize(units, buttons);
    const int bottom = int(client.cy - units.margin.cy) - dialogs::BandHeight(captionHeight);
    places.firstButton =
        CRect(CPoint((size.client.cx - row.cx) / 2 - 1, bottom - row.cy), units.button);
    places.buttonStep = units.button.cx + units.spacing.cy;
    return places;
}

// What the decision about a box's layout rests on, beside the system's metrics.
struct MessagePremises
{
    APPMODE mode;
    CString text; // in lines
    CString title;
    int buttons;
    MessageUnits units;
    CSize area;
    int captionHeight;
    int lineHead;
    CSize window; // that the box has so far
    CSize client;

    bool operator==(const MessagePremises&) const = default;
};

// The layout that was decided on.
struct MessageLayout
{
    MessagePremises premises;
    MessageSize size;
    CRect window; // on the screen
};

// A window's place with its middle over another rectangle's.
inline CRect MessageCentred(const CSize& size, const CRect& over)
{
    const CPoint middle = over.CenterPoint();
    return CRect(CPoint(middle.x - size.cx / 2, middle.y - size.cy / 2), size);
}

// A place moved into bounds; its upper left corner stays in them whatever its size.
inline CRect MessageMovedInto(const CRect& place, const CRect& bounds)
{
    const auto moved = [](int from, int length, int first, int end) {
        return std::max(std::min(from, end - length), first);
    };
    return CRect(CPoint(moved(place.left, place.Width(), bounds.left, bounds.right),
                        moved(place.top, place.Height(), bounds.top, bounds.bottom)),
                 place.Size());
}

} // namespace windows
