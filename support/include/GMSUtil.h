#pragma once

#include "SupportExport.h"

#include <string>

class K3Chart;
class K3Grfx;

// Configuration value of a section's key, or the default given when there is none. Names compare
// without regard to the case of A to Z. A null section or key has no value; a null default string
// counts as empty. The whole-number form also gives the default for a value that is not wholly a
// decimal number within range.
SUPPORT_API int GetSpecialConfigVal(const char* section, const char* key, int defaultValue);
SUPPORT_API std::string GetSpecialConfigVal(const char* section, const char* key,
                                            const char* defaultValue);

// Whether the system that really runs is Windows Vista or newer, whatever the program's manifest
// or compatibility settings make the plain version calls say.
SUPPORT_API bool IsVistaOrHigher();
