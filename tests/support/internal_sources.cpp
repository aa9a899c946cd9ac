// Helpers that the library does not export; the tests build a copy of their own.
// NOLINTBEGIN(bugprone-suspicious-include): that is what is meant here
#include "paint/BackBuffer.cpp"
#include "scroll/BarPaint.cpp"
#include "scroll/NcBands.cpp"
// NOLINTEND(bugprone-suspicious-include)
