// What a finger does that rests on a control: the system asks before, and presses at once or not.

#include "robust/Subjects.h"
#include "support/WindowTest.h"

#include <tpcshrd.h>

namespace {

struct Answers
{
    int bars = 0; // points that were asked about
    int refusedBars = 0;
    int others = 0;
    int refusedOthers = 0;
};

Answers Ask(HWND window)
{
    Answers answers;
    CRect place;
    ::GetWindowRect(window, &place);
    for (int x = place.left + 1; x < place.right; x += 12)
    {
        for (int y = place.top + 1; y < place.bottom; y += 12)
        {
            const LPARAM point = MAKELPARAM(x, y);
            const LRESULT hit = ::SendMessage(window, WM_NCHITTEST, 0, point);
            const bool bar = hit == HTVSCROLL || hit == HTHSCROLL;
            const LRESULT answer =
                ::SendMessage(window, WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, point);
            const bool refused = (answer & TABLET_DISABLE_PRESSANDHOLD) != 0;
            ++(bar ? answers.bars : answers.others);
            (bar ? answers.refusedBars : answers.refusedOthers) += refused;
        }
    }
    return answers;
}

} // namespace

TEST_F(WindowTest, AFingerThatRestsPressesAtOnceOnBoard)
{
    // Everywhere, or on its bars alone. Of a sheet it is the tabs.
    const std::map<std::string, bool> table = {
        {"push button", true},     {"check box", true},      {"combo", true},
        {"list of a combo", true}, {"header", true},         {"edit of many lines", true},
        {"tool bar", true},        {"property sheet", true}, {"list box", false},
        {"check list", false},     {"report list", false},   {"tree", false},
        {"tree view", false},
    };
    size_t seen = 0;
    for (const Subject& subject : Subjects())
    {
        const auto row = table.find(subject.name);
        if (row == table.end())
        {
            continue;
        }
        SCOPED_TRACE(subject.name);
        ++seen;
        for (const APPMODE mode : {STD, ONBOARD})
        {
            const ModeScope scope(mode);
            const std::unique_ptr<CWnd> window = subject.make(Host());
            ASSERT_NE(window, nullptr);
            PumpAll();
            const HWND tabs = ::FindWindowEx(*window, nullptr, WC_TABCONTROL, nullptr);
            const Answers answers = Ask(tabs != nullptr ? tabs : window->GetSafeHwnd());
            const bool onBoard = mode == ONBOARD;
            EXPECT_EQ(answers.refusedBars, onBoard ? answers.bars : 0);
            EXPECT_EQ(answers.refusedOthers, onBoard && row->second ? answers.others : 0);
            EXPECT_GT(row->second ? answers.others : answers.bars, 0);
        }
    }
    EXPECT_EQ(seen, table.size());
}
