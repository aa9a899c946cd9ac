#pragma once

#include <string_view>

// Why a text or a target is known to miss its mark, in words for the one who reads the audit; null
// when it should not. control is a name of the catalog, part the name of the target.
const char* KnownTextShortfall(std::string_view control);
const char* KnownTargetShortfall(std::string_view control, std::string_view part);
