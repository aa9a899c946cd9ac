#include "AppAccess.h"
#include "EFB.h"

#include <gtest/gtest.h>

#include <algorithm>

// This host's own side of the types that the library only hands on.
class PIUID
{};
class MiscFtrInfo
{};
class KESSPLITTERWND::CPanesConfigurationEntry
{};

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
TEST(PlainHostTest, AnswersAndSetsTheOutputsThatHaveADefault)
{
    PlainHost host;
    PlainEfb efb;
    EXPECT_EQ(host.AllowRouteModification(), 1);
    EXPECT_EQ(host.CurrentLayoutPageID(), 0xFFFFFFFF);
    EXPECT_EQ(host.InsertPaneByClass(PIUID(), nullptr, CP_INSERT_LOC{1}, 0), 2);
    EXPECT_EQ(host.InsertPaneByUIName(PIUID(), "", CP_INSERT_LOC{1}, nullptr), 2);
    EXPECT_EQ(host.InsertStockPane(PIUID(), ZEP_STOCK_PANE{1}, CP_INSERT_LOC{1}, nullptr), 2);
    EXPECT_EQ(host.AllowMiscFeature(MiscFtrInfo()), -1);
    EXPECT_EQ(host.NextNewLayoutPageID(EFB), 0xFFFFFFFF);
    EXPECT_EQ(host.GetActiveConfigurationID(), 0xFFFFFFFF);
    EXPECT_EQ(host.GetLayoutPageCount(EFB), 0);
    EXPECT_EQ(host.GetNextEnrInputMode(UIItem{1}, ChartInputMode{7}), 7) << "the mode stays";
    EXPECT_EQ(host.GetDragDropCF(UIItem{1}, DRGDRP_ITEM{1}), 1U) << "any format can be used";
    EXPECT_STREQ(host.GetConfigVal("section", "key", "fallback"), "");
    EXPECT_EQ(host.GetConfigVal("section", "key", 5), 0);
    CString name = "name";
    host.GetProductName(name);
    EXPECT_STREQ(name, "");
    bool shown = true;
    EXPECT_EQ(host.GetEnrChart(UIItem{1}, shown), nullptr);
    EXPECT_FALSE(shown);
    EXPECT_EQ(host.GetEFB(), nullptr);
    for (const bool ofHost : {true, false})
    {
        int area[4] = {1, 2, 3, 4};
        auto& [x, y, width, height] = area;
        EXPECT_FALSE(ofHost ? host.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height)
                            : efb.GetAvailableArea(x, y, width, height));
        EXPECT_EQ(std::count(area, area + 4, 0), 4);
    }
    EXPECT_TRUE(efb.BeginModalDialog() && efb.IsModalDialogOpen() && efb.EndModalDialog());
}
} // namespace
