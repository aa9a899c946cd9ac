#pragma once

// Colours by role. A control's painter names the role; a literal colour in a control is a mistake.

#include <windows.h>

namespace palette {

// Panels: the dark ground of on-board windows, buttons and statics.
constexpr COLORREF Panel = RGB(50, 50, 50);
constexpr COLORREF PanelText = RGB(230, 230, 230);
constexpr COLORREF Outline = RGB(70, 70, 70);
constexpr COLORREF PressedOutline = RGB(106, 104, 118);

// Captions and frames of dialogs.
constexpr COLORREF Caption = RGB(70, 90, 110);
constexpr COLORREF CaptionInactive = RGB(100, 100, 100);

// Edits and list boxes on a dialog.
constexpr COLORREF Field = RGB(180, 180, 180);
constexpr COLORREF FieldText = RGB(26, 26, 26);
constexpr COLORREF FieldDisabled = RGB(100, 100, 100);
constexpr COLORREF FieldTextDisabled = RGB(70, 70, 70);

// Areas that are marked while a layout is tuned.
constexpr COLORREF MarkRed = RGB(255, 0, 0);
constexpr COLORREF MarkGreen = RGB(0, 255, 0);
constexpr COLORREF MarkBlue = RGB(0, 0, 255);

// The on-board selection.
constexpr COLORREF Highlight = RGB(50, 80, 110);
constexpr COLORREF HighlightText = RGB(230, 230, 230);

// Buttons and their captions.
constexpr COLORREF ButtonText = RGB(230, 230, 230);
constexpr COLORREF ChoiceTextDisabled = RGB(90, 90, 90); // check boxes and radio buttons
constexpr COLORREF PushTextDisabled = RGB(70, 70, 70);
constexpr COLORREF RadioDot = RGB(70, 70, 70);

// A sunken mark: the square of a check box, the circle of a radio button.
struct Mark
{
    COLORREF face;
    COLORREF rim;   // top and left
    COLORREF light; // bottom and right
    COLORREF sign;  // cross or dot
};
constexpr Mark MarkEnabled = {RGB(180, 180, 180), RGB(93, 93, 93), RGB(220, 220, 220),
                              RGB(26, 26, 26)};
constexpr Mark MarkDisabled = {RGB(100, 100, 100), RGB(90, 90, 90), RGB(130, 130, 130),
                               RGB(70, 70, 70)};

// Group boxes and the border of statics.
constexpr COLORREF GroupOutline = RGB(60, 60, 60);
constexpr COLORREF StaticBorder = RGB(70, 70, 70);

// Rows of lists.
constexpr COLORREF ListTextDisabled = RGB(70, 70, 70);
constexpr COLORREF CheckArea = RGB(26, 26, 26); // behind the mark of a check list's row

// Trees lie on the ground of fields and lists. The mark opens and closes a branch.
constexpr COLORREF BranchMark = RGB(26, 26, 26);
constexpr COLORREF BranchMarkDisabled = RGB(70, 70, 70);
constexpr COLORREF RubberBand = RGB(26, 26, 26);

// Report lists: where the bands of both bars meet, and the header, whose ground is a face's.
constexpr COLORREF ListCorner = RGB(80, 80, 80);
constexpr COLORREF HeaderText = RGB(26, 26, 26);
constexpr COLORREF SortArrow = RGB(192, 192, 192);

// Borders of edits, by state: the left and upper edges, and the right and lower ones.
constexpr COLORREF EditEdgeLit = RGB(93, 93, 93);
constexpr COLORREF EditEdgeShade = RGB(220, 220, 220);
constexpr COLORREF EditEdgeReadOnly = RGB(70, 70, 70);
constexpr COLORREF EditEdgeLitDisabled = RGB(90, 90, 90);
constexpr COLORREF EditEdgeShadeDisabled = RGB(130, 130, 130);
constexpr COLORREF EditPrompt = RGB(119, 121, 118);

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
