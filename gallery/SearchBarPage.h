#pragma once

#include "GalleryPage.h"

#include <CustomPushbutton.h>
#include <SearchStatusBar.h>

// The status bar of a search, at the page's lower edge, with buttons that start and stop searching
// and loading.
class SearchBarPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnCommandButton(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    enum Command
    {
        StartSearch,
        StopSearch,
        StartLoading,
        StopLoading,
        CommandCount
    };

    CCustomPushbutton m_commands[CommandCount];
    CSearchStatusBar m_bar;
};
