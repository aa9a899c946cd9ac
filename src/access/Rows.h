#pragma once

// What lists answer of their rows. A row's child id is its index and one, as the platform's lists
// have it in the events that they raise; rows are no objects of their own.

#include "access/Answers.h"
#include "access/ChildIds.h"

#include <vector>

namespace access {

constexpr long ChildOf(int index)
{
    return static_cast<int>(static_cast<unsigned>(index) + 1U); // of any number, without overflow
}

// The row that a child id stands for in a list of so many, or -1.
inline int RowOf(const VARIANT& child, int count)
{
    return child.vt == VT_I4 && child.lVal > 0 && child.lVal <= count ? child.lVal - 1 : -1;
}

// Whether a list does what the flags ask for; only one of many selected rows adds to them.
constexpr bool CanSelect(long flags, bool many)
{
    const long selects = flags & ~long(SELFLAG_TAKEFOCUS);
    return selects == SELFLAG_NONE || selects == SELFLAG_TAKESELECTION ||
           (many && (selects == SELFLAG_ADDSELECTION || selects == SELFLAG_REMOVESELECTION));
}

// What keeps a list from doing what the flags ask for; S_OK is nothing. The user could not do it
// where the list is out of reach.
inline HRESULT KeptFromSelecting(const CWnd& list, long flags, bool many)
{
    if (!CanSelect(flags, many))
    {
        return E_INVALIDARG;
    }
    return flags != SELFLAG_NONE && IsOutOfReach(list.GetSafeHwnd()) ? DISP_E_MEMBERNOTFOUND : S_OK;
}

// The selected rows: nothing, the one, or all of them one after the other.
template <class Rows> HRESULT GiveRows(VARIANT& place, const Rows& rows)
{
    if (rows.empty())
    {
        return GiveNothing(place);
    }
    if (rows.size() == 1)
    {
        return Give(place, ChildOf(*rows.begin()));
    }
    std::vector<long> ids;
    ids.reserve(rows.size());
    for (const int row : rows)
    {
        ids.push_back(ChildOf(row));
    }
    place.vt = VT_UNKNOWN;
    place.punkVal = new ChildIds(std::move(ids));
    return S_OK;
}

// A row's place, which is in client coordinates.
inline HRESULT GivePlace(const CWnd& list, CRect row, long* left, long* top, long* width,
                         long* height)
{
    list.ClientToScreen(&row);
    *left = row.left;
    *top = row.top;
    *width = row.Width();
    *height = row.Height();
    return S_OK;
}

// What a row says of its state.
struct RowState
{
    bool selected = false;
    bool caret = false; // the focus is on it when the list has it
    bool inSight = false;
    long more = 0; // what only this kind of list says
};

inline HRESULT GiveState(VARIANT& place, const CWnd& list, const RowState& row)
{
    long bits = row.more;
    const auto add = [&bits](bool when, long bit) { bits |= when ? bit : 0; };
    const bool enabled = !IsShutOff(list.GetSafeHwnd());
    add(!enabled, STATE_SYSTEM_UNAVAILABLE);
    add(enabled, STATE_SYSTEM_FOCUSABLE);
    add(row.caret && ::GetFocus() == list.GetSafeHwnd(), STATE_SYSTEM_FOCUSED);
    add(row.selected, STATE_SYSTEM_SELECTED);
    add(!list.IsWindowVisible() || !row.inSight, STATE_SYSTEM_INVISIBLE | STATE_SYSTEM_OFFSCREEN);
    return Give(place, bits);
}

// Whether it is a step to the list's neighbours rather than to one of its rows.
inline bool LeavesList(long direction, const VARIANT& start)
{
    return IsSelf(start) && direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD;
}

// A step from the list to a row, or from one row to the next.
inline HRESULT Navigate(long direction, const VARIANT& start, int count, VARIANT& end)
{
    int index = RowOf(start, count);
    if (IsSelf(start))
    {
        index = direction == NAVDIR_FIRSTCHILD ? 0 : count - 1;
    }
    else if (index < 0)
    {
        return E_INVALIDARG;
    }
    else if (direction == NAVDIR_NEXT || direction == NAVDIR_DOWN)
    {
        ++index;
    }
    else if (direction == NAVDIR_PREVIOUS || direction == NAVDIR_UP)
    {
        --index;
    }
    else
    {
        return GiveNothing(end);
    }
    return index >= 0 && index < count ? Give(end, ChildOf(index)) : GiveNothing(end);
}

} // namespace access
