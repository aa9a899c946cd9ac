#include "CustomToolbar.h"
#include "support/WindowTest.h"

#include <algorithm>
#include <random>

namespace {

using Ids = std::vector<unsigned int>;
using Messages = std::vector<std::string>;

constexpr unsigned int Separator = 0;

struct Button
{
    unsigned int id;
    int image;
    BYTE style = TBSTYLE_BUTTON;
    BYTE state = TBSTATE_ENABLED;

    friend bool operator==(const Button&, const Button&) = default;
};

const std::string Head = "Ordering Toolbar Btns: ";

std::string Miscount(size_t current, size_t wanted)
{
    return Head + "Btn miscount.  Current = " + std::to_string(current) +
           ".  New = " + std::to_string(wanted) + ".";
}

std::string NotFound(unsigned int id)
{
    return Head + "Target Btn " + std::to_string(id) + " not found.";
}

std::string NotInOrder(unsigned int id)
{
    return Head + "Existing Btn " + std::to_string(id) + " not in order list.";
}

class OrderedBar : public CustomToolbar
{
public:
    bool refuses = false; // to give a place another command

    void Fill(CWnd& parent, const std::vector<Button>& buttons)
    {
        EXPECT_TRUE(CreateEx(&parent, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE));
        for (const Button& button : buttons)
        {
            Append(button);
        }
        SetWindowPos(nullptr, 0, 0, 780, 60, SWP_NOZORDER);
        PumpAll();
    }

    void Append(const Button& button)
    {
        TBBUTTON made = {};
        made.idCommand = int(button.id);
        made.iBitmap = button.image;
        made.fsStyle = button.style;
        made.fsState = button.state;
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

    Ids Order() const
    {
        Ids ids;
        for (const Button& button : Buttons())
        {
            ids.push_back(button.id);
        }
        return ids;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == TB_SETBUTTONINFO && refuses
                   ? FALSE
                   : CustomToolbar::WindowProc(message, wParam, lParam);
    }
};

class CustomToolbarTest : public WindowTest
{
protected:
    // The result goes with the messages: true where there are none.
    static Messages OrderBar(OrderedBar& bar, const Ids& order)
    {
        Messages messages = {"from before"};
        const bool done = bar.OrderBtns(order, messages);
        EXPECT_EQ(messages.front(), "from before");
        messages.erase(messages.begin());
        EXPECT_EQ(done, messages.empty());
        return messages;
    }

