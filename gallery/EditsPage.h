#pragma once

#include "GalleryPage.h"

#include <ColorEdit.h>
#include <CustomEdit.h>
#include <EditWithPrompt.h>
#include <QuixEdit.h>

// Edits: of one line and many, read-only in both ways, coloured, with a prompt, and one that keeps
// its place. In the flight-bag modes a tap on one brings the on-screen keyboard.
class EditsPage : public GalleryPage
{
public:
    EditsPage(IAppAccess& host, GalleryEvents& events);

    void PoseForPicture() override;

protected:
    void CreateContent() override;
    bool FillsPage() const override { return true; }
    void OnLaidOut() override;
    void OnScrolled() override { OnLaidOut(); }

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnEditChange(UINT id);
    afx_msg void OnEditVScroll(UINT id);
    afx_msg void OnEditSetFocus(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    // In the order of the page; a control's id is IDC_PAGE_FIRST plus its place here.
    enum Edit
    {
        Single,
        Prompt,
        Coloured,
        Fixed,
        Long,
        ReadOnly,
        FauxReadOnly,
        EditCount
    };

    CEdit& At(int index);
    void Tell(const char* notification, UINT id);

    IAppAccess& m_appAccess;
    CCustomEdit m_single;
    EditWithPrompt m_prompt;
    ColorEdit m_coloured;
    QuixEdit m_fixed;
    CCustomEdit m_long;
    CCustomEdit m_readOnly;
    CCustomEdit m_fauxReadOnly;
    CStatic* m_fixedCaption = nullptr;
};
