#pragma once

#include "OnBoardUIExport.h"

#include <afxwin.h>
#include <kcommon.h>

#include <map>
#include <vector>

// The icons of the host application, loaded once and known by their resource ids. All objects of
// the class share them; they may be asked for on any thread, also while they are being loaded.
class ONBOARDUI_API AppIcons
{
public:
    // An icon and its resource id.
    struct ICON_INFO
    {
        UINT id;    // of the resource
        HICON icon; // stays with the table
    };

    // Loads every icon of the application that the library knows of, on the user interface's
    // thread. Does nothing once there are any. An icon that the application lacks is left out.
    void LoadIcons();

    // Null for an icon that is not there. The icon lives until the process ends.
    HICON GetIcon(int id);

    // Appends all icons there are, by rising id.
    void GetIcons(std::vector<ICON_INFO>& icons);

protected:
    static std::map<UINT, HICON> iconmap_;
    static CritSect iconmap_cs_; // guards iconmap_

private:
    // The name is the platform's for narrow characters, which its headers make of LoadIcon.
    void LoadIconA(CWinApp* app, UINT id);
};
