#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxdlgs.h>

class IAppAccess;

// A property sheet that follows the display mode: registered from construction to destruction, it
// rescales and restyles its children when the mode changes and once when it opens in an on-board
// mode.
class ONBOARDUI_API CCustomPropSheet : public CPropertySheet
{
    DECLARE_DYNAMIC(CCustomPropSheet)

public:
    // The host is kept, not owned, and may be null.
    CCustomPropSheet(UINT captionId, IAppAccess* host, CWnd* parent = nullptr, UINT selectPage = 0);
    CCustomPropSheet(LPCSTR caption, IAppAccess* host, CWnd* parent = nullptr, UINT selectPage = 0);
    ~CCustomPropSheet() override;

    // Called on every mode change; nothing when the modes are equal.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    BOOL OnInitDialog() override;

protected:
    IAppAccess* m_host;

    DECLARE_MESSAGE_MAP()
};
