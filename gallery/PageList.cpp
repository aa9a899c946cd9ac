#include "PageList.h"

#include "Look.h"
#include "Pages.h"

#include <OnBoardUI.h>

namespace {

// At 96 dots per inch. On-board a row is as high as the bar beside it is wide: 13.8 mm, so that a
// finger hits the row that it is meant for, wherever in the row it comes down.
constexpr int StandardRow = 20;
constexpr int OnBoardRow = 52;

UINT RowHeight()
{
    return UINT(look::Scaled(look::Dark() ? OnBoardRow : StandardRow));
}

} // namespace

BOOL PageList::Create(CWnd& parent, UINT id)
{
    if (!CreateEx(WS_EX_CLIENTEDGE, "LISTBOX", "Pages",
                  WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY |
                      LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                  CRect(0, 0, 0, 0), &parent, id))
    {
        return FALSE;
    }
    for (const PageEntry& page : Pages())
    {
        AddString(page.title);
    }
    return TRUE;
}

void PageList::FollowMode(APPMODE newMode, APPMODE oldMode)
{
    SetItemHeight(0, RowHeight());
    if ((newMode == STD) == (oldMode == STD))
    {
        return;
    }
    // What the library does for the children of its own dialogs. The place does not matter: the
    // owner lays the list out afterwards.
    ModifyChildWndsData change;
    change.parent = ::GetParent(*this);
    change.mode = newMode;
    ModifyChildsForAppMode(*this, reinterpret_cast<LPARAM>(&change));
}

void PageList::Show(int row)
{
    SetCurSel(row);
    CRect area;
    CRect place;
    GetClientRect(&area);
    if (GetItemRect(row, &place) != LB_ERR && place.bottom > area.bottom)
    {
        SetTopIndex(GetTopIndex() + 1);
    }
}

void PageList::MeasureItem(LPMEASUREITEMSTRUCT measure)
{
    measure->itemHeight = RowHeight();
}

void PageList::DrawItem(LPDRAWITEMSTRUCT draw)
{
    CDC* const dc = CDC::FromHandle(draw->hDC);
    CRect row = draw->rcItem;
    if (draw->itemID == UINT(-1))
    {
        return;
    }
    const bool selected = (draw->itemState & ODS_SELECTED) != 0;
    const bool dark = look::Dark();
    dc->FillSolidRect(&row, selected ? ::GetSysColor(COLOR_HIGHLIGHT)
                            : dark   ? look::Ground()
                                     : ::GetSysColor(COLOR_WINDOW));
    if (dark)
    {
        dc->FillSolidRect(row.left, row.bottom - 1, row.Width(), 1, look::DarkOutline);
    }

    CString text;
    GetText(int(draw->itemID), text);
    const InUse font(*dc, look::LabelFont());
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(selected ? ::GetSysColor(COLOR_HIGHLIGHTTEXT)
                     : dark   ? look::Text()
                              : ::GetSysColor(COLOR_WINDOWTEXT));
    CRect inside = row;
    inside.DeflateRect(dark ? 10 : 4, 0);
    dc->DrawText(text, &inside, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if ((draw->itemState & ODS_FOCUS) != 0 && (draw->itemState & ODS_NOFOCUSRECT) == 0)
    {
        dc->DrawFocusRect(&row);
    }
}
