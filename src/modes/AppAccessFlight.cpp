// Default answers about the flight: routes, waypoints, navigation data and the services around
// them.

#include "AppAccess.h"

bool IAppAccess::ActiveMovingMap()
{
    return false;
}

void IAppAccess::AddNewRoute(K3Route*, bool, bool) {}

bool IAppAccess::AddUserWaypoint(const PIUID&, UserWaypoint*, const char*)
{
    return false;
}

bool IAppAccess::AllowRouteModification()
{
    return true;
}

void IAppAccess::ClearAllFlightPlans(int, int) {}

void IAppAccess::ClearCheckpointedRouteData() {}

void IAppAccess::CloseAirportProperties(K3NavKey&, K3RoutePoint*, bool&) {}

void IAppAccess::CreateNewRoute(int) {}

bool IAppAccess::FindUserWaypoint(const KPUID&, UserWaypoint*&)
{
    return false;
}

IAircraftComm* IAppAccess::GetAircraftComm()
{
    return nullptr;
}

IAirportList* IAppAccess::GetAirportList()
{
    return nullptr;
}

IAutoRouter* IAppAccess::GetAutoRouter()
{
    return nullptr;
}

ConversionBoy* IAppAccess::GetConversionBoy()
{
    return nullptr;
}

ICoordinateSys* IAppAccess::GetCoordinateSys()
{
    return nullptr;
}

IGPS* IAppAccess::GetGPS()
{
    return nullptr;
}

IMovingMap* IAppAccess::GetMovingMap()
{
    return nullptr;
}

K3NavData* IAppAccess::GetNavData()
{
    return nullptr;
}

IPerformanceModel* IAppAccess::GetPerformanceModel()
{
    return nullptr;
}

void IAppAccess::GetPIItemInfo(const SelectedItem*, PISelectedItemRoutingInfo&) {}

void IAppAccess::GetSelectedMTObjects(PtrArray*, MissionTreeObject*) {}

MissionTreeObject* IAppAccess::GetSoloSelectedMTObject()
{
    return nullptr;
}

IStreetData* IAppAccess::GetStreetData()
{
    return nullptr;
}

const UserWaypointList* IAppAccess::GetUWPList() const
{
    return nullptr;
}

IWTHR::IWeather* IAppAccess::GetWeather()
{
    return nullptr;
}

void IAppAccess::HasNavData(std::map<K3NavType, bool>&) {}

bool IAppAccess::IsNavDataInitialized()
{
    return false;
}

bool IAppAccess::RemoveUserWP(const KPUID&, const PIUID&, bool)
{
    return false;
}

void IAppAccess::SelectInAppUI(UIItem, ChartObject*, const K3NavKey&) {}

void IAppAccess::TrackGPS() {}

void IAppAccess::UnSelectAllInAppUI(UIItem) {}

void IAppAccess::UpdateGPS() {}
