#include "CustomDialog.h"
#include "CustomDropListCombo.h"
#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "OnBoardUI.h"
#include "modes/StandardFontHeight.h"
#include "support/Acting.h"
#include "support/WindowTest.h"

namespace {

using Journal = std::vector<std::string>;

// The child of a mode-aware window: it is moved when the window is told of a change of mode, which
// is how the change shows.
class Probe : public CWnd
{
public:
    std::string name;
    Journal* journal = nullptr;
    std::function<void()> whenMoved = [] {};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        if (message == WM_WINDOWPOSCHANGED)
        {
            journal->push_back(name);
            whenMoved();
        }
        return result;
    }
};

using Dialog = CCustomDialog;
using Page = CCustomPropPage;
using Sheet = CCustomPropSheet;
struct View : Standing<CCustomFormView>
{
    View(UINT id, int)
        : Standing(id)
    {}
};

class AppModeTest : public WindowTest
{
protected:
    Journal journal;

    void MakeWindow(CWnd& window)
    {
        ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE,
                                    CRect(0, 0, 400, 300), &Host(), 0));
    }

    // A mode-aware window with a probe on it.
    template <class Window> struct Aware
    {
        Window window{1U, {}};
        Probe probe;
    };

    template <class Window> std::unique_ptr<Aware<Window>> Make(const std::string& name)
    {
        auto made = std::make_unique<Aware<Window>>();
        made->probe.name = name;
        made->probe.journal = &journal;
        MakeWindow(made->window);
        EXPECT_TRUE(made->probe.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 20, 110, 50),
                                       &made->window, 1));
        journal.clear();
        return made;
    }
};

TEST_F(AppModeTest, EveryKindOfWindowIsToldInAFixedOrder)
{
    // Made the other way round, each kind twice.
    const auto sheet1 = Make<Sheet>("sheet 1");
    const auto page1 = Make<Page>("page 1");
    CCustomDropListCombo combo;
    MakeWindow(combo);
    const auto dialog1 = Make<Dialog>("dialog 1");
    const auto view1 = Make<View>("view 1");
    const auto sheet2 = Make<Sheet>("sheet 2");
    const auto page2 = Make<Page>("page 2");
    const auto dialog2 = Make<Dialog>("dialog 2");
    const auto view2 = Make<View>("view 2");

    // A combo has nothing to move: it asks to be painted.
    PumpAll();
    combo.ValidateRect(nullptr);
    const auto noteCombo = [&] {
        journal.push_back(combo.GetUpdateRect(nullptr) ? "combo told" : "combo not told");
        EXPECT_EQ(COnBoardUIGeneral::GetAppMode(), EFB) << "it is the new mode already";
    };
    dialog2->probe.whenMoved = noteCombo;
    page1->probe.whenMoved = noteCombo;

    journal.clear();
    COnBoardUIGeneral::SetAppMode(EFB);
    EXPECT_EQ(journal, (Journal{"view 1", "view 2", "dialog 1", "dialog 2", "combo not told",
                                "page 1", "combo told", "page 2", "sheet 1", "sheet 2"}));
    for (const Probe* probe : {&view1->probe, &dialog2->probe, &page1->probe, &sheet2->probe})
    {
        EXPECT_EQ(WindowRectOf(*probe).Width(), 224) << probe->name;
    }
}

TEST_F(AppModeTest, EachChangeHasItsScale)
{
    const auto dialog = Make<Dialog>("dialog");
    const std::pair<APPMODE, CRect> steps[] = {
        {STD, CRect(CPoint(10, 20), CSize(100, 30))},        // no change, nothing moves
        {FULLSCREEN, CRect(CPoint(22, 34), CSize(224, 51))}, // x 1.7, wider by 1.32
        {ONBOARD, CRect(CPoint(16, 34), CSize(169, 51))},    // only narrower by 1.32
        {EFB, CRect(CPoint(12, 34), CSize(128, 51))},
        {EFBFS, CRect(CPoint(9, 34), CSize(96, 51))},
        {STD, CRect(CPoint(4, 20), CSize(42, 30))}, // / 1.7, / 1.32
    };
    for (const auto& [mode, expected] : steps)
    {
        SetOnBoardAppMode(mode);
        EXPECT_EQ(COnBoardUIGeneral::InOnBoardMode(), mode != STD);
        EXPECT_EQ(PlaceIn(dialog->window, dialog->probe), expected) << APPMODE_NAMES[mode];
    }
}

