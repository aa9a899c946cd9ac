#include "Contrast.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

// A ground below this share of the strokes is a frame or a mark that they touch.
constexpr double LeastShare = 0.02;

double Linear(int component)
{
    const double value = component / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF color)
{
    return 0.2126 * Linear(GetRValue(color)) + 0.7152 * Linear(GetGValue(color)) +
           0.0722 * Linear(GetBValue(color));
}

} // namespace

double Contrast(COLORREF one, COLORREF other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

TextContrast FindTextContrast(const Pixels& withText, const Pixels& withBlanks)
{
    std::map<COLORREF, std::map<COLORREF, int>> grounds; // of each colour, with their pixels
    std::map<COLORREF, int> strokes;
    const int width = std::min(withText.Width(), withBlanks.Width());
    const int height = std::min(withText.Height(), withBlanks.Height());
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            const COLORREF text = withText.At(x, y);
            const COLORREF ground = withBlanks.At(x, y);
            if (text != ground)
            {
                ++strokes[text];
                ++grounds[text][ground];
            }
        }
    }
    const auto most =
        std::max_element(strokes.begin(), strokes.end(), [](const auto& one, const auto& other) {
            return one.second < other.second;
        });
    TextContrast found;
    if (most == strokes.end())
    {
        return found;
    }
    found.text = most->first;
    for (const auto& [ground, pixels] : grounds[found.text])
    {
        const double ratio = Contrast(found.text, ground);
        if (pixels >= LeastShare * most->second && (found.ratio == 0 || ratio < found.ratio))
        {
            found.ground = ground;
            found.ratio = ratio;
        }
    }
    return found;
}
