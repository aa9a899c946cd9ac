#pragma once

// The border of an on-board edit: what it looks like in each state.

#include "paint/Palette.h"

#include <afxwin.h>

struct EditBorder
{
    COLORREF topLeft;
    COLORREF bottomRight;
};

constexpr EditBorder EditBorderOf(bool enabled, bool readOnly)
{
    if (!enabled)
    {
        return {palette::EditEdgeLitDisabled, palette::EditEdgeShadeDisabled};
    }
    if (readOnly)
    {
        return {palette::EditEdgeReadOnly, palette::EditEdgeReadOnly};
    }
    return {palette::EditEdgeLit, palette::EditEdgeShade};
}
