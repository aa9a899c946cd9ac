#pragma once

#include "GalleryPage.h"

#include <CustomCheckBox.h>
#include <CustomPushbutton.h>
#include <CustomRadiobutton.h>

// Buttons: check boxes in each state, radio groups with and without a head, captions of several
// lines, and push buttons with the default one among them.
class ButtonsPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void PoseForPicture() override;
    void KeepState() override;

    static constexpr int CheckCount = 5;
    static constexpr int RadioCount = 11;
    static constexpr int PushCount = 6;

protected:
    void CreateContent() override;
    void OnLaidOut() override;

    afx_msg void OnClicked(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    CCustomCheckBox m_checkBoxes[CheckCount];
    CCustomRadiobutton m_radios[RadioCount];
    CCustomPushbutton m_pushes[PushCount];
    // The buttons keep a check state for the standard mode and one for the others, so the page
    // holds what the user chose: check boxes, then radio buttons.
    int m_chosen[CheckCount + RadioCount] = {};

    CCustomButton& Chooser(int index);
};
