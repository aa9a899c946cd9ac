#include "AppAccess.h"
#include "EFB.h"
#include "Printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// This host's own side of the types that the library only hands on.
struct HostThing
{
    int value = 7;
    friend bool operator==(const HostThing&, const HostThing&) = default;
};
class K3NavKey : public HostThing
{};
class KPUID : public HostThing
{};
class MiscFtrInfo : public HostThing
{};
class PISelectedItemRoutingInfo : public HostThing
{};
class PIUID : public HostThing
{};
class PrintHeaderInfo : public HostThing
{};
class KESSPLITTERWND::CPanesConfiguration : public HostThing
{};
class KESSPLITTERWND::CPanesConfigurationEntry : public HostThing
{};
class KESSPLITTERWND::CPanesSpacing : public HostThing
{};
enum ChartInputMode : int
{
    CHART_PAN = 0,
    CHART_RULER = 5,
};
enum IAppAccess::GAA_TYPE : int
{
    GAA_SCREEN = 0,
};

namespace {
class PlainHost : public IAppAccess
{
public:
    const char* GetProviderName() override { return "plain"; }
};

class PlainEfb : public IEFB
{
public:
    const char* GetProviderName() override { return "plain"; }
};

template <class Operation> struct Named
{
    const char* name;
    Operation operation;
};
template <class Operation> Named<Operation> Name(const char* name, Operation operation)
{
    return {name, operation};
}
#define OP(name) Name(#name, &IAppAccess::name)

// An argument that is not what any default answers or sets: not 0, not empty, not null.
template <class T> T Sample()
{
    if constexpr (std::is_pointer_v<T>)
    {
        alignas(16) static char someObject[64];
        if constexpr (std::is_function_v<std::remove_pointer_t<T>>)
        {
            return [](K3Chart*, K3Grfx*, void*) { return 1; };
        }
        else
        {
            return reinterpret_cast<T>(someObject);
        }
    }
    else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>)
    {
        return static_cast<T>(7);
    }
    else if constexpr (std::is_same_v<T, CString>)
    {
        return "sample";
    }
    else if constexpr (std::is_same_v<T, std::map<K3NavType, bool>>)
    {
        return {{K3NavType{7}, true}};
    }
    else if constexpr (std::is_base_of_v<HostThing, T>)
    {
        return {};
    }
    else
    {
        return {Sample<typename T::value_type>()};
    }
}

// Calls one operation of a host that overrides nothing: the answer is false, 0, null or empty, and
// every argument is as it was.
template <class Result, class Call, class... Args>
void ExpectNothing(const char* name, Call call, std::tuple<Args...> arguments)
{
    const auto before = arguments;
    if constexpr (std::is_void_v<Result>)
    {
        std::apply(call, arguments);
    }
    else if constexpr (std::is_same_v<Result, CString>)
    {
        EXPECT_STREQ(std::apply(call, arguments), "") << name;
    }
    else
    {
        EXPECT_TRUE(std::apply(call, arguments) == Result{}) << name;
    }
    EXPECT_TRUE(arguments == before) << name << " touches what it was given";
}

template <class Result, class... Args> void ExpectNothing(Named<Result (IAppAccess::*)(Args...)> op)
{
    PlainHost host;
    ExpectNothing<Result>(
        op.name, [&](auto&... args) { return (host.*op.operation)(args...); },
        std::tuple(Sample<std::remove_cvref_t<Args>>()...));
}

template <class Result, class... Args>
void ExpectNothing(Named<Result (IAppAccess::*)(Args...) const> op)
{
    const PlainHost host;
    ExpectNothing<Result>(
        op.name, [&](auto&... args) { return (host.*op.operation)(args...); },
        std::tuple(Sample<std::remove_cvref_t<Args>>()...));
}

template <class... Operations> void ExpectNothingFromAll(Operations... operations)
{
    (ExpectNothing(operations), ...);
}

