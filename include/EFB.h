#pragma once

#include <afxwin.h>

#include "OnBoardUIExport.h"
#include "ProviderBase.h"

// The electronic-flight-bag side of a host: its screen area, the bracketing of modal dialogs and
// the on-screen keyboard. A host derives from it and overrides what it supports.
class ONBOARDUI_API IEFB : public IProviderBase
{
public:
    // Where the on-screen keyboard appears; the host adds places of its own by completing the
    // enumeration.
    enum VKB_SHOW_POS : int;

    ~IEFB() override;

    // @{
    // Told before a modal dialog or sheet of the library opens and after it has closed, in EFB and
    // EFBFS. True; it is not asked for, and nothing forbids the dialog.
    virtual bool BeginModalDialog();
    virtual bool EndModalDialog();
    // @}

    // Screen area, in pixels, of the flight bag. False, and an empty area at the origin; the
    // outputs are set in every case.
    virtual bool GetAvailableArea(int& x, int& y, int& width, int& height);

    // Whether a modal dialog of the flight bag is open; true.
    virtual bool IsModalDialogOpen();

    // Shows or hides the on-screen keyboard for a window. Does nothing.
    virtual void ShowVKB(bool show, VKB_SHOW_POS position, HWND window);
};

// The place that edits ask for.
inline constexpr IEFB::VKB_SHOW_POS VKB_FOR_EDIT{3};
