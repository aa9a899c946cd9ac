#include "KnownShortfalls.h"

const char* KnownTextShortfall(std::string_view control)
{
    // The gradient of a face is the look of every painted part; text in the middle of it stands on
    // its lighter half.
    return control == "push button" || control == "report list" ? "gradient of a face" : nullptr;
}

const char* KnownTargetShortfall(std::string_view control, std::string_view part)
{
    if (part.find("bar") != part.npos)
    {
        return "band of 52 whose edges take no press";
    }
    if (control == "dialog" || control == "message box")
    {
        return "size of the template, scaled";
    }
    if (control.find("list") != control.npos)
    {
        return "height of the font; a host may set more";
    }
    return nullptr;
}
