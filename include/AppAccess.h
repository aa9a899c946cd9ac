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
// The library owns no object that it gets from here, and asks for the screen area and the manager
// of the z-order alone: all else is for the modules of the host among themselves. What an argument
// without a name means, and who owns what is handed in, is between the host and its own callers.
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

    // Whether a moving map is active.
    virtual bool ActiveMovingMap();

    // @{
    // Add to the charts: an overlay window, a route, a function that draws on top, a waypoint of
    // the user. False: the waypoint was not taken.
    virtual void AddChartOverlayWnd(CChartOverlayWnd* overlay);
    virtual void AddNewRoute(K3Route* route, bool, bool);
    virtual void AddTopLevelDraw(TopLevelDraw draw);
    virtual bool AddUserWaypoint(const PIUID&, UserWaypoint* waypoint, const char*);
    // @}

    // FEATUREALLOWED_DEFAULT.
    virtual FEATUREALLOWED AllowMiscFeature(const MiscFtrInfo& feature);

    // True.
    virtual bool AllowRouteModification();

    // Whether a trip kit can be made: 0 for no.
    virtual int CanDoTripKit(int&);
    // Brings another layout page to the front.
    virtual void ChangeLayoutPage(unsigned int pageID);
    // Whether there is a chart view: 0 for no.
    virtual int ChartViewExists();

    // @{
    // Forget all flight plans, what is kept of a route to take it up again, or the configurations
    // of terminal charts and documents.
    virtual void ClearAllFlightPlans(int, int);
    virtual void ClearCheckpointedRouteData();
    virtual void ClearTCLPDFConfigs();
    // @}

    // Told when the content of the clipboard has changed.
    virtual void ClipboardNotify();

    // @{
    // Close what the host shows: a dialog, an application of the host, a fly-out by its id, or
    // those that a rule names.
    virtual void CloseAirportProperties(K3NavKey&, K3RoutePoint*, bool&);
    virtual void CloseApplication(const PIUID&);
    virtual void CloseCommInfoDlg();
    virtual void CloseFlyout(unsigned int);
    virtual void CloseFlyouts(unsigned int, CUSTOMTOOLBAR_CLOSERULE rule);
    virtual void CloseNavSearchDlg();
    virtual void CloseObjectDialogs();
    virtual void CloseSelectItemOBDlg();
    virtual void CloseWaypointDlg();
    // @}

    // Puts what the revision letter is made of into tripKits.
    virtual void CollectRevisionLetterInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits);

    // Sets up the panes of a configuration. Apart from the base's operation of this name: who
    // overrides one of the two brings the other back with a using declaration.
    virtual void Configure(unsigned int configID,
                           const std::vector<KESSPLITTERWND::CPanesConfigurationEntry>& entries);

    // Puts the items on the clipboard.
    virtual void CopyArrayToClipboard(PtrArray* items);
    // Begins a route.
    virtual void CreateNewRoute(int);
    // Makes a trip kit and prints it.
    virtual void CreateTripKitandQuickPrint(const PIUID&, bool);

    // All ones: there is no such page.
    virtual unsigned int CurrentLayoutPageID() const;

    // @{
    // Print what the objects or the trip kits stand for.
    virtual void DoMultiplePrint(const PIUID&, std::vector<MissionTreeObject*>& objects);
    virtual void DoSinglePrint(const PIUID&, std::vector<TripKitInfo*>& tripKits);
    // @}

    // @{
    // Make a trip kit, with questions to the user or directly, and print a page of one into a
    // context.
    virtual void DoTripKit(const PIUID&);
    virtual void DoTripKitDirect(const PIUID&, bool);
    virtual void DoTripKitPrinting(const PIUID&, CPrintInfo*, TripKitInfo*, CDC*, int);
    // @}

    // Points an arrow at a position in a chart view.
    virtual void DrawLocateArrow(UIItem item, double, double);
    // Draws what lies behind an overlay.
    virtual void DrawOverlayBackground(void*);

    // @{
    // Told when the flight bag hides the application, when its screen has another shape, and when a
    // flight begins.
    virtual void EFBAppHide();
    virtual void EFBAspectRatioChanged();
    virtual void EFBFlightInit();
    // @}

    // Ends the animations that an object of the host is told of.
    virtual void EndAnimations(IPINotify*);
    // Gives a waypoint of the user; false when there is none of this key.
    virtual bool FindUserWaypoint(const KPUID&, UserWaypoint*&);
    // Whether the fonts of a graphics context are ready.
    virtual bool FontsInitialized(K3Grfx*);
    // The window of the active chart.
    virtual CWnd* GetActiveChartWnd(bool&);

    // All ones: there is no such configuration.
    virtual unsigned int GetActiveConfigurationID();

    // The document of the active view.
    virtual CDocument* GetActiveDoc();

    // @{
    // Services of the host: talk with the aircraft, airports, routing.
    virtual IAircraftComm* GetAircraftComm();
    virtual IAirportList* GetAirportList();
    virtual IAutoRouter* GetAutoRouter();
    // @}

    // Screen area, in pixels, that windows may use. False, and an empty area at the origin; the
    // outputs are set in every case, and callers may use them without asking for the result.
    virtual bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height);

    // @{
    // Folders of the host: pictures, and what all its users share.
    virtual CString GetBitmapPath();
    virtual CString GetCommonPath(bool);
    // @}

    // Gives the panes of a configuration; 0 when there is none of this id.
    virtual int GetConfig(unsigned int configID,
                          KESSPLITTERWND::CPanesConfiguration& configuration);

    // @{
    // Configuration values. fallback is for a host that keeps some: without one there are none, and
    // the defaults are the empty string and 0 whatever fallback is.
    virtual CString GetConfigVal(const char* section, const char* key, const char* fallback);
    virtual int GetConfigVal(const char* section, const char* key, int fallback);
    // @}

    // The window of a class in the active configuration.
    virtual CWnd* GetConfigWnd(CRuntimeClass* windowClass);

    // @{
    // Services of the host: units, and systems of coordinates.
    virtual ConversionBoy* GetConversionBoy();
    virtual ICoordinateSys* GetCoordinateSys();
    // @}

    // Puts what a menu for copying offers into items.
    virtual void GetCopyMenuItems(const PIUID&, PtrArray* items);
    // The name of the layout page in front.
    virtual CString GetCurrentLayoutPageName();
    // The folder of a kind of data.
    virtual CString GetDataPath(DATAPATHTYPE type);
    // What the user wants to be displayed.
    virtual DisplayPreferences* GetDisplayPreferences();

    // Registered clipboard format for dragging a kind of thing in an item. 1: any non-zero format
    // is usable.
    virtual unsigned int GetDragDropCF(UIItem item, DRGDRP_ITEM kind);

    // The flight bag that the host is part of; null for a host at a desk.
    virtual IEFB* GetEFB();

    // @{
    // Folders of flight plans in a flight bag: those that may only be read, and those in work.
    virtual CString GetEFBReadOnlyFlightPlanPath();
    virtual CString GetEFBScratchFlightPlanPath();
    // @}

    // @{
    // The en-route chart of a view. Null; the output of the second form is set to false.
    virtual K3Chart* GetEnrChart(UIItem item);
    virtual K3Chart* GetEnrChart(UIItem item, bool&);
    // @}

    // How many databases of en-route charts there are.
    virtual int GetEnrDbStoreCount();
    // What a click into a chart view does.
    virtual ChartInputMode GetEnrInputMode(UIItem item);

    // @{
    // Folders of the host: its program, flight plans, fonts of charts.
    virtual CString GetExeModulePath();
    virtual CString GetFlightPlanPath();
    virtual CString GetFontPath();
    // @}

    // The service that knows the position.
    virtual IGPS* GetGPS();
    // The file of the help.
    virtual CString GetHelpFilePath();
    // A service of the host.
    virtual IKSS* GetKSS();

    // Number of layout pages that a display mode has.
    virtual int GetLayoutPageCount(APPMODE mode) const;

    // The folder of what belongs to this machine.
    virtual CString GetLocalPath(bool);

    // @{
    // The application's icon, and its shared lists of small and large icons by command.
    virtual HICON GetMainIcon();
    virtual const MappedImageList* GetMasterIconList() const;
    virtual const MappedImageList* GetMasterLargeIconList() const;
    // @}

    // The service of the moving map.
    virtual IMovingMap* GetMovingMap();
    // The navigation data.
    virtual K3NavData* GetNavData();
    // The icons of the kinds of navigation data.
    virtual const NavTypeIconPool* GetNavTypeIconsPool();

    // The input mode that follows one: the mode given, so that it stays as it is.
    virtual ChartInputMode GetNextEnrInputMode(UIItem item, ChartInputMode mode);

    // Which night mode is on; 0 for none.
    virtual int GetNightMode();

    // @{
    // Give the command of a button on an on-board fly-out, and the button that opens a fly-out from
    // an on-board page. False when there is none.
    virtual bool GetOBFlyoutBtnCmdId(unsigned int, unsigned int&);
    virtual bool GetOBPageLaunchFlyoutBtnID(unsigned int, unsigned int&);
    // @}

    // The window of a pane in the layout, by its class.
    virtual CWnd* GetPaneWnd(CRuntimeClass* paneClass, bool&);
    // The service that shows documents.
    virtual IPDFViewer* GetPDFViewer();
    // The window of a pane that is torn off, by its class.
    virtual CWnd* GetPeeledWnd(CRuntimeClass* paneClass, unsigned int&);
    // The service that knows how the aircraft performs.
    virtual IPerformanceModel* GetPerformanceModel();
    // Gives what routing has to know of a selected item.
    virtual void GetPIItemInfo(const SelectedItem*, PISelectedItemRoutingInfo&);
    // The printing service.
    virtual IPrinting* GetPrinting();
    // What the product that runs is made of.
    virtual IPIProductConfig* GetProductConfig();

    // Gives the name of the product; set to empty.
    virtual void GetProductName(CString& name);

    // The class of the pane that users know by this name.
    virtual CRuntimeClass* GetRuntimeFromUIName(const PIUID&, const CString& name);

    // @{
    // What is selected in the tree of missions: all of it, put into objects, or the only one, null
    // when more or nothing is.
    virtual void GetSelectedMTObjects(PtrArray* objects, MissionTreeObject*);
    virtual MissionTreeObject* GetSoloSelectedMTObject();
    // @}

    // Gives how the panes of a configuration share the window.
    virtual void GetSpacing(unsigned int configID, KESSPLITTERWND::CPanesSpacing& spacing);
    // The service of street data.
    virtual IStreetData* GetStreetData();
    // Gives the names, as users know them, of the panes that can be inserted.
    virtual void GetSupportedPaneUINames(std::vector<CString>& names) const;

    // @{
    // Terminal charts: the data of the current set or of that with an index, how many sets there
    // are, the service that shows them, and their folder.
    virtual ITermChartData* GetTermChartData();
    virtual ITermChartData* GetTermChartData(int index);
    virtual int GetTermChartDataCount();
    virtual ITermCharts* GetTermCharts();
    virtual CString GetTerminalChartsPath();
    // @}

    // @{
    // Attributes and pages of texts.
    virtual TextAttrs* GetTextAttrs();
    virtual ITextPages* GetTextPages();
    // @}

    // A tool bar by its id.
    virtual CustomToolbar* GetToolBar(unsigned int);

    // @{
    // Folders of the host: recorded tracks, and outline fonts.
    virtual CString GetTrackPath();
    virtual CString GetTTFontPath();
    // @}

    // The user's waypoints.
    virtual const UserWaypointList* GetUWPList() const;
    // The service of the weather.
    virtual IWTHR::IWeather* GetWeather();
    // The folder below which the host may write.
    virtual CString GetWriteDirectoryBase();
    // What zooms a chart view.
    virtual EnrZoomHandler* GetZoomHandler(UIItem item);
    // Who is told, by UpdateZOrder, when a dialog or sheet of the library is activated, deactivated
    // or restacked. Null: nobody.
    virtual CZOrderManager* GetZOrderManager();
    // Whether a configuration has a window of a class.
    virtual bool HasConfigWnd(CRuntimeClass*, unsigned int);
    // Says for each kind of navigation data in the map whether it is there.
    virtual void HasNavData(std::map<K3NavType, bool>&);
    // Makes the fonts of a graphics context ready; whether they are.
    virtual bool InitializeFonts(K3Grfx*);

    // @{
    // Insert a pane into the layout: of a class, by the name that users know, or one of the
    // built-in ones. What came of it; CSP_INSERT_DEFAULT.
    virtual CSP_INSERT_RESULT InsertPaneByClass(const PIUID&, CRuntimeClass* paneClass,
                                                CP_INSERT_LOC location, unsigned int);
    virtual CSP_INSERT_RESULT
    InsertPaneByUIName(const PIUID&, const CString& name, CP_INSERT_LOC location,
                       KESSPLITTERWND::CPanesConfiguration* configuration);
    virtual CSP_INSERT_RESULT InsertStockPane(const PIUID&, ZEP_STOCK_PANE pane,
                                              CP_INSERT_LOC location,
                                              KESSPLITTERWND::CPanesConfiguration* configuration);
    // @}

    // Whether the navigation data can be used by now.
    virtual bool IsNavDataInitialized();
    // Whether terminal charts and documents can be shown: 0 for no.
    virtual int IsTCLAndPDFCapable();
    // Changes what trip kits are made of.
    virtual void ModifyTripKitInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits, bool);
    // Brings the next layout page to the front; false when there is none.
    virtual bool NextLayoutPage();

    // All ones: no page can be added.
    virtual unsigned int NextNewLayoutPageID(APPMODE mode);

    // Told when another on-board page comes to the front.
    virtual void OnBoardPageChange(unsigned int pageID);
    // Brings the layout page before to the front; false when there is none.
    virtual bool PrevLayoutPage();
    // Prints the header of a page with nothing but the copyright in it.
    virtual void PrintCopyrightOnlyHeader(CDC*, PrintHeaderInfo&);
    // Prints the letter that tells what has changed in the data.
    virtual void PrintRevisionLetter(const PIUID&);
    // Makes the menus of a kind anew.
    virtual void RebuildMenu(MENUCATEGORY category);
    // Draws a view again.
    virtual void ReDraw(UIItem item);
    // From now on tells the object of the events of a type.
    virtual void RegisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE type, FrameworkEvent* event);
    // Takes a pane out of the layout; false when it is not there.
    virtual bool RemovePane(const PIUID&, unsigned int, CRuntimeClass* paneClass);
    // Ends the drawing that AddTopLevelDraw began.
    virtual void RemoveTopLevelDraw(TopLevelDraw draw, int);
    // Takes a waypoint of the user out; false when it is not there.
    virtual bool RemoveUserWP(const KPUID&, const PIUID&, bool);

    // @{
    // Show the configuration with an id, or one with a window of a class; 0 when there is none.
    virtual int SelectConfiguration(unsigned int configID);
    virtual int SelectConfigurationWithClass(const CString&);
    // @}

    // Selects an object in a view.
    virtual void SelectInAppUI(UIItem item, ChartObject* object, const K3NavKey& key);

    // @{
    // Keep a configuration value, which GetConfigVal gives from then on.
    virtual void SetConfigVal(const char* section, const char* key, const char* value);
    virtual void SetConfigVal(const char* section, const char* key, int value);
    // @}

    // Which configuration is the first one.
    virtual void SetDefaultConfigID(unsigned int configID);
    // What a click into a chart view does from now on.
    virtual void SetEnrInputMode(UIItem item, ChartInputMode mode);
    // Gives a command another image in the host's shared icon lists; false when it is not done.
    virtual bool SetMappedImage(unsigned int, unsigned int, unsigned int);
    // Brings the host back to its normal mode.
    virtual void SetModeNormal();
    // Switches the night mode.
    virtual void SetNightMode(bool, bool);
    // Gives the pane of a class a title; false when there is no such pane.
    virtual bool SetPaneTitle(CRuntimeClass* paneClass, const CString& title, bool);
    // Tells what will be printed, and on which context.
    virtual void SetPrintingInfo(const PIUID&, std::vector<TripKitInfo*>& tripKits, HDC);
    // How the panes of a configuration share the window from now on.
    virtual void SetSpacing(unsigned int configID, const KESSPLITTERWND::CPanesSpacing& spacing);
    // What zooms a chart view from now on; false when it is not taken.
    virtual bool SetZoomHandler(UIItem item, EnrZoomHandler* handler);
    // Shows an application of the host.
    virtual void ShowApplication(unsigned int);
    // Shows the picture of the start; 0 when there is none.
    virtual unsigned int ShowSplashScreen(unsigned int);
    // Shows or hides a tool bar.
    virtual void ShowToolBar(unsigned long, int);

    // @{
    // Two panes of the layout, or two that are torn off, change places; false when they do not.
    virtual bool SwapPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int);
    virtual bool SwapPeeledPanes(const PIUID&, CRuntimeClass*, CRuntimeClass*, unsigned int);
    // @}

    // Brings the first layout page to the front.
    virtual void SwitchToDefaultLayoutPage();
    // Follows the position on the chart.
    virtual void TrackGPS();
    // Another folder of flight plans, for this run alone.
    virtual void TransientUpdateFlightPlanPath(const CString& path);
    // Tells the user that there is no look for the night.
    virtual void TripNoNightThemeAlert();
    // Ends what RegisterForEvent began.
    virtual void UnregisterForEvent(const PIUID&, FRAMEWORK_EVENT_TYPE type, FrameworkEvent* event);
    // Deselects all in a view.
    virtual void UnSelectAllInAppUI(UIItem item);
    // Says how the menu item or button of a command is to look.
    virtual void UpdateCmdUI(CCmdUI*, int);
    // Brings the buttons of the flight bag up to date.
    virtual void UpdateEFBButtonStates();
    // Brings the position up to date.
    virtual void UpdateGPS();
    // Brings the caption of the pane of a class up to date; false when there is none.
    virtual bool UpdatePaneCaption(CRuntimeClass* paneClass);

    // @{
    // Which sources of data the host uses.
    virtual bool UsingCDA();
    virtual bool UsingDDM();
    virtual bool UsingKDSEChart();
    virtual bool UsingKDSEnr();
    // @}

    // Returns when a view has been drawn.
    virtual void WaitForDoneDrawing(UIItem item);
};

// The area that the library asks for, to keep its windows inside.
inline constexpr IAppAccess::GAA_TYPE GAA_WINDOW_AREA{1};
