#include "ListBoxPage.h"

#include "Look.h"
#include "resource.h"

#include <OnBoardUI.h>

#include <algorithm>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

constexpr int Columns = 3;
constexpr int RowHeight = (grid::Height - grid::Gap) / 2;

struct ListPlace
{
    const char* caption;
    int column;
    int span; // columns
    int row;

    CRect Design() const
    {
        return grid::Cell(Columns, column, row * (RowHeight + grid::Gap), RowHeight, span);
    }
};

constexpr ListPlace Places[] = {
    {"A few", 0, 1, 0},    {"Five hundred", 1, 1, 0},
    {"Disabled", 2, 1, 0}, {"Wider than its window", 0, 2, 1},
    {"Empty", 2, 1, 1},
};

constexpr const char* Airports[] = {
    "EDDF Frankfurt", "EGLL London", "EHAM Amsterdam", "KJFK New York",
    "LFPG Paris",     "LSZH Zurich", "OMDB Dubai",
};

constexpr const char* Remarks[] = {
    "EDDF  Runway 18 for departures only; taxi clearance is given on the apron frequency.",
    "EGLL  Stands 301 to 307 closed for works until further notice; expect remote parking.",
    "EHAM  Birds in large numbers near the approach path of runway 27 from sunrise to sunset.",
    "KJFK  Noise abatement: maximum thrust on takeoff, then power back at 1,000 feet.",
    "LFPG  Follow-me car compulsory between the holding point and the cargo apron.",
    "LSZH  Approaches over the south until 0700 local time.",
    "OMDB  In summer, performance figures for 45 degrees and more have to be on board.",
};

constexpr int ManyRows = 500;
constexpr int DisabledRows = 40;

CString Waypoint(int number)
{
    CString text;
    text.Format("Waypoint %03d", number);
    return text;
}

} // namespace

BEGIN_MESSAGE_MAP(ListBoxPage, GalleryPage)
    ON_CONTROL_RANGE(LBN_SELCHANGE, FirstId, FirstId + ListCount - 1, &ListBoxPage::OnSelChange)
    ON_CONTROL_RANGE(LBN_DBLCLK, FirstId, FirstId + ListCount - 1, &ListBoxPage::OnDblClk)
    ON_CONTROL_RANGE(LBN_SETFOCUS, FirstId, FirstId + ListCount - 1, &ListBoxPage::OnListSetFocus)
    ON_CONTROL_RANGE(LBN_KILLFOCUS, FirstId, FirstId + ListCount - 1, &ListBoxPage::OnListKillFocus)
END_MESSAGE_MAP()

void ListBoxPage::CreateContent()
{
    for (int index = 0; index < ListCount; ++index)
    {
        const ListPlace& place = Places[index];
        const DWORD style =
            (index == Wide ? WS_HSCROLL : 0) | (index == Disabled ? WS_DISABLED : 0);
        AddList(m_lists[index], place.caption, style, place.Design(), FirstId + UINT(index));
    }
    for (const char* airport : Airports)
    {
        m_lists[Few].AddString(airport);
    }
    for (int row = 0; row < ManyRows; ++row)
    {
        m_lists[Many].AddString(Waypoint(row));
    }
    for (int row = 0; row < DisabledRows; ++row)
    {
        m_lists[Disabled].AddString(Waypoint(row));
    }
    for (const char* remark : Remarks)
    {
        m_lists[Wide].AddString(remark);
    }
}

void ListBoxPage::OnLaidOut()
{
    // How wide the widest row is depends on the font, and with it on the mode.
    CCustomListBox& list = m_lists[Wide];
    CClientDC dc(&list);
    const InUse font(dc, reinterpret_cast<HGDIOBJ>(list.SendMessage(WM_GETFONT)));
    int widest = 0;
    for (const char* remark : Remarks)
    {
        widest = std::max(widest, int(dc.GetTextExtent(remark).cx));
    }
    list.SetHorizontalExtent(widest + 8);
}

void ListBoxPage::PoseForPicture()
{
    constexpr int LinesDown = 6;
    constexpr int RowsBelowTop = 3;
    TapRow(m_lists[Few], 1);
    m_lists[Wide].SendMessage(WM_VSCROLL, SB_TOP);
    TapRow(m_lists[Wide], 2);
    CCustomListBox& many = m_lists[Many];
    many.SendMessage(WM_VSCROLL, SB_TOP);
    for (int line = 0; line < LinesDown; ++line)
    {
        many.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    }
    TapRow(many, many.GetTopIndex() + RowsBelowTop);
}

void ListBoxPage::Tell(const char* notification, UINT id)
{
    const UINT index = id - FirstId;
    const int row = m_lists[index].GetCurSel();
    CString text;
    if (row == LB_ERR)
    {
        text.Format("%s from '%s' (no row)", notification, Places[index].caption);
    }
    else
    {
        text.Format("%s from '%s' (row %d)", notification, Places[index].caption, row);
    }
    Events().ParentWasTold(text);
}

void ListBoxPage::OnSelChange(UINT id)
{
    Tell("LBN_SELCHANGE", id);
}

void ListBoxPage::OnDblClk(UINT id)
{
    Tell("LBN_DBLCLK", id);
}

void ListBoxPage::OnListSetFocus(UINT id)
{
    Tell("LBN_SETFOCUS", id);
}

void ListBoxPage::OnListKillFocus(UINT id)
{
    Tell("LBN_KILLFOCUS", id);
}
