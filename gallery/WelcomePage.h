#pragma once

#include "GalleryPage.h"

#include <CustomPushbutton.h>

#include <vector>

// The first page: what the gallery shows, the display modes as large buttons that switch at once,
// and a tile for every other page. Its buttons give the frame their own ids as commands.
class WelcomePage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnButton(UINT command);
    DECLARE_MESSAGE_MAP()

private:
    CCustomStatic* m_title = nullptr;
    CCustomStatic* m_mode = nullptr;
    std::vector<std::unique_ptr<CCustomPushbutton>> m_buttons;
};
