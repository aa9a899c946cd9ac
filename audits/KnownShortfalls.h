#pragma once

#include <string>
#include <string_view>
#include <vector>

// What is known to miss its mark.
struct Shortfall
{
    const char* reason; // in words for the one who reads the audit
    double least;       // what it is known to reach: contrast to 1, or pixels
    bool met = false;   // the audit has come upon it
};

// control is a name of the catalog; part is the class of a window within it or else the state, or
// the name of a target. Null where nothing should miss its mark.
Shortfall* KnownTextShortfall(std::string_view control, std::string_view part);
Shortfall* KnownTargetShortfall(std::string_view control, std::string_view part);

// Those that the audit has not come upon, by name: they excuse nothing any more.
std::vector<std::string> UnmetShortfalls();
