// Helpers that the library does not export; the tests build a copy of their own.
#include "paint/BackBuffer.cpp"
#include "scroll/BarPaint.cpp"
#include "scroll/NcBands.cpp"
