#include "SearchStatusBar.h"
#include "support/WindowTest.h"

namespace {

// The bar with its protected side open to tests.
class Bar : public CSearchStatusBar
{
public:
    std::vector<int> timersAtPainting;

    void DrawOB(CDC& dc) override
    {
        timersAtPainting.push_back(m_activeTimer);
        CSearchStatusBar::DrawOB(dc);
    }

    using CSearchStatusBar::m_activeTimer;
    using CSearchStatusBar::m_period;

    CString Text() const { return GetText(0); }
};

using SearchStatusBarTest = WindowTest;
const CRect Place(0, 0, 300, 20);

TEST_F(SearchStatusBarTest, DotsComeEachSecondBeginAgainAfterFiveAndGoOnWithTheNextSearch)
{
    Bar& bar = Add<Bar>(Place);
    EXPECT_EQ(bar.m_period, 1000U);
    bar.m_period = 10;
    std::vector<CString> seen;
    const auto see = [&](size_t count) {
        seen.clear();
        bar.StartSearchProgress();
        return PumpUntil([&] {
            if (seen.empty() || seen.back() != bar.Text())
            {
                seen.push_back(bar.Text());
            }
            return seen.size() == count;
        });
    };
    ASSERT_TRUE(see(8));
    EXPECT_EQ(seen,
              (std::vector<CString>{"Searching.", "Searching. .", "Searching. . .",
                                    "Searching. . . .", "Searching. . . . .",
                                    "Searching. . . . . .", "Searching. .", "Searching. . ."}));
    bar.StopLoadingProgress(); // either ends it
    PumpFor(60);
    EXPECT_EQ(bar.Text(), seen.back()) << "the last text stays";
    ASSERT_TRUE(see(2));
    EXPECT_EQ(seen, (std::vector<CString>{"Searching.", "Searching. . . ."}));
}

TEST_F(SearchStatusBarTest, LoadingStandsStillAndLetsNoSearchBegin)
{
    const ModeScope scope(ONBOARD);
    Bar& bar = Add<Bar>(Place);
    bar.m_period = 10;
    bar.timersAtPainting.clear();
    bar.StartLoadingProgress();
    ASSERT_FALSE(bar.timersAtPainting.empty()) << "its text shows at once";
    EXPECT_EQ(bar.timersAtPainting.front(), -1) << "before its timer runs";
    bar.StartSearchProgress();
    MessageLog log(bar, {WM_TIMER});
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_TIMER) > 2; }));
    EXPECT_EQ(log.WParams(WM_TIMER).front(), 1190U);
    bar.SendMessage(WM_TIMER, 7);
    EXPECT_EQ(bar.Text(), "Loading Results.");
    EXPECT_EQ(bar.SendMessage(WM_ERASEBKGND, WPARAM(CClientDC(&bar).m_hDC)), 0) << "no flicker";

    bar.StopSearchProgress();
    bar.StartSearchProgress();
    bar.StartLoadingProgress();
    EXPECT_EQ(bar.Text(), "Searching.");
    bar.SendMessage(WM_TIMER, 1189);
    EXPECT_EQ(bar.Text(), "Searching. .");
    EXPECT_FALSE(bar.GetUpdateRect(nullptr)) << "a dot shows at once";
}

} // namespace
