#pragma once

#include "GalleryPage.h"

// List boxes: a few rows, many, rows wider than the window, disabled, and none at all.
class ListBoxPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnSelChange(UINT id);
    afx_msg void OnDblClk(UINT id);
    afx_msg void OnListSetFocus(UINT id);
    afx_msg void OnListKillFocus(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    // In the order of the page; a control's id is IDC_PAGE_FIRST plus its place here.
    enum List
    {
        Few,
        Many,
        Disabled,
        Wide,
        Empty,
        ListCount
    };

    void Tell(const char* notification, UINT id);

    CCustomListBox m_lists[ListCount];
};
