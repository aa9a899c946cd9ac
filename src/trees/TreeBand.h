#pragma once

#include "trees/TreeSelection.h"

namespace trees {

// A rubber band from its press to its end.
struct TreeSelection::Band
{
    Band(TreeSelection& selection, UINT pressFlags, CPoint point, CPoint origin)
        : flags(pressFlags)
        , pressed(point - origin)
        , pointer(point)
        , before(selection.m_items, selection.m_items.Selected())
        , met(selection.m_items, {})
    {}

    UINT flags;
    CPoint pressed; // from where the content begins, so that it scrolls along
    CPoint pointer; // client pixels
    bool stretched = false;
    CRect rect = CRect(0, 0, 0, 0); // as shown, in client pixels
    WatchedItems before;            // selected before the press
    WatchedItems met;
};

} // namespace trees
