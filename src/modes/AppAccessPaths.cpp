// Default answers about paths.

#include "AppAccess.h"

CString IAppAccess::GetBitmapPath()
{
    return CString();
}

CString IAppAccess::GetCommonPath(bool)
{
    return CString();
}

CString IAppAccess::GetDataPath(DATAPATHTYPE)
{
    return CString();
}

CString IAppAccess::GetEFBReadOnlyFlightPlanPath()
{
    return CString();
}

CString IAppAccess::GetEFBScratchFlightPlanPath()
{
    return CString();
}

CString IAppAccess::GetExeModulePath()
{
    return CString();
}

CString IAppAccess::GetFlightPlanPath()
{
    return CString();
}

CString IAppAccess::GetFontPath()
{
    return CString();
}

CString IAppAccess::GetHelpFilePath()
{
    return CString();
}

CString IAppAccess::GetLocalPath(bool)
{
    return CString();
}

CString IAppAccess::GetTerminalChartsPath()
{
    return CString();
}

CString IAppAccess::GetTrackPath()
{
    return CString();
}

CString IAppAccess::GetTTFontPath()
{
    return CString();
}

CString IAppAccess::GetWriteDirectoryBase()
{
    return CString();
}

void IAppAccess::TransientUpdateFlightPlanPath(const CString&) {}
