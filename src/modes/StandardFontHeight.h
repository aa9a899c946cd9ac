#pragma once

// The height of the standard mode's fonts, in tenths of a point, on a screen of so many dots per
// inch; as it was where the screen does not tell (0). Shrinks as the resolution grows: the standard
// fonts were tuned with this very formula.
constexpr int StandardFontHeight(int dotsPerInch, int before)
{
    return dotsPerInch == 0 ? before : 7920 / dotsPerInch + 1;
}
