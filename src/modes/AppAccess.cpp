// Default answers about the application: configuration, features, events and the flight-bag
// application.

#include "AppAccess.h"

IAppAccess::~IAppAccess() = default;

FEATUREALLOWED IAppAccess::AllowMiscFeature(const MiscFtrInfo&)
{
    return FEATUREALLOWED_DEFAULT;
}

void IAppAccess::CloseApplication(const PIUID&) {}

void IAppAccess::EFBAppHide() {}

void IAppAccess::EFBAspectRatioChanged() {}

void IAppAccess::EFBFlightInit() {}

CDocument* IAppAccess::GetActiveDoc()
{
    return nullptr;
}

CString IAppAccess::GetConfigVal(const char*, const char*, const char*)
{
    return CString();
}

int IAppAccess::GetConfigVal(const char*, const char*, int)
{
    return 0;
}

DisplayPreferences* IAppAccess::GetDisplayPreferences()
{
    return nullptr;
}

IEFB* IAppAccess::GetEFB()
{
    return nullptr;
}

IKSS* IAppAccess::GetKSS()
{
    return nullptr;
}

IPIProductConfig* IAppAccess::GetProductConfig()
{
    return nullptr;
}

void IAppAccess::GetProductName(CString& name)
{
    name.Empty();
}

void IAppAccess::RegisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE, FrameworkEvent*) {}

void IAppAccess::SetConfigVal(const char*, const char*, const char*) {}

void IAppAccess::SetConfigVal(const char*, const char*, int) {}

void IAppAccess::SetModeNormal() {}

void IAppAccess::ShowApplication(unsigned int) {}

void IAppAccess::UnregisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE, FrameworkEvent*) {}

void IAppAccess::UpdateEFBButtonStates() {}
