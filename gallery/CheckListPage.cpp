#include "CheckListPage.h"

#include "resource.h"

#include <iterator>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

constexpr int Columns = 3;
constexpr int RowHeight = (grid::Height - grid::Gap) / 2;

struct ListKind
{
    const char* caption;
    UINT checkStyle;
};

constexpr ListKind Kinds[] = {
    {"Two states", BS_AUTOCHECKBOX},       {"Three states", BS_AUTO3STATE},
    {"Disabled", BS_AUTO3STATE},           {"By double click", BS_CHECKBOX},
    {"Three, by double click", BS_3STATE}, {"With weights in kg", BS_AUTOCHECKBOX},
};

constexpr const char* Checks[] = {
    "Altimeter", "Brakes", "Doors",  "Flaps", "Fuel",  "Lights", "Mirrors", "Oxygen",
    "Pitot",     "Radio",  "Rudder", "Seats", "Slats", "Trim",   "Tyres",   "Wipers",
};
constexpr int FewChecks = 7;
constexpr int Fixed[] = {2, 5}; // items whose check cannot be changed

struct Load
{
    const char* name;
    int weight; // kg
};
constexpr Load Loads[] = {
    {"Crew", 170},  {"Cabin", 2140}, {"Cargo", 860}, {"Catering", 95},
    {"Fuel", 7300}, {"Mail", 240},   {"Water", 120},
};

constexpr int WeightMargin = 6;

} // namespace

void WeighedList::DrawItem(LPDRAWITEMSTRUCT draw)
{
    const auto* const load = reinterpret_cast<const Load*>(draw->itemData);
    if (load == nullptr || draw->itemID == UINT(-1))
    {
        return;
    }
    CString text;
    text.Format("%d", load->weight);
    CDC* const dc = CDC::FromHandle(draw->hDC);
    CRect area(draw->rcItem);
    area.right -= WeightMargin;
    area.top += (area.Height() - dc->GetTextExtent(text).cy) / 2; // level with the item's text
    const bool selected =
        (draw->itemState & ODS_SELECTED) != 0 && (draw->itemState & ODS_DISABLED) == 0;
    const int before = dc->SaveDC();
    dc->SetBkMode(TRANSPARENT);
    if (selected)
    {
        dc->SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
    }
    dc->DrawText(text, &area, DT_RIGHT | DT_SINGLELINE | DT_NOPREFIX);
    dc->RestoreDC(before);
}

BEGIN_MESSAGE_MAP(CheckListPage, GalleryPage)
    ON_CONTROL_RANGE(CLBN_CHKCHANGE, FirstId, FirstId + ListCount - 1,
                     &CheckListPage::OnCheckChange)
    ON_CONTROL_RANGE(LBN_SELCHANGE, FirstId, FirstId + ListCount - 1, &CheckListPage::OnSelChange)
    ON_CONTROL_RANGE(LBN_DBLCLK, FirstId, FirstId + ListCount - 1, &CheckListPage::OnDblClk)
END_MESSAGE_MAP()

CCustomChecklistBox& CheckListPage::ListOf(int index)
{
    return index == Weighed ? m_weighed : m_lists[index];
}

void CheckListPage::CreateContent()
{
    for (int index = 0; index < ListCount; ++index)
    {
        const CRect place = grid::Cell(Columns, index % Columns,
                                       index / Columns * (RowHeight + grid::Gap), RowHeight);
        CCustomChecklistBox& list = ListOf(index);
        AddList(list, Kinds[index].caption, index == Disabled ? WS_DISABLED : 0, place,
                FirstId + UINT(index));
        list.SetCheckStyle(Kinds[index].checkStyle);
        if (index == Weighed)
        {
            continue;
        }
        const int states =
            list.GetCheckStyle() == BS_3STATE || list.GetCheckStyle() == BS_AUTO3STATE ? 3 : 2;
        const int count = index == Auto || index == Disabled ? int(std::size(Checks)) : FewChecks;
        for (int item = 0; item < count; ++item)
        {
            list.AddString(Checks[item]);
            list.SetCheck(item, (item + 1) % states);
        }
        if (index != Disabled)
        {
            for (const int item : Fixed)
            {
                list.Enable(item, FALSE);
            }
        }
    }
    for (const Load& load : Loads)
    {
        const int item = m_weighed.AddString(load.name);
        m_weighed.SetItemDataPtr(item, const_cast<Load*>(&load));
        m_weighed.SetCheck(item, load.weight > 200);
    }
}

void CheckListPage::PoseForPicture()
{
    constexpr int LinesDown = 2;
    for (const int index : {Auto, Disabled})
    {
        ListOf(index).SendMessage(WM_VSCROLL, SB_TOP);
    }
    for (int line = 0; line < LinesDown; ++line)
    {
        m_lists[Auto].SendMessage(WM_VSCROLL, SB_LINEDOWN);
    }
    TapRow(m_lists[Auto], 4);
    TapRow(m_lists[HostThree], 2);
    TapRow(m_weighed, 1);
}

void CheckListPage::Tell(const char* notification, UINT id)
{
    CCustomChecklistBox& list = ListOf(int(id - FirstId));
    const int item = list.GetCaretIndex();
    CString text;
    text.Format("%s from '%s' (item %d, check %d)", notification, Kinds[id - FirstId].caption, item,
                list.GetCheck(item));
    Events().ParentWasTold(text);
}

void CheckListPage::OnCheckChange(UINT id)
{
    Tell("CLBN_CHKCHANGE", id);
}

void CheckListPage::OnSelChange(UINT id)
{
    Tell("LBN_SELCHANGE", id);
}

void CheckListPage::OnDblClk(UINT id)
{
    const int index = int(id - FirstId);
    CCustomChecklistBox& list = ListOf(index);
    const int item = list.GetCaretIndex();
    if ((index == Host || index == HostThree) && list.IsEnabled(item))
    {
        // These lists leave it to their host what changes a check.
        list.SetCheck(item, (list.GetCheck(item) + 1) % (index == Host ? 2 : 3));
    }
    Tell("LBN_DBLCLK", id);
}
