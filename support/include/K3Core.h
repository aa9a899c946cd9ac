#pragma once

// Chart, route and string types of the maker's core library. The controls mostly hand pointers and
// references on, so the names are enough here. Those that the library draws with have headers of
// their own: K3Chart.h, K3Color.h, K3DevPt.h, K3Grfx.h; a host that owns the others defines them.

class K3Chart;
class K3Color;
class K3DevPt;
class K3Grfx;
class K3NavData;
class K3NavKey;
class K3Route;
class K3RoutePoint;
class K3String;

// Kind of navigation data. The size is settled, so that it can be a map's key; the values are the
// owner's, who completes the enumeration.
enum K3NavType : int;
