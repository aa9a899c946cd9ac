#pragma once

#include <afxwin.h>

#include "AppMode.h"
#include "HostTypes.h"
#include "OnBoardUIExport.h"
#include "ProviderBase.h"

#include <map>
#include <vector>

class CDocument;
class IEFB;
class IPrinting;
struct CPrintInfo;

// The main service that a host offers: configuration values, paths, charts, layout pages and panes,
// flight data, printing, icons, menus and tool bars. A host derives from it and overrides what it
// supports. Every operation has a harmless default: nothing done, false, 0, null or an empty string
// unless a comment says otherwise, and an output left alone unless a comment says that it is set.
// The library owns no object that it gets from here. What an argument without a name means is
// between the host and its own callers; the library only passes such values on.
class ONBOARDUI_API IAppAccess : public IProviderBase
{
public:
    // Kind of available screen area; the host adds kinds of its own by completing the enumeration.
    enum GAA_TYPE : int;

    // Which data directory.
    enum DATAPATHTYPE : int;

    // Draws on top of a chart; the last argument is the caller's own.
    using TopLevelDraw = int (*)(K3Chart*, K3Grfx*, void*);

    ~IAppAccess() override;

    using IProviderBase::Configure;

    virtual bool ActiveMovingMap();
    virtual void AddChartOverlayWnd(CChartOverlayWnd* overlay);
    virtual void AddNewRoute(K3Route* route, bool, bool);
    virtual void AddTopLevelDraw(TopLevelDraw draw);
    virtual bool AddUserWaypoint(const PIUID&, UserWaypoint* waypoint, const char*);

    // FEATUREALLOWED_DEFAULT.
    virtual FEATUREALLOWED AllowMiscFeature(const MiscFtrInfo& feature);

    // True.
    virtual bool AllowRouteModification();