TEST(PlainHostTest, SaysNoAndZero)
{
    ExpectNothingFromAll(
        OP(ActiveMovingMap), OP(AddUserWaypoint), OP(FindUserWaypoint), OP(FontsInitialized),
        OP(GetOBFlyoutBtnCmdId), OP(GetOBPageLaunchFlyoutBtnID), OP(HasConfigWnd),
        OP(InitializeFonts), OP(IsNavDataInitialized), OP(NextLayoutPage), OP(PrevLayoutPage),
        OP(RemovePane), OP(RemoveUserWP), OP(SetMappedImage), OP(SetPaneTitle), OP(SetZoomHandler),
        OP(SwapPanes), OP(SwapPeeledPanes), OP(UpdatePaneCaption), OP(UsingCDA), OP(UsingDDM),
        OP(UsingKDSEChart), OP(UsingKDSEnr));
    ExpectNothingFromAll(OP(CanDoTripKit), OP(ChartViewExists), OP(GetConfig),
                         OP(GetEnrDbStoreCount), OP(GetEnrInputMode), OP(GetLayoutPageCount),
                         OP(GetNightMode), OP(GetTermChartDataCount), OP(IsTCLAndPDFCapable),
                         OP(SelectConfiguration), OP(SelectConfigurationWithClass),
                         OP(ShowSplashScreen));
}

TEST(PlainHostTest, HasNoObjects)
{
    ExpectNothingFromAll(
        OP(GetActiveChartWnd), OP(GetActiveDoc), OP(GetAircraftComm), OP(GetAirportList),
        OP(GetAutoRouter), OP(GetConfigWnd), OP(GetConversionBoy), OP(GetCoordinateSys),
        OP(GetDisplayPreferences), OP(GetEFB), OP(GetGPS), OP(GetKSS), OP(GetMainIcon),
        OP(GetMasterIconList), OP(GetMasterLargeIconList), OP(GetMovingMap), OP(GetNavData),
        OP(GetNavTypeIconsPool), OP(GetPDFViewer), OP(GetPaneWnd), OP(GetPeeledWnd),
        OP(GetPerformanceModel), OP(GetPrinting), OP(GetProductConfig), OP(GetRuntimeFromUIName),
        OP(GetSoloSelectedMTObject), OP(GetStreetData), OP(GetTermCharts), OP(GetTextAttrs),
        OP(GetTextPages), OP(GetToolBar), OP(GetUWPList), OP(GetWeather), OP(GetZOrderManager),
        OP(GetZoomHandler));
    PlainHost host;
    EXPECT_EQ(host.GetTermChartData(), nullptr);
    EXPECT_EQ(host.GetTermChartData(3), nullptr);
}

TEST(PlainHostTest, HasNoTexts)
{
    ExpectNothingFromAll(
        OP(GetBitmapPath), OP(GetCommonPath), OP(GetCurrentLayoutPageName), OP(GetDataPath),
        OP(GetEFBReadOnlyFlightPlanPath), OP(GetEFBScratchFlightPlanPath), OP(GetExeModulePath),
        OP(GetFlightPlanPath), OP(GetFontPath), OP(GetHelpFilePath), OP(GetLocalPath),
        OP(GetTTFontPath), OP(GetTerminalChartsPath), OP(GetTrackPath), OP(GetWriteDirectoryBase));
}

