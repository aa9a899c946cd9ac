#pragma once

#include "paint/GdiGuards.h"

#include <afxwin.h>

#include <array>
#include <string_view>

namespace windows {

bool VisualStyles();

// The rows of a font's lines above its letters.
int LineHead(HFONT font);

// Measures text in the font that a message box's sizes are based on: the on-board one, or in the
// standard mode that of a fresh device context.
class TextMeasure
{
public:
    TextMeasure();

    // The pixels of a text of lines, at least so wide. It is meant that a text of several lines
    // counts one more, as room below it, and that what ends a line is measured with it.
    CSize Lines(std::string_view text, int width);

    // The width of a title.
    int Title(const CString& title);

private:
    // The widths of the characters that are the same in all code pages. They add up to a text's.
    using Widths = std::array<int, 128>;

    CSize Extent(std::string_view text);
    Widths CharacterWidths();

    class LargestPiece;

    CDC& m_dc;
    Selected m_font;
};

} // namespace windows