TEST_F(AppModeTest, ReceiversMayEndThemselvesAndOthers)
{
    // Which of the dialogs 0 to 4 the middle one ends while it is told.
    const std::pair<std::vector<size_t>, Journal> cases[] = {
        {{0}, {"0", "1", "2", "3", "4", "page"}}, {{3}, {"0", "1", "2", "4", "page"}},
        {{4}, {"0", "1", "2", "3", "page"}},      {{0, 1, 3}, {"0", "1", "2", "4", "page"}},
        {{3, 4}, {"0", "1", "2", "page"}},
    };
    for (const auto& [ended, expected] : cases)
    {
        std::unique_ptr<Aware<Dialog>> dialogs[5];
        for (int index = 0; index < 5; ++index)
        {
            dialogs[index] = Make<Dialog>(std::to_string(index));
        }
        const auto page = Make<Page>("page");
        dialogs[2]->probe.whenMoved = [&, &ended = ended] {
            for (const size_t index : ended)
            {
                dialogs[index].reset();
            }
        };
        const ModeScope scope(ONBOARD);
        EXPECT_EQ(journal, expected) << ended.size() << " from " << ended[0];
        dialogs[2].reset();
    }
}

TEST_F(AppModeTest, WindowsAndChangesThatComeDuringAChangeHaveTheirTurn)
{
    const auto view = Make<View>("view");
    const auto first = Make<Dialog>("a");
    const auto last = Make<Dialog>("b");
    std::unique_ptr<Aware<Dialog>> dialog;
    std::vector<APPMODE> modes;
    first->probe.whenMoved = [&] {
        if (COnBoardUIGeneral::GetAppMode() == ONBOARD)
        {
            COnBoardUIGeneral::SetAppMode(EFB);
        }
        else if (dialog == nullptr)
        {
            dialog = Make<Dialog>("new");
        }
    };
    last->probe.whenMoved = [&] { modes.push_back(COnBoardUIGeneral::GetAppMode()); };
    COnBoardUIGeneral::AddCustomDialog(nullptr);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    // The new one is told of nothing; to make it begins the journal anew. Whoever changes the mode
    // goes through that change after all others.
    EXPECT_EQ(journal, Journal{});
    EXPECT_EQ(modes, (std::vector<APPMODE>{ONBOARD, EFB}));
    // Widened first and narrowed then: the other order gives 168.
    EXPECT_EQ(WindowRectOf(last->probe).Width(), 169);
    journal.clear();
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(journal, (Journal{"view", "a", "b", "new"}));
    // One that is registered twice is told twice until it is taken away once.
    journal.clear();
    COnBoardUIGeneral::AddCustomDialog(&last->window);
    COnBoardUIGeneral::SetAppMode(EFB);
    COnBoardUIGeneral::RemoveCustomDialog(&last->window);
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(std::ranges::count(journal, "b"), 3);
}

TEST_F(AppModeTest, TheStandardFontsFollowTheScreensResolution)
{
    for (const auto& [dotsPerInch, height] : {std::pair(96, 83), {120, 67}, {144, 56}, {0, -11}})
    {
        EXPECT_EQ(StandardFontHeight(dotsPerInch, -11), height);
    }
    COnBoardUIGeneral::SetStdModeGoals();
    EXPECT_EQ(COnBoardUIGeneral::GetStdCtrllfHeight(), 83) << "at 96 dots per inch";
}

} // namespace
