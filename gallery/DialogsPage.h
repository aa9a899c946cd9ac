#pragma once

#include "FlightDialog.h"
#include "GalleryPage.h"

// Dialogs: modal, modeless, one that opens another, and a property sheet.
class DialogsPage : public GalleryPage
{
public:
    DialogsPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;

    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnModal();
    afx_msg void OnModeless();
    afx_msg void OnSheet();
    DECLARE_MESSAGE_MAP()

private:
    enum Opener
    {
        Modal,
        Modeless,
        Sheet,
        OpenerCount
    };

    CPoint DialogCorner() const;

    IAppAccess& m_services;
    CCustomPushbutton m_openers[OpenerCount];
    FlightDialog m_modeless;
};
