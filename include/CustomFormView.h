#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxext.h>
#include <afxwin.h>

#include <memory>
#include <vector>

namespace dialogs {
class ControlList;
}

// A form view that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children, and the range that it scrolls, when the mode changes or when
// OnInitialUpdate comes in an on-board mode. Both begin at the top again then. A key that moves the
// focus on the form scrolls the control that gets it into sight, in every mode.
class ONBOARDUI_API CCustomFormView : public CFormView
{
    DECLARE_DYNAMIC(CCustomFormView)

public:
    ~CCustomFormView() override;

    // The child windows and theirs, as they were at initialisation; see CCustomDialog.
    std::vector<CWnd*>& GetControls();

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    // As the framework's; the first time it also scales and restyles the children, and the range
    // that is scrolled, if the mode is an on-board one. Each time it lists the controls.
    void OnInitialUpdate() override;

    // Scrolls as far as needed to have a control of the form in sight; of one that is larger than
    // the view the near edge.
    void Reveal(HWND control);

    BOOL PreTranslateMessage(MSG* message) override;

    // @{
    // Assistive programs are told of a pane, named by its frame where it has no text of its own.
    HRESULT get_accName(VARIANT child, BSTR* name) override;
    HRESULT get_accRole(VARIANT child, VARIANT* role) override;
    // @}

protected:
    // @{
    // From the template of this name or id, which is read when the window is made.
    explicit CCustomFormView(LPCSTR templateName);
    explicit CCustomFormView(UINT templateId);
    // @}

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

    std::vector<CWnd*> m_controls;

private:
    std::unique_ptr<dialogs::ControlList> m_controlList;
    bool m_restyled = false; // the controls are those of the mode
    unsigned m_openedAt = 0; // the last change of the mode before they were

    void ScaleScrollRange(double scale);
};
