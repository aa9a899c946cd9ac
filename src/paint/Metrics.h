#pragma once

// Measures by role, in pixels unless said otherwise.

namespace metrics {

// The on-board scroll band. A bar is thicker than the band by the border it is drawn over.
constexpr int ScrollBand = 52;
constexpr int Border = 3;
constexpr int ScrollBar = ScrollBand + Border;

// Inside-frame width of the on-board outline pen.
constexpr int OutlineWidth = 3;

// The caption of an on-board dialog: from either edge to its text, and how far above its bottom
// edge the line across it runs.
constexpr int CaptionMargin = 6;
constexpr int CaptionLineRise = 2;

// What the platform adds to a sizing frame beyond its metrics.
constexpr int SizingPad = 4;

// How much of a dialog stays in the host's area when it is dragged out of it.
constexpr int DialogGrip = 52;

// From the left edge of a check box or radio button to its mark, and from the mark to the caption.
constexpr int MarkInset = 3;
constexpr int MarkGap = 8;

// Both sides of a radio button's circle.
constexpr int RadioMark = 22;

// From either edge of a list's row to its text.
constexpr int ListRowMargin = 4;

// The check box of a check list's row: from the row's edges to it, how far its target reaches from
// the left edge beyond its width, and where the text begins, measured likewise.
constexpr int RowCheckInset = 1;
constexpr int RowCheckReach = 2;
constexpr int RowCheckText = 3;

// Rows of trees and of the lists that combos drop, buttons of tool bars: what a finger hits, 13.8 mm
// at 96 dots per inch. A tree's level is indented as far, so that the mark that opens a branch can
// be hit, too. The mark is a triangle of this height and half its width.
constexpr int FingerRow = 52;
constexpr int BranchMark = 14;
constexpr int TreeTextMargin = 2; // from either edge of the label to its text

// The line of a rubber band.
constexpr int RubberBandLine = 1;
constexpr int RubberBandLineOnBoard = 2;
// From the text of a report list's heading to its right edge, past the sort arrow.
constexpr int HeaderArrowRoom = 23;

// Scale of a window's children on entering an on-board mode, and how much more they widen.
constexpr double OnBoardScale = 1.7;
constexpr double OnBoardWidening = 1.32;

// Parts of the faux bar, as shares of its thickness. 31/52 makes a button 31 long in the band.
constexpr double BarButtonShare = 31.0 / 52.0;
constexpr double BarThumbShare = 0.75;
constexpr int BarThumbInset = 4;   // thumb to either long edge, on-board
constexpr int TroughHitMargin = 3; // long edges of the trough that take no press

// Arrow of a painted button: fixed, whatever the size of the button.
constexpr int ArrowLength = 32;
constexpr int ArrowDepth = 16;

} // namespace metrics
