#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxext.h>
#include <afxwin.h>

// A form view that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children when the mode changes or when it is created in an on-board
// mode.
class ONBOARDUI_API CCustomFormView : public CFormView
{
    DECLARE_DYNAMIC(CCustomFormView)

public:
    ~CCustomFormView() override;

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    void OnInitialUpdate() override;

protected:
    explicit CCustomFormView(LPCSTR templateName);
    explicit CCustomFormView(UINT templateId);

    DECLARE_MESSAGE_MAP()
};