    virtual int CanDoTripKit(int&);
    virtual void ChangeLayoutPage(unsigned int pageID);
    virtual int ChartViewExists();
    virtual void ClearAllFlightPlans(int, int);
    virtual void ClearCheckpointedRouteData();
    virtual void ClearTCLPDFConfigs();
    virtual void ClipboardNotify();
    virtual void CloseAirportProperties(K3NavKey&, K3RoutePoint*, bool&);
    virtual void CloseApplication(const PIUID&);
    virtual void CloseCommInfoDlg();
    virtual void CloseFlyout(unsigned int);
    virtual void CloseFlyouts(unsigned int, CUSTOMTOOLBAR_CLOSERULE rule);
    virtual void CloseNavSearchDlg();
    virtual void CloseObjectDialogs();
    virtual void CloseSelectItemOBDlg();
    virtual void CloseWaypointDlg();
    virtual void CollectRevisionLetterInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits);

    // Sets up the panes of a configuration. Apart from the base's operation of this name: who
    // overrides one of the two brings the other back with a using declaration.
    virtual void Configure(unsigned int configID,
                           const std::vector<KESSPLITTERWND::CPanesConfigurationEntry>& entries);

    virtual void CopyArrayToClipboard(PtrArray* items);
    virtual void CreateNewRoute(int);
    virtual void CreateTripKitandQuickPrint(const PIUID&, bool);

    // All ones: there is no such page.
    virtual unsigned int CurrentLayoutPageID() const;

    virtual void DoMultiplePrint(const PIUID&, std::vector<MissionTreeObject*>& objects);
    virtual void DoSinglePrint(const PIUID&, std::vector<TripKitInfo*>& tripKits);
    virtual void DoTripKit(const PIUID&);
    virtual void DoTripKitDirect(const PIUID&, bool);
    virtual void DoTripKitPrinting(const PIUID&, CPrintInfo*, TripKitInfo*, CDC*, int);
    virtual void DrawLocateArrow(UIItem item, double, double);
    virtual void DrawOverlayBackground(void*);
    virtual void EFBAppHide();
    virtual void EFBAspectRatioChanged();
    virtual void EFBFlightInit();
    virtual void EndAnimations(IPINotify*);
    virtual bool FindUserWaypoint(const KPUID&, UserWaypoint*&);
    virtual bool FontsInitialized(K3Grfx*);
    virtual CWnd* GetActiveChartWnd(bool&);

    // All ones: there is no such configuration.
    virtual unsigned int GetActiveConfigurationID();

    virtual CDocument* GetActiveDoc();
    virtual IAircraftComm* GetAircraftComm();
    virtual IAirportList* GetAirportList();
    virtual IAutoRouter* GetAutoRouter();

    // Screen area, in pixels, that windows may use. False, and an empty area at the origin; the
    // outputs are set in every case, and callers may use them without asking for the result.
    virtual bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height);

    virtual CString GetBitmapPath();
    virtual CString GetCommonPath(bool);
    virtual int GetConfig(unsigned int configID,
                          KESSPLITTERWND::CPanesConfiguration& configuration);

    // Configuration values. fallback is for a host that keeps some: without one there are none, and
    // the defaults are the empty string and 0 whatever fallback is.
    virtual CString GetConfigVal(const char* section, const char* key, const char* fallback);
    virtual int GetConfigVal(const char* section, const char* key, int fallback);

    virtual CWnd* GetConfigWnd(CRuntimeClass* windowClass);
    virtual ConversionBoy* GetConversionBoy();
    virtual ICoordinateSys* GetCoordinateSys();
    virtual void GetCopyMenuItems(const PIUID&, PtrArray* items);
    virtual CString GetCurrentLayoutPageName();
    virtual CString GetDataPath(DATAPATHTYPE type);
    virtual DisplayPreferences* GetDisplayPreferences();

    // Registered clipboard format for dragging a kind of thing in an item. 1: any non-zero format
    // is usable, so dragging between the library's own lists and trees works without the host.
    virtual unsigned int GetDragDropCF(UIItem item, DRGDRP_ITEM kind);

    virtual IEFB* GetEFB();
    virtual CString GetEFBReadOnlyFlightPlanPath();
    virtual CString GetEFBScratchFlightPlanPath();

    // Null; the output of the second form is set to false.
    virtual K3Chart* GetEnrChart(UIItem item);
    virtual K3Chart* GetEnrChart(UIItem item, bool&);

    virtual int GetEnrDbStoreCount();
    virtual ChartInputMode GetEnrInputMode(UIItem item);
    virtual CString GetExeModulePath();
    virtual CString GetFlightPlanPath();
    virtual CString GetFontPath();
    virtual IGPS* GetGPS();
    virtual CString GetHelpFilePath();
    virtual IKSS* GetKSS();

    // Number of layout pages that a display mode has.
    virtual int GetLayoutPageCount(APPMODE mode) const;

    virtual CString GetLocalPath(bool);
    virtual HICON GetMainIcon();
    virtual const MappedImageList* GetMasterIconList() const;
    virtual const MappedImageList* GetMasterLargeIconList() const;
    virtual IMovingMap* GetMovingMap();
    virtual K3NavData* GetNavData();
    virtual const NavTypeIconPool* GetNavTypeIconsPool();

    // The input mode that follows one: the mode given, so that it stays as it is.
    virtual ChartInputMode GetNextEnrInputMode(UIItem item, ChartInputMode mode);

    virtual int GetNightMode();
    virtual bool GetOBFlyoutBtnCmdId(unsigned int, unsigned int&);
    virtual bool GetOBPageLaunchFlyoutBtnID(unsigned int, unsigned int&);
    virtual CWnd* GetPaneWnd(CRuntimeClass* paneClass, bool&);
    virtual IPDFViewer* GetPDFViewer();
    virtual CWnd* GetPeeledWnd(CRuntimeClass* paneClass, unsigned int&);
    virtual IPerformanceModel* GetPerformanceModel();
    virtual void GetPIItemInfo(const SelectedItem*, PISelectedItemRoutingInfo&);
    virtual IPrinting* GetPrinting();
    virtual IPIProductConfig* GetProductConfig();

    // Set to empty.
    virtual void GetProductName(CString& name);

    virtual CRuntimeClass* GetRuntimeFromUIName(const PIUID&, const CString& name);
    virtual void GetSelectedMTObjects(PtrArray* objects, MissionTreeObject*);
    virtual MissionTreeObject* GetSoloSelectedMTObject();
    virtual void GetSpacing(unsigned int configID, KESSPLITTERWND::CPanesSpacing& spacing);
    virtual IStreetData* GetStreetData();
    virtual void GetSupportedPaneUINames(std::vector<CString>& names) const;
    virtual ITermChartData* GetTermChartData();
    virtual ITermChartData* GetTermChartData(int index);
    virtual int GetTermChartDataCount();
    virtual ITermCharts* GetTermCharts();
    virtual CString GetTerminalChartsPath();
    virtual TextAttrs* GetTextAttrs();
    virtual ITextPages* GetTextPages();
    virtual CustomToolbar* GetToolBar(unsigned int);
    virtual CString GetTrackPath();
    virtual CString GetTTFontPath();
    virtual const UserWaypointList* GetUWPList() const;
    virtual IWTHR::IWeather* GetWeather();
    virtual CString GetWriteDirectoryBase();
    virtual EnrZoomHandler* GetZoomHandler(UIItem item);
    virtual CZOrderManager* GetZOrderManager();
    virtual bool HasConfigWnd(CRuntimeClass*, unsigned int);
    virtual void HasNavData(std::map<K3NavType, bool>&);
    virtual bool InitializeFonts(K3Grfx*);

    // The three insertions: CSP_INSERT_DEFAULT.
    virtual CSP_INSERT_RESULT InsertPaneByClass(const PIUID&, CRuntimeClass* paneClass,
                                                CP_INSERT_LOC location, unsigned int);
    virtual CSP_INSERT_RESULT
    InsertPaneByUIName(const PIUID&, const CString& name, CP_INSERT_LOC location,
                       KESSPLITTERWND::CPanesConfiguration* configuration);
    virtual CSP_INSERT_RESULT InsertStockPane(const PIUID&, ZEP_STOCK_PANE pane,
                                              CP_INSERT_LOC location,
                                              KESSPLITTERWND::CPanesConfiguration* configuration);

    virtual bool IsNavDataInitialized();
    virtual int IsTCLAndPDFCapable();
    virtual void ModifyTripKitInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits, bool);
    virtual bool NextLayoutPage();

    // All ones: no page can be added.
    virtual unsigned int NextNewLayoutPageID(APPMODE mode);

    virtual void OnBoardPageChange(unsigned int pageID);
    virtual bool PrevLayoutPage();
    virtual void PrintCopyrightOnlyHeader(CDC*, PrintHeaderInfo&);
    virtual void PrintRevisionLetter(const PIUID&);
    virtual void RebuildMenu(MENUCATEGORY category);
    virtual void ReDraw(UIItem item);
    virtual void RegisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE type, FrameworkEvent* event);
    virtual bool RemovePane(const PIUID&, unsigned int, CRuntimeClass* paneClass);
    virtual void RemoveTopLevelDraw(TopLevelDraw draw, int);
    virtual bool RemoveUserWP(const KPUID&, const PIUID&, bool);
    virtual int SelectConfiguration(unsigned int configID);
    virtual int SelectConfigurationWithClass(const CString&);
    virtual void SelectInAppUI(UIItem item, ChartObject* object, const K3NavKey& key);
    virtual void SetConfigVal(const char* section, const char* key, const char* value);
    virtual void SetConfigVal(const char* section, const char* key, int value);
    virtual void SetDefaultConfigID(unsigned int configID);
    virtual void SetEnrInputMode(UIItem item, ChartInputMode mode);
    virtual bool SetMappedImage(unsigned int, unsigned int, unsigned int);
    virtual void SetModeNormal();
    virtual void SetNightMode(bool, bool);
    virtual bool SetPaneTitle(CRuntimeClass* paneClass, const CString& title, bool);
    virtual void SetPrintingInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits, HDC);
    virtual void SetSpacing(unsigned int configID, const KESSPLITTERWND::CPanesSpacing& spacing);
    virtual bool SetZoomHandler(UIItem item, EnrZoomHandler* handler);
    virtual void ShowApplication(unsigned int);
    virtual unsigned int ShowSplashScreen(unsigned int);
    virtual void ShowToolBar(unsigned long, int);
    virtual bool SwapPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int);
    virtual bool SwapPeeledPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int);
    virtual void SwitchToDefaultLayoutPage();
    virtual void TrackGPS();
    virtual void TransientUpdateFlightPlanPath(const CString& path);
    virtual void TripNoNightThemeAlert();
    virtual void UnregisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE type, FrameworkEvent* event);
    virtual void UnSelectAllInAppUI(UIItem item);
    virtual void UpdateCmdUI(CCmdUI*, int);
    virtual void UpdateEFBButtonStates();
    virtual void UpdateGPS();
    virtual bool UpdatePaneCaption(CRuntimeClass* paneClass);
    virtual bool UsingCDA();
    virtual bool UsingDDM();
    virtual bool UsingKDSEChart();
    virtual bool UsingKDSEnr();
    virtual void WaitForDoneDrawing(UIItem item);
};

// The area that the library asks for, to keep its windows inside.
inline constexpr IAppAccess::GAA_TYPE GAA_WINDOW_AREA{1};
