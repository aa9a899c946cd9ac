#pragma once

#include "AppMode.h"
#include "OnBoardUIExport.h"

#include <afxwin.h>

class IAppAccess;

// A dialog that follows the display mode: registered from construction to destruction, it rescales
// and restyles its children when the mode changes or when it opens in an on-board mode.
class ONBOARDUI_API CCustomDialog : public CDialog
{
    DECLARE_DYNAMIC(CCustomDialog)

public:
    // The host is kept, not owned, and may be null.
    CCustomDialog(UINT templateId, CWnd* parent);
    CCustomDialog(UINT templateId, CWnd* parent, IAppAccess* host);
    ~CCustomDialog() override;

    // Called on every mode change; nothing when the modes are equal. The dialog's own rectangle is
    // left to its owner.
    void AppModeChanged(APPMODE newMode, APPMODE oldMode);

    BOOL OnInitDialog() override;

protected:
    IAppAccess* m_host;

    DECLARE_MESSAGE_MAP()
};
