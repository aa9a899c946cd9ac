#pragma once

#include "GalleryPage.h"

#include <CustomCheckBox.h>
#include <CustomListCtrl.h>

// Report lists: many columns and rows, sorted by a click on a heading, with switches for grid lines
// and the selection of full rows; no rows; one column; a million rows that the page owns.
class ReportListPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnItemChanged(UINT id, NMHDR* header, LRESULT* result);
    afx_msg void OnDoubleClick(UINT id, NMHDR* header, LRESULT* result);
    afx_msg void OnColumnClick(NMHDR* header, LRESULT* result);
    afx_msg void OnGetDispInfo(NMHDR* header, LRESULT* result);
    afx_msg void OnSwitch(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    // In the order of the page; a control's id is IDC_PAGE_FIRST plus its place here.
    enum Control
    {
        Flights,
        Empty,
        Airports,
        Million,
        ListCount,
        GridSwitch = ListCount,
        FullRowSwitch,
        ControlCount
    };

    void AddReport(int list, DWORD style);
    void AddSwitch(int control, CCustomCheckBox& box);
    void FillFlights();
    void SortBy(int column, bool descending);
    void ApplySwitches();
    void Tell(const char* notification, UINT id, int row);

    CCustomListCtrl m_lists[ListCount];
    CCustomCheckBox m_switches[ControlCount - ListCount];
    bool m_on[ControlCount - ListCount] = {};
    int m_sortColumn = -1;
    bool m_descending = false;
};
