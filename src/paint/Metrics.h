#pragma once

// Measures by role, in pixels unless said otherwise.

namespace metrics {

// The on-board scroll band. A bar is thicker than the band by the border it is drawn over.
constexpr int ScrollBand = 52;
constexpr int Border = 3;
constexpr int ScrollBar = ScrollBand + Border;

// Inside-frame width of the on-board outline pen.
constexpr int OutlineWidth = 3;

// From either edge of a list's row to its text.
constexpr int ListRowMargin = 4;

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
