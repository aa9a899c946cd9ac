#pragma once

#include "ComboDialog.h"
#include "GalleryPage.h"

// Drop-list combos: few items, many, none, disabled, in a dialog made from a template, and at the
// bottom edge of the screen, where the list opens upwards.
class CombosPage : public GalleryPage
{
public:
    CombosPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    void OnLaidOut() override;

    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnSelChange(UINT id);
    afx_msg void OnDialog();
    afx_msg void OnBottomEdge();
    DECLARE_MESSAGE_MAP()

private:
    // In the order of the page; a control's id is IDC_PAGE_FIRST plus its place here. First the
    // combos, then the buttons that open the dialog.
    enum Control
    {
        Many,
        Few,
        Disabled,
        Empty,
        ComboCount,
        InDialog = ComboCount,
        BottomEdge,
        ControlCount
    };

    void OpenDialog(bool atBottomEdge);

    CCustomDropListCombo m_combos[ComboCount];
    CCustomPushbutton m_openers[ControlCount - ComboCount];
    ComboDialog m_dialog;
    bool m_atBottomEdge = false;
    APPMODE m_openedIn = STD;
};
