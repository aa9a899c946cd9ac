#pragma once

#include <afxcmn.h>

// A small world of routes, waypoints and airports, the same in every run, as the items of a tree.
// An item's data is the address of its place, which lasts as long as the program.
namespace world {

struct Place
{
    CString name;
    int kind; // its picture
};

// Adds everything: routes with their waypoints, airports, and two branches of ten thousand, one
// deep and one wide. Gives the first route.
HTREEITEM Fill(CTreeCtrl& tree);

// Adds one more place below parent.
HTREEITEM Add(CTreeCtrl& tree, HTREEITEM parent, const Place& place);

// The place behind an item; null for an item without.
const Place* PlaceOf(const CTreeCtrl& tree, HTREEITEM item);

// Pictures of the kinds, for the current mode.
CImageList& Pictures();

} // namespace world
