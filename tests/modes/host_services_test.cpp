#include "AppAccess.h"
#include "EFB.h"

#include <gtest/gtest.h>

#include <algorithm>

// This host's own side of the types that the library only hands on.
class MiscFtrInfo
{};
class PIUID
{};
class KESSPLITTERWND::CPanesConfiguration
{};
class KESSPLITTERWND::CPanesConfigurationEntry
{};
enum ChartInputMode : int
{
    CHART_RULER = 5,
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

// A host that overrides nothing has no features, and the library goes by these answers.
TEST(PlainHostTest, Answers)
{
    PlainHost host;
    const PIUID id;
    const UIItem item{3};
    const CP_INSERT_LOC location{1};
    KESSPLITTERWND::CPanesConfiguration panes;
    const struct
    {
        const char* name;
        long long answer, expected;
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
        {"GetEFB", host.GetEFB() != nullptr, 0},
        {"GetPrinting", host.GetPrinting() != nullptr, 0},
        {"GetZOrderManager", host.GetZOrderManager() != nullptr, 0},
        {"GetTermChartData", host.GetTermChartData(3) != nullptr, 0},
        {"GetNightMode", static_cast<long long>(host.GetNightMode()), 0},
        {"Configurable", host.Configurable(), 0},
    };
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.answer, each.expected) << each.name;
    }
    host.Configure(1, {KESSPLITTERWND::CPanesConfigurationEntry()});
    EXPECT_EQ(host.Configure(), 1) << "the two operations of one name stay apart";
}

TEST(PlainHostTest, SetsTheOutputsThatHaveADefault)
{
    PlainHost host;
    PlainEfb efb;
    for (const bool ofHost : {true, false})
    {
        int area[4] = {1, 2, 3, 4};
        auto& [x, y, width, height] = area;
        EXPECT_FALSE(ofHost ? host.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height)
                            : efb.GetAvailableArea(x, y, width, height));
        EXPECT_EQ(std::count(area, area + 4, 0), 4);
    }
    CString product = "something";
    host.GetProductName(product);
    EXPECT_STREQ(product, "");
    bool output = true;
    EXPECT_EQ(host.GetEnrChart(UIItem{3}, output), nullptr);
    EXPECT_FALSE(output);

    host.SetConfigVal("Dialog", "Title", "text");
    EXPECT_STREQ(host.GetConfigVal("Dialog", "Title", "fallback"), "");
    EXPECT_EQ(host.GetConfigVal("Dialog", "Width", 3), 0);
    EXPECT_TRUE(efb.BeginModalDialog() && efb.IsModalDialogOpen() && efb.EndModalDialog());
}
} // namespace
