#include "CustomToolbar.h"
#include "support/WindowTest.h"

namespace {

using Ids = std::vector<unsigned int>;
using Messages = std::vector<std::string>;

struct Button
{
    unsigned int id;
    int image;
    BYTE style = TBSTYLE_BUTTON;
    BYTE state = TBSTATE_ENABLED;

    friend bool operator==(const Button&, const Button&) = default;
};

class OrderedBar : public CustomToolbar
{
public:
    OrderedBar(CWnd& parent, const std::vector<Button>& buttons,
               DWORD style = TBSTYLE_FLAT | TBSTYLE_LIST)
    {
        EXPECT_TRUE(CreateEx(&parent, style, WS_CHILD | WS_VISIBLE));
        SendMessage(TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_DRAWDDARROWS);
        for (const Button& button : buttons)
        {
            Append(button);
        }
        SetWindowPos(nullptr, 0, 0, 780, 60, SWP_NOZORDER);
        PumpAll();
    }

    void Append(const Button& button)
    {
        TBBUTTON made = {.iBitmap = button.image,
                         .idCommand = int(button.id),
                         .fsState = button.state,
                         .fsStyle = button.style,
                         .iString = INT_PTR("Direct to")};
        SendMessage(TB_ADDBUTTONS, 1, LPARAM(&made));
    }

    std::vector<Button> Buttons() const
    {
        std::vector<Button> buttons;
        for (int index = 0; index < GetCount(); ++index)
        {
            TBBUTTON button = {};
            SendMessage(TB_GETBUTTON, WPARAM(index), LPARAM(&button));
            buttons.push_back(
                {unsigned(button.idCommand), button.iBitmap, button.fsStyle, button.fsState});
        }
        return buttons;
    }

