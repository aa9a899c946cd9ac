#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxdlgs.h>

// A property page that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children when the mode changes or when it opens in an on-board mode.
class ONBOARDUI_API CCustomPropPage : public CPropertyPage
{
    DECLARE_DYNAMIC(CCustomPropPage)

public:
    explicit CCustomPropPage(UINT templateId, UINT captionId = 0);
    ~CCustomPropPage() override;

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    BOOL OnInitDialog() override;

protected:
    DECLARE_MESSAGE_MAP()
};