TEST(PlainHostTest, DoesNothingAndLeavesWhatItIsGivenAlone)
{
    ExpectNothingFromAll(
        OP(AddChartOverlayWnd), OP(AddNewRoute), OP(AddTopLevelDraw), OP(ChangeLayoutPage),
        OP(ClearAllFlightPlans), OP(ClearCheckpointedRouteData), OP(ClearTCLPDFConfigs),
        OP(ClipboardNotify), OP(CloseAirportProperties), OP(CloseApplication), OP(CloseCommInfoDlg),
        OP(CloseFlyout), OP(CloseFlyouts), OP(CloseNavSearchDlg), OP(CloseObjectDialogs),
        OP(CloseSelectItemOBDlg), OP(CloseWaypointDlg), OP(CollectRevisionLetterInfo),
        OP(CopyArrayToClipboard), OP(CreateNewRoute), OP(CreateTripKitandQuickPrint),
        OP(DoMultiplePrint), OP(DoSinglePrint), OP(DoTripKit), OP(DoTripKitDirect),
        OP(DoTripKitPrinting), OP(DrawLocateArrow), OP(DrawOverlayBackground), OP(EFBAppHide),
        OP(EFBAspectRatioChanged), OP(EFBFlightInit), OP(EndAnimations), OP(GetCopyMenuItems),
        OP(GetPIItemInfo), OP(GetSelectedMTObjects), OP(GetSpacing), OP(GetSupportedPaneUINames),
        OP(HasNavData), OP(ModifyTripKitInfo), OP(OnBoardPageChange));
    ExpectNothingFromAll(OP(PrintCopyrightOnlyHeader), OP(PrintRevisionLetter), OP(ReDraw),
                         OP(RebuildMenu), OP(RegisterForEvent), OP(RemoveTopLevelDraw),
                         OP(SelectInAppUI), OP(SetDefaultConfigID), OP(SetEnrInputMode),
                         OP(SetModeNormal), OP(SetNightMode), OP(SetPrintingInfo), OP(SetSpacing),
                         OP(ShowApplication), OP(ShowToolBar), OP(SwitchToDefaultLayoutPage),
                         OP(TrackGPS), OP(TransientUpdateFlightPlanPath), OP(TripNoNightThemeAlert),
                         OP(UnSelectAllInAppUI), OP(UnregisterForEvent), OP(UpdateCmdUI),
                         OP(UpdateEFBButtonStates), OP(UpdateGPS), OP(WaitForDoneDrawing));
}

TEST(PlainHostTest, AnswersThatAreNotZero)
{
    PlainHost host;
    const PIUID id;
    const UIItem item{3};
    const CP_INSERT_LOC location{1};
    KESSPLITTERWND::CPanesConfiguration panes;
    const struct
    {
        const char* name;
        long long answer;
        long long expected;
    } cases[] = {
        {"AllowMiscFeature", host.AllowMiscFeature(MiscFtrInfo()), -1},
        {"AllowRouteModification", host.AllowRouteModification(), 1},
        {"CurrentLayoutPageID", host.CurrentLayoutPageID(), 0xFFFFFFFF},
        {"GetActiveConfigurationID", host.GetActiveConfigurationID(), 0xFFFFFFFF},
        {"NextNewLayoutPageID", host.NextNewLayoutPageID(ONBOARD), 0xFFFFFFFF},
        {"GetDragDropCF", host.GetDragDropCF(item, DRGDRP_ITEM{2}), 1},
        {"GetNextEnrInputMode", host.GetNextEnrInputMode(item, CHART_RULER), CHART_RULER},
        {"InsertPaneByClass", host.InsertPaneByClass(id, nullptr, location, 0), 2},
        {"InsertPaneByUIName", host.InsertPaneByUIName(id, "map", location, &panes), 2},
        {"InsertStockPane", host.InsertStockPane(id, ZEP_STOCK_PANE{4}, location, &panes), 2},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.answer, each.expected) << each.name;
    }
}

TEST(PlainHostTest, SetsTheOutputsThatHaveADefault)
{
    PlainHost host;
    PlainEfb efb;
    int area[4] = {1, 2, 3, 4};
    const int empty[4] = {};
    EXPECT_FALSE(host.GetAvailableArea(GAA_WINDOW_AREA, area[0], area[1], area[2], area[3]));
    EXPECT_TRUE(std::equal(area, area + 4, empty));
    std::fill(area, area + 4, 9);
    EXPECT_FALSE(efb.GetAvailableArea(area[0], area[1], area[2], area[3]));
    EXPECT_TRUE(std::equal(area, area + 4, empty));

    CString product = "something";
    host.GetProductName(product);
    EXPECT_STREQ(product, "");

    bool output = true;
    EXPECT_EQ(host.GetEnrChart(UIItem{3}), nullptr);
    EXPECT_EQ(host.GetEnrChart(UIItem{3}, output), nullptr);
    EXPECT_FALSE(output);
}

