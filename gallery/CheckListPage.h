#pragma once

#include "GalleryPage.h"

#include <CustomChecklistBox.h>

// What a flight needs before it may leave, with a number that the list's owner keeps for each item
// and draws beside its text.
class WeighedList : public CCustomChecklistBox
{
public:
    void DrawItem(LPDRAWITEMSTRUCT draw) override;
};

// Check lists: each check style, items whose check is fixed, a list that is disabled, and one whose
// owner keeps data with its items.
class CheckListPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }

    afx_msg void OnCheckChange(UINT id);
    afx_msg void OnSelChange(UINT id);
    afx_msg void OnDblClk(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    // In the order of the page; a control's id is IDC_PAGE_FIRST plus its place here.
    enum List
    {
        Auto,
        AutoThree,
        Disabled,
        Host,
        HostThree,
        Weighed,
        ListCount
    };

    CCustomChecklistBox& ListOf(int index);
    void Tell(const char* notification, UINT id);

    CCustomChecklistBox m_lists[Weighed];
    WeighedList m_weighed;
};
