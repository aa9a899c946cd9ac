#pragma once

#include <string_view>

// What is known to miss its mark.
struct Shortfall
{
    const char* reason; // in words for the one who reads the audit
    double least;       // what it is known to reach: contrast to 1, or pixels
};

// control is a name of the catalog; part is the class of a window within it or else the state, or
// the name of a target. Null where nothing should miss its mark.
const Shortfall* KnownTextShortfall(std::string_view control, std::string_view part);
const Shortfall* KnownTargetShortfall(std::string_view control, std::string_view part);
