#include "ReportListPage.h"

#include "FlightLegs.h"
#include "Look.h"
#include "Tap.h"
#include "resource.h"

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

struct ReportPlace
{
    const char* caption;
    CRect design;
};

constexpr int Columns = 3;
constexpr int SwitchTop = 228;
constexpr int SwitchHeight = 18;
constexpr int LowerTop = SwitchTop + SwitchHeight + 6;
constexpr int LowerHeight = grid::Height - LowerTop;

const ReportPlace Places[] = {
    {"Flight legs; a click on a heading sorts", grid::Across(0, SwitchTop - 6)},
    {"Empty", grid::Cell(Columns, 0, LowerTop, LowerHeight)},
    {"One column", grid::Cell(Columns, 1, LowerTop, LowerHeight)},
    {"A million rows", grid::Cell(Columns, 2, LowerTop, LowerHeight)},
    {"Grid lines", grid::Cell(Columns, 0, SwitchTop, SwitchHeight)},
    {"Full-row select", grid::Cell(Columns, 1, SwitchTop, SwitchHeight, 2)},
};

constexpr int LegRows = 5000;
constexpr int OwnedRows = 1'000'000;
constexpr int LeastWidth = 30; // of a column that is dragged

constexpr const char* AirportNames[] = {
    "EDDF Frankfurt", "EGLL London", "EHAM Amsterdam", "ENGM Oslo", "ESSA Stockholm",
    "KJFK New York",  "LEMD Madrid", "LFPG Paris",     "LIRF Rome", "LOWW Vienna",
    "LSZH Zurich",    "OMDB Dubai",  "RJTT Tokyo",
};

struct Order
{
    int column;
    bool descending;
};

int CALLBACK CompareLegs(LPARAM first, LPARAM second, LPARAM order)
{
    const auto& by = *reinterpret_cast<const Order*>(order);
    const int compared = legs::Compare(int(first), int(second), by.column);
    return by.descending ? -compared : compared;
}

// A point of the so-manieth row from the top of what is in sight.
CPoint RowInSight(const CListCtrl& list, int row)
{
    CRect first;
    list.GetItemRect(list.GetTopIndex(), &first, LVIR_BOUNDS);
    return CPoint(first.left + 12, first.top + first.Height() * row + first.Height() / 2);
}

} // namespace

BEGIN_MESSAGE_MAP(ReportListPage, GalleryPage)
    ON_NOTIFY_RANGE(LVN_ITEMCHANGED, FirstId, FirstId + ListCount - 1,
                    &ReportListPage::OnItemChanged)
    ON_NOTIFY_RANGE(NM_DBLCLK, FirstId, FirstId + ListCount - 1, &ReportListPage::OnDoubleClick)
    ON_NOTIFY(LVN_COLUMNCLICK, FirstId + Flights, &ReportListPage::OnColumnClick)
    ON_NOTIFY(LVN_GETDISPINFO, FirstId + Million, &ReportListPage::OnGetDispInfo)
    ON_CONTROL_RANGE(BN_CLICKED, FirstId + ListCount, FirstId + ControlCount - 1,
                     &ReportListPage::OnSwitch)
END_MESSAGE_MAP()

void ReportListPage::CreateContent()
{
    AddReport(Flights, 0);
    for (int column = 0; column < legs::ColumnCount; ++column)
    {
        const legs::Column& data = legs::Columns[column];
        m_lists[Flights].InsertColumn(column, data.heading, data.format, look::Scaled(data.width));
    }
    m_lists[Flights].SetMinColWidth(LeastWidth);
    FillFlights();

    AddSwitch(GridSwitch, m_switches[0]);
    AddSwitch(FullRowSwitch, m_switches[1]);

    AddReport(Empty, LVS_SINGLESEL);
    m_lists[Empty].InsertColumn(0, "Flight", LVCFMT_LEFT, look::Scaled(60));
    m_lists[Empty].InsertColumn(1, "Remark", LVCFMT_LEFT, look::Scaled(60));

    AddReport(Airports, LVS_SINGLESEL);
    m_lists[Airports].InsertColumn(0, "Airport", LVCFMT_LEFT, look::Scaled(100));
    for (const char* airport : AirportNames)
    {
        m_lists[Airports].InsertItem(m_lists[Airports].GetItemCount(), airport);
    }

    AddReport(Million, LVS_OWNERDATA | LVS_SINGLESEL);
    m_lists[Million].InsertColumn(0, "Flight", LVCFMT_LEFT, look::Scaled(56));
    m_lists[Million].InsertColumn(1, "Fuel", LVCFMT_LEFT, look::Scaled(50));
    m_lists[Million].SetItemCountEx(OwnedRows);
    ApplySwitches();
}

void ReportListPage::AddReport(int list, DWORD style)
{
    const ReportPlace& place = Places[list];
    CRect caption = place.design;
    caption.bottom = caption.top + grid::Caption;
    AddLabel(place.caption, caption);
    CRect design = place.design;
    design.top += grid::CaptionStep;
    m_lists[list].CreateEx(WS_EX_CLIENTEDGE,
                           style | WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT |
                               LVS_SHOWSELALWAYS,
                           design, this, FirstId + UINT(list));
    m_lists[list].SetFont(&CCustomListCtrl::GetStdFont());
    Place(m_lists[list], design);
}

