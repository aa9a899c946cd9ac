#pragma once

#include "GalleryPage.h"

#include <BoldStatic.h>
#include <ColorStatic.h>
#include <ColoredGroupBox.h>
#include <CustomCheckBox.h>
#include <CustomPushbutton.h>
#include <CustomRadiobutton.h>
#include <CustomStatic.h>

// Labels plain, bold and with a border, colour swatches, and group boxes with controls inside.
class LabelsPage : public GalleryPage
{
public:
    using GalleryPage::GalleryPage;

    void KeepState() override;

protected:
    void CreateContent() override;
    void OnLaidOut() override;

    afx_msg void OnClicked(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int LabelCount = 3;
    static constexpr int BoldCount = 2;
    static constexpr int SwatchCount = 4;
    static constexpr int BoxCount = 4;
    static constexpr int OutlineCount = 2;
    static constexpr int RadioCount = 3;

    CFont m_normal; // of the bold labels, in the standard mode
    CCustomStatic m_labels[LabelCount];
    CBoldStatic m_bold[BoldCount];
    CColorStatic m_swatches[SwatchCount];
    CColoredGroupBox m_outlines[OutlineCount];
    CCustomStatic m_boxes[BoxCount];
    CCustomRadiobutton m_radios[RadioCount];
    CCustomCheckBox m_checkBox;
    CCustomPushbutton m_push;
    int m_radio = 0; // the chosen one
    int m_checked = BST_CHECKED;

    CRect MakeStatic(CStatic& label, const char* text, DWORD exStyle, DWORD style,
                     const CRect& design);
    void MakeBox(int index, const char* caption, const CRect& design);
};
