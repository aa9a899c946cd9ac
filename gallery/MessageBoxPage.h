#pragma once

#include "GalleryPage.h"

#include <CustomPushbutton.h>
#include <ZepMsgBoxDlg.h>

// Message boxes: every set of buttons with every icon and texts of all lengths. A button shows the
// box that is chosen, a line the answer.
class MessageBoxPage : public GalleryPage
{
public:
    MessageBoxPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }

    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnShowBox();
    DECLARE_MESSAGE_MAP()

private:
    // The lists to choose from, in the order of the page; a list's id is IDC_PAGE_FIRST plus its
    // place here.
    enum Choice
    {
        Buttons,
        Icon,
        First,
        Text,
        ChoiceCount
    };

    // A box that stays open for a picture and ends itself.
    class PosingBox : public CZepMsgBoxDlg
    {
    public:
        using CZepMsgBoxDlg::CZepMsgBoxDlg;

    protected:
        void OnOK() override { DestroyWindow(); }
        void OnCancel() override { DestroyWindow(); }
    };

    unsigned int ChosenStyle() const;
    CSize BoxArea() const;

    IAppAccess& m_services;
    CCustomListBox m_choices[ChoiceCount];
    CCustomPushbutton m_show;
    CStatic* m_answer = nullptr;
    std::unique_ptr<PosingBox> m_posing;
};
