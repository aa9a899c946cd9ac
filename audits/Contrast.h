#pragma once

#include "catalog/Pixels.h"

// How well a text can be told from what it is drawn on.
struct TextContrast
{
    COLORREF text = 0;
    COLORREF ground = 0; // where it is hardest to read
    double ratio = 0;    // 1 to 21; 0: there is no text
};

// The contrast ratio of two colours as the accessibility guidelines for web content define it:
// relative luminances of sRGB, each with 0.05 of stray light.
double Contrast(COLORREF one, COLORREF other);

// Of the text that one picture shows and the other, of the same window with blanks for it, does
// not. The text's colour is what most of the pixels that differ have, which is that of the strokes
// and not of their smoothed edges; its ground is what the other picture has in their places.
TextContrast FindTextContrast(const Pixels& withText, const Pixels& withBlanks);
