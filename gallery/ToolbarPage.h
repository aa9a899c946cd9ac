#pragma once

#include "GalleryPage.h"

#include <CustomEdit.h>
#include <CustomPushbutton.h>
#include <CustomToolbar.h>
#include <MappedImageList.h>

#include <random>

// A tool bar whose buttons take the order that stands in an edit, and what the bar said to it.
class ToolbarPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;

    afx_msg void OnOrder();
    afx_msg void OnShuffle();
    afx_msg void OnReset();
    afx_msg void OnBarCommand(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    enum Action
    {
        Order,
        Shuffle,
        Reset,
        ActionCount
    };

    void TakeOrder(const std::vector<unsigned int>& order);
    void ShowOrder(const std::vector<unsigned int>& order);

    // For the standard mode, and for a finger.
    MappedImageList m_pictures;
    MappedImageList m_largePictures;
    CustomToolbar m_bar;
    CCustomEdit m_order;
    CCustomPushbutton m_actions[ActionCount];
    CCustomListBox m_messages;
    std::mt19937 m_random;
};
