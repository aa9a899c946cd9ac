#pragma once

// The host's side of GetSpecialConfigVal: the table that it reads. It starts empty and, like all of
// the user interface, belongs to one thread.

#include "SupportExport.h"

// Sets or replaces one value. A null section or key is ignored; a null text takes the value away.
SUPPORT_API void SetSpecialConfigVal(const char* section, const char* key, const char* value);
SUPPORT_API void SetSpecialConfigVal(const char* section, const char* key, int value);

// Takes all values away.
SUPPORT_API void ClearSpecialConfigVals();
