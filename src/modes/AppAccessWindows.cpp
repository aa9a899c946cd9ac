// Default answers about what stands around the charts: fly-outs, tool bars, menus, icons,
// clipboard and night mode.

#include "AppAccess.h"

void IAppAccess::ClipboardNotify() {}

void IAppAccess::CloseCommInfoDlg() {}

void IAppAccess::CloseFlyout(unsigned int) {}

void IAppAccess::CloseFlyouts(unsigned int, CUSTOMTOOLBAR_CLOSERULE) {}

void IAppAccess::CloseNavSearchDlg() {}

void IAppAccess::CloseObjectDialogs() {}

void IAppAccess::CloseSelectItemOBDlg() {}

void IAppAccess::CloseWaypointDlg() {}

void IAppAccess::CopyArrayToClipboard(PtrArray*) {}

bool IAppAccess::GetAvailableArea(GAA_TYPE, int& x, int& y, int& width, int& height)
{
    x = y = width = height = 0;
    return false;
}

void IAppAccess::GetCopyMenuItems(const PIUID&, PtrArray*) {}

unsigned int IAppAccess::GetDragDropCF(UIItem, DRGDRP_ITEM)
{
    return 1;
}

HICON IAppAccess::GetMainIcon()
{
    return nullptr;
}

const MappedImageList* IAppAccess::GetMasterIconList() const
{
    return nullptr;
}

const MappedImageList* IAppAccess::GetMasterLargeIconList() const
{
    return nullptr;
}

const NavTypeIconPool* IAppAccess::GetNavTypeIconsPool()
{
    return nullptr;
}

int IAppAccess::GetNightMode()
{
    return 0;
}

bool IAppAccess::GetOBFlyoutBtnCmdId(unsigned int, unsigned int&)
{
    return false;
}

CustomToolbar* IAppAccess::GetToolBar(unsigned int)
{
    return nullptr;
}

CZOrderManager* IAppAccess::GetZOrderManager()
{
    return nullptr;
}

void IAppAccess::RebuildMenu(MENUCATEGORY) {}

bool IAppAccess::SetMappedImage(unsigned int, unsigned int, unsigned int)
{
    return false;
}

void IAppAccess::SetNightMode(bool, bool) {}

unsigned int IAppAccess::ShowSplashScreen(unsigned int)
{
    return 0;
}

void IAppAccess::ShowToolBar(unsigned long, int) {}

void IAppAccess::TripNoNightThemeAlert() {}

void IAppAccess::UpdateCmdUI(CCmdUI*, int) {}
