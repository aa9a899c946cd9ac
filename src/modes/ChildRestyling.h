#pragma once

#include "AppMode.h"
#include "OnBoardUI.h"

#include <afxwin.h>

#include <span>
#include <vector>

// What is done with each direct child before it is restyled.
using BeforeChild = void (*)(HWND child);

// Rescales and restyles the direct children of a window for a change of mode; what every
// mode-aware window does when it is told of one. Nothing when the modes are equal or the window
// does not exist. Returns these children, of which some may have ended.
std::vector<HWND> RestyleChildren(HWND window, APPMODE newMode, APPMODE oldMode,
                                  BeforeChild before = nullptr);

// The same for a window that opens while an on-board mode is active: its children stand as in the
// standard mode, but for those that are placed already, which are left alone.
std::vector<HWND> RestyleNewWindow(HWND window, std::span<const HWND> placed = {},
                                   BeforeChild before = nullptr);

// Whether ModifyChildsForAppMode is at work on a window: it gets its font first and its place after
// that, so it need not lay itself out in between. A window that keeps its place gets the
// WM_WINDOWPOSCHANGING all the same.
bool IsBeingPlaced(HWND window);
// Whether it is, and its place for the mode of the moment is still to come: so far it has its font
// alone, or that mode has come meanwhile. What size it gets now passes.
bool IsPlaceToCome(HWND window);
// Whether it is, for an on-board mode.
bool IsBeingPlacedOnBoard(HWND window);

// While a child is given a place that would overwrite what a change of the mode on the way makes of
// it: such a change comes to the child at the end of this. It may end the child.
class GivingPlace
{
public:
    explicit GivingPlace(HWND child);
    GivingPlace(const GivingPlace&) = delete;
    GivingPlace& operator=(const GivingPlace&) = delete;
    ~GivingPlace();

    // Whether a change of the mode has come to the child on the way.
    bool HasPutOff() const { return !m_changes.empty(); }

    // False when the child is not being given a place.
    static bool PutOff(HWND child, const ModifyChildWndsData& change);

private:
    HWND m_child;
    std::vector<ModifyChildWndsData> m_changes;
    GivingPlace* m_outer;

    static inline GivingPlace* s_innermost = nullptr;
};

// The factor of a change between two modes that differ; 1 between two on-board modes.
double ModeScale(APPMODE newMode, APPMODE oldMode);

// A child's rectangle under the factor of a mode change: scale down, and scale times the widening
// across (a factor of 1 narrows by the widening, as leaving an on-board mode does). Truncated.
CRect RescaledRect(const CRect& rect, double scale);
