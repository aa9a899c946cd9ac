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

// The position that a chart shows at a device point, in degrees. The chart knows its own device
// space, so the graphics context is not asked and may be null. False for a point outside the
// chart's projection, with the nearest position inside it, and for a null chart, with zeros.
SUPPORT_API bool ZEPHYRIN_ChartDevice2LatLon(K3Chart* chart, int x, int y, K3Grfx* graphics,
                                             double& latitude, double& longitude);