    static std::vector<Button> Five() { return {{10, 0}, {11, 1}, {1234, 2}, {13, 3}, {14, 4}}; }
};

TEST_F(CustomToolbarTest, TakesACompleteOrderWithoutAWord)
{
    OrderedBar bar;
    bar.Fill(Host(), Five());
    EXPECT_EQ(OrderBar(bar, {10, 11, 1234, 13, 14}), Messages());
    EXPECT_EQ(bar.Buttons(), Five());
    Host().Forget();
    EXPECT_EQ(OrderBar(bar, {14, 1234, 10, 11, 13}), Messages());
    EXPECT_TRUE(Host().Told().empty()) << "nobody can act, or end the bar, in the middle of it";
    EXPECT_EQ(bar.Buttons(), (std::vector<Button>{{14, 4}, {1234, 2}, {10, 0}, {11, 1}, {13, 3}}));

    CRect first;
    bar.GetItemRect(0, &first);
    Click(ClientPoint(bar, first.CenterPoint()));
    EXPECT_EQ(Host().Count(WM_COMMAND), 1);
    EXPECT_EQ(Host().CodesFrom(14).size(), 1U) << "the button does what it now stands for";

    OrderedBar none; // no window
    EXPECT_EQ(OrderBar(none, {10}), (Messages{Miscount(0, 1), NotFound(10)}));
}

TEST_F(CustomToolbarTest, DoesWithManyOrdersWhatAPlainListDoes)
{
    std::mt19937 random(20261121);
    const auto below = [&random](unsigned int end) { return unsigned(random() % end); };
    OrderedBar bar;
    bar.Fill(Host(), {});
    for (int round = 0; round < 300; ++round)
    {
        SCOPED_TRACE(round);
        while (bar.GetCount() > 0)
        {
            bar.SendMessage(TB_DELETEBUTTON, 0);
        }
        // Ids from few enough that some come twice, each with a picture of its own.
        const unsigned int count = below(14);
        for (unsigned int index = 0; index < count; ++index)
        {
            const bool separator = below(5) == 0;
            bar.Append({separator ? Separator : 100 + below(40), int(index),
                        BYTE(separator       ? TBSTYLE_SEP
                             : below(3) == 0 ? TBSTYLE_CHECK
                                             : TBSTYLE_BUTTON),
                        BYTE(TBSTATE_ENABLED | (below(4) == 0 ? TBSTATE_HIDDEN : 0))});
        }
        std::vector<Button> model = bar.Buttons();

        // The present order, shuffled, with some ids lost, some twice and some unknown.
        Ids order = bar.Order();
        std::ranges::shuffle(order, random);
        for (unsigned int change = below(4); change > 0 && !order.empty(); --change)
        {
            unsigned int& one = order[below(unsigned(order.size()))];
            one = below(2) == 0 ? 200 + below(5) : order[below(unsigned(order.size()))];
        }
        order.resize(order.size() - std::min<size_t>(below(3), order.size()));

        Messages expected;
        if (order.size() != model.size())
        {
            expected.push_back(Miscount(model.size(), order.size()));
        }
        Ids targets;
        const auto find = [&model](unsigned int id) {
            return std::ranges::find(model, id, &Button::id);
        };
        for (const unsigned int id : order)
        {
            find(id) != model.end() ? targets.push_back(id) : expected.push_back(NotFound(id));
        }
        for (const Button& button : model)
        {
            if (std::ranges::find(targets, button.id) == targets.end())
            {
                targets.push_back(button.id);
                expected.push_back(NotInOrder(button.id));
            }
        }
        for (size_t place = 0; place < std::min(model.size(), targets.size()); ++place)
        {
            Button& there = *find(targets[place]);
            if (model[place].id != there.id)
            {
                std::swap(model[place].id, there.id);
                std::swap(model[place].image, there.image);
            }
        }

        EXPECT_EQ(OrderBar(bar, order), expected);
        ASSERT_EQ(bar.Buttons(), model);
    }
}

TEST_F(CustomToolbarTest, ReportsPairsThatTheBarRefusesToSwap)
{
    OrderedBar bar;
    bar.Fill(Host(), {{10, 0}, {11, 1}});
    bar.refuses = true;
    EXPECT_EQ(OrderBar(bar, {11, 10}), (Messages{Head + "SetButtonInfo failed for pair (10, 11)",
                                                 Head + "SetButtonInfo failed for pair (11, 10)"}));
    EXPECT_EQ(bar.Order(), (Ids{10, 11}));
}

TEST_F(CustomToolbarTest, IsDarkWithLightTextsOnBoardWhateverStandsBehindIt)
{
    CustomToolbar bar;
    ASSERT_TRUE(bar.CreateEx(&Host(), TBSTYLE_FLAT | TBSTYLE_LIST, WS_CHILD | WS_VISIBLE));
    TBBUTTON button = {};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = 1;
    button.fsState = TBSTATE_ENABLED;
    button.iString = INT_PTR("Direct to");
    bar.SendMessage(TB_ADDBUTTONS, 1, LPARAM(&button));
    bar.SetWindowPos(nullptr, 0, 0, 200, 40, SWP_NOZORDER);
    const auto shows = [&](COLORREF color) {
        bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        PumpAll();
        return WindowPixels(bar).Count(color) > 0;
    };
    const COLORREF black = ::GetSysColor(COLOR_BTNTEXT);
    for (const APPMODE mode : {ONBOARD, EFBFS})
    {
        const ModeScope scope(mode);
        EXPECT_TRUE(shows(RGB(50, 50, 50)) && shows(RGB(230, 230, 230)) && !shows(black)) << mode;
    }
    EXPECT_TRUE(shows(black) && !shows(RGB(50, 50, 50)));
}

} // namespace
