#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxdlgs.h>

#include <memory>
#include <vector>

namespace dialogs {
class ControlList;
}

// A property page that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children when the mode changes or when it opens in an on-board mode.
class ONBOARDUI_API CCustomPropPage : public CPropertyPage
{
    DECLARE_DYNAMIC(CCustomPropPage)

public:
    // From the template of this id. Its tab has the template's caption, or with a captionId the
    // string of that id.
    explicit CCustomPropPage(UINT templateId, UINT captionId = 0);
    ~CCustomPropPage() override;

    // The child windows and theirs, as they were at initialisation; see CCustomDialog.
    std::vector<CWnd*>& GetControls();

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // Attaches the controls, scales and restyles the children if the mode is an on-board one, and
    // lists them. A derived class calls it, as with CCustomDialog.
    BOOL OnInitDialog() override;

    // @{
    // Assistive programs are told of a property page, named as its tab is.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    // @}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg LRESULT OnNextControl(WPARAM wParam, LPARAM lParam);
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()

    std::vector<CWnd*> m_controls;

private:
    std::unique_ptr<dialogs::ControlList> m_controlList;
    bool m_initialising = false; // and scales the children at the end of that
    unsigned m_openedAt = 0;     // the last change of the mode before that
};
