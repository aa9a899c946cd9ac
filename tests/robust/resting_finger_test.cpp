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
    enum class Presses
    {
        Everywhere,
        OnBars
    };
    const std::map<std::string, Presses> table = {
        {"push button", Presses::Everywhere},
        {"check box", Presses::Everywhere},
        {"combo", Presses::Everywhere},
        {"list of a combo", Presses::Everywhere},
        {"header", Presses::Everywhere},
        {"edit of many lines", Presses::Everywhere},
        {"tool bar", Presses::Everywhere},
        {"list box", Presses::OnBars},
        {"check list", Presses::OnBars},
        {"report list", Presses::OnBars},
        {"tree", Presses::OnBars},
        {"tree view", Presses::OnBars},
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
            const Answers answers = Ask(*window);
            const bool onBoard = mode == ONBOARD;
            EXPECT_EQ(answers.refusedBars, onBoard ? answers.bars : 0);
            EXPECT_EQ(answers.refusedOthers,
                      onBoard && row->second == Presses::Everywhere ? answers.others : 0);
            EXPECT_GT(row->second == Presses::OnBars ? answers.bars : answers.others, 0);
        }
    }
    EXPECT_EQ(seen, table.size());
}