TEST(PlainHostTest, KeepsNoConfiguration)
{
    PlainHost host;
    host.SetConfigVal("Dialog", "Title", "text");
    host.SetConfigVal("Dialog", "Width", 5);
    EXPECT_STREQ(host.GetConfigVal("Dialog", "Title", "fallback"), "");
    EXPECT_EQ(host.GetConfigVal("Dialog", "Width", 3), 0);

    host.Configure(1, {KESSPLITTERWND::CPanesConfigurationEntry()});
    EXPECT_EQ(host.Configure(), 1) << "the two operations of one name stay apart";
    EXPECT_EQ(host.Configurable(), 0);
}

TEST(PlainEfbTest, LetsModalDialogsPass)
{
    PlainEfb efb;
    EXPECT_TRUE(efb.BeginModalDialog());
    EXPECT_TRUE(efb.IsModalDialogOpen());
    EXPECT_TRUE(efb.EndModalDialog());
    efb.ShowVKB(true, VKB_FOR_EDIT, nullptr);
    EXPECT_EQ(efb.Configurable(), 0);
    EXPECT_EQ(efb.Configure(), 1);
}

// What the library's own code reaches through the base classes.
class WholeHost : public IAppAccess
{
public:
    class Efb : public IEFB
    {
    public:
        explicit Efb(std::string& calls)
            : m_calls(calls)
        {}
        ~Efb() override { m_calls += "gone "; }
        const char* GetProviderName() override { return "efb"; }
        bool BeginModalDialog() override { return m_calls += "begin ", false; }
        bool EndModalDialog() override { return m_calls += "end ", false; }
        void ShowVKB(bool show, VKB_SHOW_POS position, HWND) override
        {
            m_calls += (show ? "show" : "hide") + std::to_string(position) + " ";
        }

    private:
        std::string& m_calls;
    };
    class Printing : public IPrinting
    {
    public:
        const char* GetProviderName() override { return "printing"; }
        void BeginPrinting(CDC*, CPrintInfo*) override {}
        void EndPrinting(CDC*, CPrintInfo*) override {}
    };
    class Manager : public CZOrderManager
    {
    public:
        void UpdateZOrder() override { ++updates; }
        int updates = 0;
    };

    using IAppAccess::Configure;
    int Configure() override { return 12; }
    const char* GetProviderName() override { return "whole"; }
    bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height) override
    {
        std::tie(x, y, width, height) = std::tuple(int(type), 2, 3, 4);
        return true;
    }
    IEFB* GetEFB() override { return efb.get(); }
    IPrinting* GetPrinting() override { return &printing; }
    CZOrderManager* GetZOrderManager() override { return &manager; }

    std::string calls;
    std::unique_ptr<IEFB> efb = std::make_unique<Efb>(calls);
    Printing printing;
    Manager manager;
};

TEST(WholeHostTest, IsReachedThroughTheInterfaces)
{
    WholeHost whole;
    IAppAccess& host = whole;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    EXPECT_TRUE(host.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height));
    EXPECT_EQ(std::tuple(x, y, width, height), std::tuple(1, 2, 3, 4));

    host.GetZOrderManager()->UpdateZOrder();
    EXPECT_EQ(whole.manager.updates, 1);

    EXPECT_FALSE(host.GetEFB()->BeginModalDialog());
    host.GetEFB()->ShowVKB(false, VKB_FOR_EDIT, nullptr);
    host.GetEFB()->ShowVKB(true, VKB_FOR_EDIT, nullptr);
    EXPECT_FALSE(host.GetEFB()->EndModalDialog());
    EXPECT_EQ(whole.calls, "begin hide3 show3 end ");

    IProviderBase& base = host;
    EXPECT_EQ(base.Configure(), 12);
    EXPECT_EQ(host.GetPrinting()->Configure(), 1);
}

TEST(WholeHostTest, ProvidersDieThroughTheirBase)
{
    std::string calls;
    std::unique_ptr<IProviderBase> provider = std::make_unique<WholeHost::Efb>(calls);
    provider.reset();
    EXPECT_EQ(calls, "gone ");
}
} // namespace
