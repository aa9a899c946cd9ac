#include "AppAccess.h"
#include "EFB.h"

#include <gtest/gtest.h>

#include <vector>

namespace {
template <class Provider> struct Plain : Provider
{
    const char* GetProviderName() override { return "plain"; }
};

// A host that overrides nothing leaves nothing behind that was there before.
TEST(PlainHostTest, SetsTheOutputsThatHaveADefault)
{
    Plain<IAppAccess> host;
    CString name = "name";
    host.GetProductName(name);
    EXPECT_STREQ(name, "");
    bool shown = true;
    EXPECT_EQ(host.GetEnrChart(UIItem{1}, shown), nullptr);
    EXPECT_FALSE(shown);
    for (const bool ofHost : {true, false})
    {
        int area[4] = {1, 2, 3, 4};
        auto& [x, y, width, height] = area;
        EXPECT_FALSE(ofHost ? host.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height)
                            : Plain<IEFB>().GetAvailableArea(x, y, width, height));
        EXPECT_EQ(std::vector(area, area + 4), std::vector(4, 0));
    }
}
} // namespace