void ReportListPage::AddSwitch(int control, CCustomCheckBox& box)
{
    const ReportPlace& place = Places[control];
    AddButton(box, place.caption, BS_AUTOCHECKBOX | WS_TABSTOP, place.design,
              FirstId + UINT(control));
    m_on[control - ListCount] = true;
    box.SetCheck(BST_CHECKED);
}

void ReportListPage::OnLaidOut()
{
    for (int index = 0; index < ControlCount - ListCount; ++index)
    {
        m_switches[index].SetCheck(m_on[index] ? BST_CHECKED : BST_UNCHECKED);
    }
}

void ReportListPage::FillFlights()
{
    CCustomListCtrl& list = m_lists[Flights];
    list.SetRedraw(FALSE);
    for (int leg = 0; leg < LegRows; ++leg)
    {
        list.InsertItem(LVIF_TEXT | LVIF_PARAM, leg, legs::Text(leg, 0), 0, 0, 0, leg);
        for (int column = 1; column < legs::ColumnCount; ++column)
        {
            list.SetItemText(leg, column, legs::Text(leg, column));
        }
    }
    list.SetRedraw(TRUE);
}

void ReportListPage::SortBy(int column, bool descending)
{
    m_sortColumn = column;
    m_descending = descending;
    Order order = {column, descending};
    CCustomListCtrl& list = m_lists[Flights];
    list.SortItems(&CompareLegs, DWORD_PTR(&order));
    CHeaderCtrl* const header = list.GetHeaderCtrl();
    for (int item = 0; item < legs::ColumnCount; ++item)
    {
        HDITEM data = {};
        data.mask = HDI_FORMAT;
        header->GetItem(item, &data);
        data.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        data.fmt |= item != column ? 0 : descending ? HDF_SORTDOWN : HDF_SORTUP;
        header->SetItem(item, &data);
    }
}

void ReportListPage::ApplySwitches()
{
    const bool grid = m_on[GridSwitch - ListCount];
    const bool fullRow = m_on[FullRowSwitch - ListCount];
    for (CCustomListCtrl& list : m_lists)
    {
        list.SetExtendedStyle((grid ? LVS_EX_GRIDLINES : 0U) |
                              (fullRow ? LVS_EX_FULLROWSELECT : 0U));
    }
}

void ReportListPage::PoseForPicture()
{
    constexpr int LinesDown = 3;
    SortBy(5, false);
    for (const int list : {Flights, Airports, Million})
    {
        m_lists[list].SendMessage(LVM_ENSUREVISIBLE, 0, FALSE);
        m_lists[list].SendMessage(WM_HSCROLL, SB_LEFT);
    }
    for (int line = 0; line < LinesDown; ++line)
    {
        m_lists[Flights].SendMessage(WM_VSCROLL, SB_LINEDOWN);
        m_lists[Million].SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    }
    Tap(m_lists[Flights], RowInSight(m_lists[Flights], 2));
    Tap(m_lists[Airports], RowInSight(m_lists[Airports], 1));
    Tap(m_lists[Million], RowInSight(m_lists[Million], 1));
}

void ReportListPage::Tell(const char* notification, UINT id, int row)
{
    CString text;
    text.Format("%s from '%s' (row %d)", notification, Places[id - FirstId].caption, row);
    Events().ParentWasTold(text);
}

void ReportListPage::OnItemChanged(UINT id, NMHDR* header, LRESULT* result)
{
    *result = 0;
    const auto& change = *reinterpret_cast<const NMLISTVIEW*>(header);
    // While a click is on its way to its row, what is told is not meant for the user.
    const bool selected = (change.uNewState & ~change.uOldState & LVIS_SELECTED) != 0;
    if (selected && !m_lists[id - FirstId].IsSelChanging())
    {
        Tell("LVN_ITEMCHANGED", id, change.iItem);
    }
}

void ReportListPage::OnDoubleClick(UINT id, NMHDR* header, LRESULT* result)
{
    *result = 0;
    Tell("NM_DBLCLK", id, reinterpret_cast<const NMITEMACTIVATE*>(header)->iItem);
}

void ReportListPage::OnColumnClick(NMHDR* header, LRESULT* result)
{
    *result = 0;
    const int column = reinterpret_cast<const NMLISTVIEW*>(header)->iSubItem;
    SortBy(column, column == m_sortColumn && !m_descending);
    Tell("LVN_COLUMNCLICK", FirstId + Flights, column);
}

void ReportListPage::OnGetDispInfo(NMHDR* header, LRESULT* result)
{
    *result = 0;
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    if ((item.mask & LVIF_TEXT) != 0)
    {
        const CString text = legs::Text(item.iItem, item.iSubItem == 0 ? 0 : 10);
        ::lstrcpyn(item.pszText, text, item.cchTextMax);
    }
}

void ReportListPage::OnSwitch(UINT)
{
    for (int index = 0; index < ControlCount - ListCount; ++index)
    {
        m_on[index] = m_switches[index].GetCheck() == BST_CHECKED;
    }
    ApplySwitches();
}