    // What it says, without its head. The result goes with that: true where there is nothing.
    Messages Order(const Ids& order)
    {
        const std::string head = "Ordering Toolbar Btns: ";
        Messages messages = {head + "from before"};
        const bool done = OrderBtns(order, messages);
        EXPECT_EQ(done, messages.size() == 1);
        for (std::string& message : messages)
        {
            EXPECT_EQ(message.substr(0, head.size()), head);
            message.erase(0, head.size());
        }
        EXPECT_EQ(messages.front(), "from before");
        messages.erase(messages.begin());
        return messages;
    }
};

using CustomToolbarTest = WindowTest;

TEST_F(CustomToolbarTest, PutsItsButtonsIntoOrderAndTellsWhatDoesNotFit)
{
    constexpr BYTE Hidden = TBSTATE_ENABLED | TBSTATE_HIDDEN;
    const std::vector<Button> five = {{10, 0, TBSTYLE_CHECK},
                                      {11, 1, TBSTYLE_BUTTON, Hidden},
                                      {0, 2, TBSTYLE_SEP},
                                      {13, 3},
                                      {14, 4}};
    const std::vector<Button> twins = {{7, 0}, {8, 1}, {7, 2}, {0, 3, TBSTYLE_SEP}};
    // The command and its picture change places, style and state stay where they are. What is
    // displaced waits where the target was for its own turn.
    const struct
    {
        const std::vector<Button>& before;
        Ids order;
        std::vector<std::pair<unsigned int, int>> after; // id and picture
        Messages said = {};
    } cases[] = {
        {five, {10, 11, 0, 13, 14}, {{10, 0}, {11, 1}, {0, 2}, {13, 3}, {14, 4}}},
        {five, {14, 0, 10, 11, 13}, {{14, 4}, {0, 2}, {10, 0}, {11, 1}, {13, 3}}},
        {five,
         {14, 99, 13},
         {{14, 4}, {13, 3}, {10, 0}, {11, 1}, {0, 2}},
         {"Btn miscount.  Current = 5.  New = 3.", "Target Btn 99 not found.",
          "Existing Btn 10 not in order list.", "Existing Btn 11 not in order list.",
          "Existing Btn 0 not in order list."}},
        {five,
         {13, 13, 14, 11, 10, 0},
         {{0, 2}, {13, 3}, {14, 4}, {11, 1}, {10, 0}},
         {"Btn miscount.  Current = 5.  New = 6."}},
        {twins, {8, 0, 7, 7}, {{8, 1}, {0, 3}, {7, 2}, {7, 0}}},
    };
    for (const auto& [before, order, after, said] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(order));
        OrderedBar bar(Host(), before);
        Host().Forget();
        EXPECT_EQ(bar.Order(order), said);
        EXPECT_TRUE(Host().Told().empty()) << "nobody can act, or end the bar, in the middle of it";
        std::vector<Button> expected = before;
        for (size_t place = 0; place < after.size(); ++place)
        {
            expected[place].id = after[place].first;
            expected[place].image = after[place].second;
        }
        EXPECT_EQ(bar.Buttons(), expected);
    }
    CustomToolbar none; // no window
    Messages messages;
    EXPECT_FALSE(none.OrderBtns({10}, messages));
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(CustomToolbarTest, AButtonDoesWhatItNowStandsFor)
{
    OrderedBar bar(Host(), {{10, 0}, {11, 1}});
    for (const UINT id : {10U, 11U})
    {
        Click(ClientPoint(bar, ItemRectOf(bar, 0).CenterPoint()));
        EXPECT_EQ(Host().CodesFrom(id).size(), 1U);
        EXPECT_EQ(Host().Count(WM_COMMAND), 1);
        bar.Order({11, 10});
        Host().Forget();
    }
}

TEST_F(CustomToolbarTest, IsDarkWithLightTextsAndArrowsOnBoardWhateverStandsBehindIt)
{
    for (const DWORD style : {DWORD(TBSTYLE_FLAT | TBSTYLE_LIST), DWORD(0)})
    {
        OrderedBar bar(
            Host(), {{1, I_IMAGENONE, BTNS_DROPDOWN}, {2, I_IMAGENONE, BTNS_WHOLEDROPDOWN}}, style);
        const auto shows = [&](COLORREF color) {
            Repaint(bar);
            return Settled(bar).Count(color) > 0;
        };
        const COLORREF black = ::GetSysColor(COLOR_BTNTEXT);
        const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
        for (const APPMODE mode : {ONBOARD, EFBFS})
        {
            const ModeScope scope(mode);
            EXPECT_TRUE(shows(RGB(50, 50, 50)) && shows(RGB(230, 230, 230))) << mode;
            EXPECT_FALSE(shows(black) || shows(face)) << mode << ' ' << style;
            EXPECT_TRUE(bar.SendMessage(WM_ERASEBKGND)) << "no context";
            for (const int button : {0, 1}) // by its arrow, and by whatever part
            {
                const CRect dropper = ItemRectOf(bar, button);
                const CPoint arrow(dropper.right - 3, dropper.bottom - 5);
                const COLORREF before = WindowPixels(bar).At(arrow);
                COLORREF open = before;
                Host().OnCode(TBN_DROPDOWN,
                              [&](ToldMessage&) { open = WindowPixels(bar).At(arrow); });
                Click(ClientPoint(bar, button == 0 ? arrow : dropper.TopLeft() + CPoint(4, 4)));
                EXPECT_EQ(open, style == 0 ? RGB(50, 80, 110) : before) << "while its menu is open";
                EXPECT_EQ(Settled(bar).At(arrow), before);
                Host().hook = nullptr;
            }
        }
        EXPECT_TRUE(shows(black) && !shows(RGB(50, 50, 50)));
    }
}

TEST_F(CustomToolbarTest, ASecondWindowOfTheObjectTakesPicturesOfItsOwn)
{
    CustomToolbar bar;
    for (const char* const window : {"first", "second"})
    {
        ASSERT_TRUE(bar.CreateEx(&Host()));
        for (const char* const pictures : {"new", "instead of those"})
        {
            EXPECT_TRUE(bar.SetBitmap(::CreateBitmap(32, 15, 1, 1, nullptr)))
                << window << ' ' << pictures;
        }
        bar.DestroyWindow();
    }
}

TEST_F(CustomToolbarTest, ButtonsAreAsHighAsAFingerOnBoardAndThePlatformsInTheStandardMode)
{
    const auto height = [](const CustomToolbar& bar) {
        return bar.GetToolBarCtrl().GetButtonSize().cy;
    };
    for (const APPMODE made : {STD, ONBOARD})
    {
        const ModeScope scope(made);
        OrderedBar bar(Host(), {{10, I_IMAGENONE}});
        bar.SetSizes(CSize(80, 26), CSize(16, 15));
        for (const APPMODE mode : {EFB, STD, FULLSCREEN})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            EXPECT_EQ(height(bar), mode == STD ? 26 : 52) << mode;
            bar.Append({unsigned(mode) + 20, 5}); // of which the platform finds its sizes anew
            EXPECT_TRUE(mode == STD ? height(bar) <= 26 : height(bar) == 52) << mode;
            bar.SetSizes(CSize(80, 26), CSize(16, 15));
            height(bar);
            bar.SubclassWindow(bar.UnsubclassWindow()); // as large as they are
        }
        EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE).cy, 52) << "room in a frame";
        Host().Forget();
        Click(ClientPoint(bar, CPoint(20, 50)));
        EXPECT_EQ(Host().CodesFrom(10).size(), 1U);
        bar.SetSizes(CSize(80, 60), CSize(16, 15));
        EXPECT_EQ(height(bar), 60);
    }
}

} // namespace
