#include "SearchStatusBar.h"
#include "support/Accessible.h"

namespace {

class StatusBarTest : public WindowTest
{
protected:
    CCustomStatusBar& AddBar(std::vector<int> edges)
    {
        auto& bar = Add<Fenced<CCustomStatusBar>>(CRect(0, 0, 0, 0));
        bar.SetParts(int(edges.size()), edges.data());
        return bar;
    }
    static Pixels Painted(CWnd& bar)
    {
        bar.Invalidate();
        return Settled(bar);
    }
};

TEST_F(StatusBarTest, OnBoardItIsDarkAndHighEnoughAndTheStandardLookComesBack)
{
    auto& bar = AddBar({150, 300, -1});
    bar.SetText("Left", 0, 0);
    bar.SetText("\tMiddle", 1, 0);
    bar.SetText("\t\tRight", 2, 0);
    const Pixels standard = Painted(bar);
    {
        const ModeScope scope(EFB);
        const Pixels dark = Painted(bar);
        const CRect client = ClientRectOf(bar);
        EXPECT_GE(client.Height(), 27 + 4);
        EXPECT_EQ(WindowRectOf(bar).bottom, WindowRectOf(Host()).bottom);
        EXPECT_GT(dark.Count(RGB(50, 50, 50)), client.Width() * client.Height() * 8 / 10);
        // From, to and whether there are letters.
        const std::tuple<int, int, bool> areas[] = {{0, 75, true},
                                                    {75, 150, false},
                                                    {190, 260, true},
                                                    {310, client.right - 100, false},
                                                    {client.right - 80, client.right, true}};
        for (const auto& [from, to, inked] : areas)
        {
            const int letters = dark.Count(RGB(230, 230, 230), CRect(from, 0, to, client.bottom));
            EXPECT_TRUE(inked ? letters > 20 : letters == 0) << from;
        }
        bar.SubclassWindow(bar.UnsubclassWindow()); // with the font that it has here
    }
    EXPECT_TRUE(Painted(bar) == standard);
}

TEST_F(StatusBarTest, AnOwnerDrawsItsPaneInEveryModeAndMayDeleteTheBarThere)
{
    auto& bar = AddBar({50, 200, -1});
    bar.SetText("Other", 1, 0);
    int drawn = 0;
    bool ends = false;
    Host().OnMessage(WM_DRAWITEM, [&](ToldMessage& told) {
        const auto* const item = reinterpret_cast<const DRAWITEMSTRUCT*>(told.lParam);
        EXPECT_EQ(item->itemData, 77U);
        ++drawn;
        // What it leaves behind shows nowhere else.
        ::SetTextColor(item->hDC, RGB(255, 0, 0));
        ::IntersectClipRect(item->hDC, 0, 0, 1, 1);
        if (ends)
        {
            Remove(bar);
        }
    });
    for (const APPMODE mode : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        bar.SendMessage(SB_SETTEXT, SBT_OWNERDRAW, 77);
        drawn = 0;
        const Pixels seen = Painted(bar);
        EXPECT_GT(drawn, 0) << mode;
        EXPECT_EQ(seen.Count(RGB(230, 230, 230)) > 20, mode != STD) << "of the other pane";
    }
    ends = true;
    drawn = 0;
    bar.Invalidate();
    PumpAll();
    EXPECT_EQ(drawn, 1);
}

TEST_F(StatusBarTest, TheNextBarOfAnObjectHasAFontAndTimersOfItsOwnWheneverTheyCome)
{
    CSearchStatusBar object;
    for (const int points : {120, 140})
    {
        CFont font;
        font.CreatePointFont(points, "Arial");
        auto& bar = Add<CStatusBarCtrl>(CRect(0, 0, 0, 0));
        object.UnsubclassWindow();
        ASSERT_TRUE(object.SubclassWindow(bar.Detach()));
        const ModeScope scope(points == 120 ? STD : ONBOARD); // in which its font comes
        Painted(object);
        const int height = ClientRectOf(object).Height();
        object.SetFont(&font);
        PumpAll();
        EXPECT_TRUE(points == 120 || ClientRectOf(object).Height() == height);
        for (const APPMODE mode : {ONBOARD, STD, EFB})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            Painted(object);
            EXPECT_EQ(object.GetFont(), mode == STD ? &font : &CCustomStatusBar::GetOnBoardFont());
        }
        object.StartSearchProgress();
        EXPECT_EQ(object.GetText(0), "Searching.");
        object.SubclassWindow(object.UnsubclassWindow());
        EXPECT_FALSE(object.KillTimer(1189)) << "nobody could stop it";
        object.StartSearchProgress();
    }
}

TEST_F(StatusBarTest, ItsSimpleFormShowsAndTellsItsTextInEveryMode)
{
    auto& bar = AddBar({50, -1});
    bar.SetText("Pane", 0, 0);
    bar.SetText("\tOpens a chart", 255, 0);
    bar.SetSimple();
    for (const APPMODE mode : {STD, EFB})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        EXPECT_EQ(Read(*Reached(bar), CHILDID_SELF).value, "Opens a chart");
    }
    const CRect client = ClientRectOf(bar);
    const CRect middle(client.CenterPoint() - CSize(90, 12), CSize(180, 24));
    EXPECT_GT(Painted(bar).Count(RGB(230, 230, 230), middle), 200);
}

TEST_F(StatusBarTest, AnOwnerThatPlacesItGetsItsPanesWhereTheyAre)
{
    const ModeScope scope(ONBOARD);
    auto& bar = Add<CCustomStatusBar>(CRect(0, 0, 0, 0), CCS_NORESIZE | CCS_NOPARENTALIGN);
    std::vector<int> edges = {100, -1};
    bar.SetParts(2, edges.data());
    bar.MoveWindow(CRect(0, 0, 300, 34));
    PumpAll();
    bar.SetText("First", 0, 0);
    bar.SetText("\t\tLast", 1, 0);
    const auto letters = [&](int from, int to) {
        return Settled(bar).Count(RGB(230, 230, 230), CRect(from, 0, to, 34));
    };
    EXPECT_GT(letters(0, 100), 100);
    EXPECT_GT(letters(230, 300), 100) << "the last ends where the bar does";
    bar.MoveWindow(CRect(0, 0, 400, 34));
    EXPECT_EQ(letters(230, 300), 0) << "and goes there with it";
    EXPECT_GT(letters(330, 400), 100);
    int clicked = -1;
    Host().OnCode(NM_CLICK,
                  [&](ToldMessage& told) { clicked = int(About<NMMOUSE>(told).dwItemSpec); });
    Click(ClientPoint(bar, CPoint(390, 20)));
    EXPECT_EQ(clicked, 1);
    bar.SetWindowText(""); // the first pane's
    EXPECT_EQ(letters(0, 100), 0);
    for (const bool simple : {false, true}) // whose one place is every pane's
    {
        bar.SetSimple(simple);
        CRect last;
        ASSERT_TRUE(bar.GetRect(1, &last)) << simple; // for what the host puts there
        EXPECT_EQ(last.BottomRight(), CPoint(400, 34));
        EXPECT_EQ(last.left < 100, simple);
        EXPECT_FALSE(bar.GetRect(2, &last));
        bar.MoveWindow(CRect(0, 0, 400, simple ? 35 : 34));
        EXPECT_EQ(bar.IsSimple() != FALSE, simple);
    }
}

} // namespace
