#pragma once

// Colours by role. A control's painter names the role; a literal colour in a control is a mistake.

#include <windows.h>

namespace palette {

// Panels: the dark ground of on-board windows, buttons and statics.
constexpr COLORREF Panel = RGB(50, 50, 50);
constexpr COLORREF PanelText = RGB(230, 230, 230);
constexpr COLORREF Outline = RGB(70, 70, 70);
constexpr COLORREF PressedOutline = RGB(106, 104, 118);

// The on-board selection.
constexpr COLORREF Highlight = RGB(50, 80, 110);
constexpr COLORREF HighlightText = RGB(230, 230, 230);

// Rows of lists.
constexpr COLORREF ListTextDisabled = RGB(70, 70, 70);

// Scroll bar troughs.
constexpr COLORREF Trough = RGB(26, 26, 26);
constexpr COLORREF TroughDisabled = RGB(90, 90, 90);
constexpr COLORREF TroughHeld = RGB(100, 100, 100);

// Faces of painted parts.
constexpr COLORREF Face = RGB(160, 160, 160);
constexpr COLORREF FacePressed = RGB(100, 100, 100);
constexpr COLORREF FaceDisabled = RGB(90, 90, 90);
constexpr COLORREF FaceDark = RGB(26, 26, 26);
constexpr COLORREF Arrow = RGB(100, 100, 100);
constexpr COLORREF GlyphLine = RGB(0, 0, 0);
constexpr COLORREF ThumbGrip = RGB(100, 100, 100);
constexpr COLORREF ThumbGripLight = RGB(255, 255, 255);

// A face's gradient, from its first edge to its last.
struct Gradient
{
    COLORREF from;
    COLORREF to;
};
constexpr Gradient FaceGradient = {RGB(150, 150, 150), RGB(90, 90, 90)};
constexpr Gradient FacePressedGradient = {RGB(40, 40, 40), RGB(100, 100, 100)};
constexpr Gradient FaceDisabledGradient = {RGB(90, 90, 90), RGB(90, 90, 90)};

} // namespace palette
