#pragma once

// Icon and geometry types of the maker's object library: names only, until something here needs
// more than a pointer to them.

class IconInfo;
class IconList;
class Vector3D;
class XPoint;
