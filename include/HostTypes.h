#pragma once

// The host's world as far as it crosses the host services. The library hands these objects on and
// never looks inside, so names are enough; the host defines those that it uses.

#include "CustomToolbarCloseRule.h"

#include <K3Core.h>
#include <LayoutMgmt.h>
#include <YAUL.h>

// Objects of the host.
class ChartObject;
class ConversionBoy;
class DisplayPreferences;
class EnrZoomHandler;
class FrameworkEvent;
class KPUID;
class MiscFtrInfo;
class MissionTreeObject;
class NavTypeIconPool;
class PISelectedItemRoutingInfo;
class PIUID;
class PrintHeaderInfo;
class SelectedItem;
class TextAttrs;
class TripKitInfo;
class UserWaypoint;
class UserWaypointList;

// Services of the host below IAppAccess.
class IAircraftComm;
class IAirportList;
class IAutoRouter;
class ICoordinateSys;
class IGPS;
class IKSS;
class IMovingMap;
class IPDFViewer;
class IPINotify;
class IPIProductConfig;
class IPerformanceModel;
class IStreetData;
class ITermChartData;
class ITermCharts;
class ITextPages;

namespace IWTHR {
class IWeather;
}

// Classes of the library that its host services mention.
class CChartOverlayWnd;
class CustomToolbar;
class MappedImageList;

// Settings of the host's window of split panes. A namespace, so that the host can add to it.
namespace KESSPLITTERWND {
class CPanesConfiguration;
class CPanesConfigurationEntry;
class CPanesSpacing;
} // namespace KESSPLITTERWND

// Enumerations of the host. Their size is settled here, their values are the host's: it completes
// each with a definition of its own. The library knows only the values named below.

enum CP_INSERT_LOC : int;        // where a pane is inserted
enum CSP_INSERT_RESULT : int;    // what came of inserting a pane
enum ChartInputMode : int;       // what a click into a chart does
enum DRGDRP_ITEM : int;          // kind of thing that is dragged
enum FEATUREALLOWED : int;       // answer to whether a feature is allowed
enum FRAMEWORK_EVENT_TYPE : int; // what a FrameworkEvent is told of
enum MENUCATEGORY : int;         // which menus
enum UIItem : int;               // which chart view or similar of the host is meant
enum ZEP_STOCK_PANE : int;       // one of the host's built-in panes

// What a host that does not override the insertion answers.
inline constexpr CSP_INSERT_RESULT CSP_INSERT_DEFAULT{2};

// What a host that does not override the question answers.
inline constexpr FEATUREALLOWED FEATUREALLOWED_DEFAULT{-1};
