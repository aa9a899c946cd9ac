#include "KnownShortfalls.h"

#include <algorithm>
#include <iterator>

namespace {

struct Known
{
    std::string_view control; // empty: any
    std::string_view part;    // likewise
    Shortfall shortfall;
};

// The gradient of a face is the look of every painted part; text in the middle of it stands on its
// lighter half.
Known Texts[] = {
    {"push button", "", {"gradient of a face", 3.3}},
    {"message box", "Button", {"gradient of a face", 2.9}},
    {"report list", "first cell", {"cells after the highlight; a host may select full rows", 1.6}},
    {"header", "", {"gradient of a face", 3.1}},
    {"report list", "SysHeader32", {"gradient of a face", 3.1}},
    {"edit with prompt", "prompt", {"colour of a prompt; a host may set another", 4.3}},
};

constexpr const char* OfFont = "height of the font; a host may set more";
constexpr const char* OfTemplate = "size of the template, scaled";

Known Targets[] = {
    {"", "vertical bar", {"band of 52 whose edges take no press", 44}},
    {"", "horizontal bar", {"band of 52 whose edges take no press", 49}},
    {"list box", "row", {OfFont, 20}},
    {"drawn list box", "row", {OfFont, 30}},
    {"list box of many selections", "row", {OfFont, 20}},
    {"list box of columns", "row", {OfFont, 20}},
    {"report list", "row", {OfFont, 28}},
    {"report list", "heading", {OfFont, 31}},
    {"message box", "Button", {OfTemplate, 39}},
    {"property sheet", "tab", {"size of the platform's tabs, scaled", 33}},
};

template <size_t Count>
Shortfall* Find(Known (&all)[Count], std::string_view control, std::string_view part)
{
    const auto known = std::find_if(std::begin(all), std::end(all), [&](const Known& each) {
        return (each.control.empty() || each.control == control) &&
               (each.part.empty() || each.part == part);
    });
    return known == std::end(all) ? nullptr : &known->shortfall;
}

} // namespace

Shortfall* KnownTextShortfall(std::string_view control, std::string_view part)
{
    return Find(Texts, control, part);
}

Shortfall* KnownTargetShortfall(std::string_view control, std::string_view part)
{
    return Find(Targets, control, part);
}

std::vector<std::string> UnmetShortfalls()
{
    std::vector<std::string> unmet;
    const auto note = [&](const Known& known) {
        if (!known.shortfall.met)
        {
            unmet.push_back(std::string(known.control) + ": " + std::string(known.part) + ": " +
                            known.shortfall.reason);
        }
    };
    std::ranges::for_each(Texts, note);
    std::ranges::for_each(Targets, note);
    return unmet;
}
