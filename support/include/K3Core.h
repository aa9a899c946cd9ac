#pragma once

// Chart, route and string types of the maker's core library. The controls only hand pointers and
// references on, so the names are enough; a host that owns the real types defines them.

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
