// Death at any moment: whatever a control tells its parent, the parent may end the control, its
// sibling or itself there and then. What is told is found by rehearsing; then the play is given
// once for each thing told and each way to end.

#include "robust/Play.h"

#include "CustomPropPage.h"
#include "CustomPropSheet.h"
#include "MultiTreeView.h"
#include "catalog/Makers.h"
#include "support/Acting.h"
#include "support/WindowTest.h"
#include "support/forms.h"

#include <set>

namespace {

using Parents = Makers<Hearing>;

Made MakePlain(CWnd& parent, const Contents&)
{
    auto plain = std::make_unique<Hearing<CWnd>>();
    plain->CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), "", WS_CHILD | WS_CLIPCHILDREN, Stage,
                    &parent, 1);
    return plain;
}

// A window of its own, as large as its pages want it: presses reach what lies on them.
Made MakeSheet(CWnd& owner, const Contents&)
{
    struct Sheet : Hearing<CCustomPropSheet>
    {
        Hearing<CCustomPropPage> page{UINT(IDD_TEST_PAGE_1)};

        explicit Sheet(CWnd& parent)
            : Hearing<CCustomPropSheet>("Sheet", nullptr, &parent)
        {
            AddPage(&page);
        }
    };
    auto sheet = std::make_unique<Sheet>(owner);
    sheet->Create(&owner, WS_POPUP | WS_CAPTION);
    return sheet;
}

Made MakeFrame(CWnd& owner, const Contents&)
{
    auto frame = std::make_unique<Hearing<Standing<CFrameWnd>>>();
    frame->Create(nullptr, "", WS_POPUP | WS_CAPTION | WS_CLIPCHILDREN, Stage, &owner);
    return frame;
}

struct ParentKind
{
    const char* name;
    Made (*make)(CWnd& parent, const Contents& contents);
    std::set<std::string> controls = {"push button", "list box",
                                      "combo"}; // of others but the first
};
const ParentKind ParentKinds[] = {{"", &MakePlain},
                                  {"on a dialog", &Parents::MakeDialog},
                                  {"on a message box", &Parents::MakeMessageBox},
                                  {"on a page", &MakeSheet},
                                  {"on a form view", &Parents::MakeFormView},
                                  {"on a frame", &MakeFrame, {"tool bar", "tree view"}}};

// Input by queue: a press may run a loop of the control's own, which needs its end to be there.
void QueuePress(CPoint point, CPoint to, bool right)
{
    QueueMove(point);
    QueueButton(true, right);
    if (to != point)
    {
        QueueMove(CPoint((point.x + to.x) / 2, (point.y + to.y) / 2));
        QueueMove(to);
    }
    QueueButton(false, right);
    if (right)
    {
        QueueKey(VK_ESCAPE, true); // closes the menu that it may open
        QueueKey(VK_ESCAPE, false);
    }
    PumpAll();
}

// By itself a control is silent about some things.
void HaveItSpeak(CWnd& control)
{
    constexpr std::pair<const char*, DWORD> styles[] = {
        {"Button", BS_NOTIFY}, {"Static", SS_NOTIFY}, {WC_HEADER, HDS_DRAGDROP}};
    for (const auto& [windowClass, style] : styles)
    {
        control.ModifyStyle(0, IsOfClass(control, windowClass) ? style : 0);
    }
    control.SendMessage(IsOfClass(control, WC_LISTVIEW) ? LVM_SETEXTENDEDLISTVIEWSTYLE : WM_NULL,
                        LVS_EX_HEADERDRAGDROP, LVS_EX_HEADERDRAGDROP);
    if (IsOfClass(control, WC_TREEVIEW))
    {
        TVITEM item = {};
        item.mask = TVIF_HANDLE | TVIF_TEXT;
        item.hItem = TreeView_GetRoot(control);
        item.pszText = LPSTR_TEXTCALLBACK;
        control.SendMessage(TVM_SETITEM, 0, LPARAM(&item));
        control.ModifyStyle(0, dynamic_cast<MultiTreeView*>(&control) != nullptr ? TVS_SINGLEEXPAND
                                                                                 : 0);
    }
    if (auto* const bar = dynamic_cast<CToolBar*>(&control))
    {
        bar->SetButtonStyle(0, BTNS_DROPDOWN);
        bar->SetBarStyle(bar->GetBarStyle() | CBRS_TOOLTIPS);
    }
}

// Everything that makes a control speak, until it is over.
class Provocation
{
public:
    explicit Provocation(const Play& play)
        : m_play(play)
        , m_window(play.control->GetSafeHwnd())
        , m_place(WindowRectOf(m_window))
    {}

    void Run()
    {
        Do([&] {
            ::ShowWindow(*m_play.parent, SW_SHOW);
            PumpAll();
        });
        Do([&] { ::SetFocus(m_window); });
        Input();
        Messages();
        Changes();
        Do([&] { ::DestroyWindow(m_window); });
    }

private:
    const Play& m_play;
    Arguments m_arguments;
    HWND m_window;
    CRect m_place;

    template <class Step> void Do(Step step) { m_play.Do(m_window, step); }
    void Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        Do([&] { ::SendMessage(m_window, message, wParam, lParam); });
    }
    void Say(const std::vector<Word>& words)
    {
        for (const Word& word : words)
        {
            const WPARAM wParam = m_arguments.First(word, m_window);
            Send(word.message, wParam, m_arguments.Second(word, m_window));
        }
    }

    void Input()
    {
        m_play.Paint(m_window);
        const int inside = IsOfClass(m_window, WC_TREEVIEW) ? 60 : 20; // on the text of an item
        const CPoint first(m_place.left + inside, m_place.top + 32);
        CPoint heading(20, 8);
        ::ClientToScreen(m_window, &heading);
        const CPoint divider = heading + CPoint(70, 0); // the end of a heading, where there is one
        const CPoint corner(m_place.right - 10, m_place.bottom - 10);
        const CPoint above(m_place.CenterPoint().x, m_place.top + 8);
        // Twice: a double click.
        const CPoint points[] = {first, first, heading, heading, divider, divider, corner, above};
        for (const CPoint& point : points)
        {
            Do([&] { QueuePress(point, point, false); });
        }
        for (const CPoint& to : {first, first, first + CPoint(30, 40)})
        {
            Do([&] { QueuePress(first, to, true); });
        }
        Do([&] { QueuePress(first, first + CPoint(30, 40), false); });
        Do([&] { QueuePress(heading, heading + CPoint(110, 0), false); });
        Do([&] { QueuePress(divider, divider + CPoint(20, 0), false); });
        Do([&] { ::Wheel(-WHEEL_DELTA); });
        // Over the list of a combo.
        Do([&] {
            TypeKey(VK_F4);
            QueueMove(CPoint(m_place.left + 30, m_place.bottom + 60));
            PumpAll();
            TypeKey(VK_ESCAPE);
        });
        for (const UINT key : {UINT(VK_DOWN), UINT(VK_SPACE), UINT('W'), UINT(VK_END),
                               UINT(VK_RIGHT), UINT(VK_DELETE), UINT(VK_RETURN), UINT(VK_F1)})
        {
            Do([&] { TypeKey(key); });
        }
        Do([&] { TypeKey(VK_UP, VK_SHIFT); });
    }

    void Messages()
    {
        Say(WordsOf(m_window));
        AskForTip();
        m_play.Paint(m_window);
        const bool tree = IsOfClass(m_window, WC_TREEVIEW);
        if (tree || IsOfClass(m_window, WC_LISTVIEW))
        {
            ::SetWindowLong(m_window, GWL_STYLE,
                            ::GetWindowLong(m_window, GWL_STYLE) |
                                (tree ? TVS_EDITLABELS : LVS_EDITLABELS));
            Do([&] { ::SetFocus(m_window); });
            const LRESULT item = tree ? ::SendMessage(m_window, TVM_GETNEXTITEM, TVGN_ROOT, 0) : 0;
            Send(tree ? TVM_EDITLABEL : LVM_EDITLABEL, 0, item);
            Do([&] { TypeKey(VK_ESCAPE); });
        }
    }

    // As it does before it shows, for the text of a tool.
    void AskForTip()
    {
        const bool bar = IsOfClass(m_window, TOOLBARCLASSNAME);
        char text[INFOTIPSIZE] = "";
        TTTOOLINFO tool = {.cbSize = sizeof(tool), .hwnd = m_window, .uId = 2, .lpszText = text};
        Do([&] {
            const LRESULT tip = ::SendMessage(m_window, bar ? TB_GETTOOLTIPS : WM_NULL, 0, 0);
            ::SendMessage(HWND(tip), TTM_GETTEXT, 0, LPARAM(&tool));
        });
    }

    void Changes()
    {
        Say(CommonWords);
        Do([&] { ::EnableWindow(m_window, FALSE); });
        Do([&] { ::EnableWindow(m_window, TRUE); });
        Do([&] { ::SetWindowPos(m_window, nullptr, 40, 30, 200, 150, SWP_NOZORDER); });
        Do([&] { ::ShowWindow(m_window, SW_HIDE); });
        Do([&] { ::ShowWindow(m_window, SW_SHOWNA); });
        m_play.ChangeModes(m_window);
        Do([&] { PumpAll(); });
    }
};

struct Case
{
    const Subject* subject;
    const ParentKind* parent;
};

// The names of the tests would have its bytes, which are others in each run.
void PrintTo(const Case& tested, std::ostream* out)
{
    *out << tested.subject->name << ' ' << tested.parent->name;
}

class DeathAtAnyMoment : public WindowTest, public testing::WithParamInterface<Case>
{
protected:
    std::vector<Told> m_rehearsed;
    std::string m_missed; // the last play, if what was awaited was not told

    // Gives the play; what was told until it was over.
    std::vector<Told> Give(std::optional<Told> awaited, Death death)
    {
        // Most is told without all that went before. On a busy machine a tick may not come and the
        // focus move by itself: what was missed is played again. What was only told because of that
        // does not come without an end either.
        constexpr int Before = 2;
        constexpr int PlaysInTurn = 8;
        constexpr int Turns = 3;
        const int begin =
            awaited && awaited->step > Play::Opening + Before ? awaited->step - Before : 0;
        std::vector<Told> told = Give(awaited, death, begin);
        for (int plays = 1; !m_missed.empty(); ++plays)
        {
            const std::string missed = m_missed;
            if (plays % PlaysInTurn != 0)
            {
                told = Give(awaited, death, 0);
            }
            else if (told = Give({}, death, 0); std::ranges::count(told, *awaited) == 0)
            {
                break;
            }
            else if (plays == PlaysInTurn * Turns)
            {
                ADD_FAILURE() << missed;
            }
            else
            {
                m_missed = missed;
            }
        }
        return told;
    }

    std::vector<Told> Give(std::optional<Told> awaited, Death death, int from)
    {
        const auto& [subject, kind] = GetParam();
        Play play(std::string(subject->name) + ' ' + kind->name, awaited, death);
        play.over = true; // not yet begun
        play.from = from;
        play.toldBefore = awaited && !IsFirstOfItsKind(*awaited, m_rehearsed);
        // Each play begins alike; the system tells of a focus only where another window had it.
        RestPointer();
        Host().SetFocus();
        play.parent = kind->make(Host(), {Stage, "A text"});
        CWnd* parent = play.parent.get();
        if (auto* const sheet = dynamic_cast<CPropertySheet*>(parent))
        {
            parent = sheet->GetPage(0);
        }
        else
        {
            parent->SetWindowPos(nullptr, 0, 0, Stage.right, Stage.bottom,
                                 SWP_NOMOVE | SWP_NOZORDER);
        }
        play.control = subject->make(*parent);
        if (death == Death::Sibling)
        {
            play.sibling = subject->make(*parent);
            play.sibling->ModifyStyle(WS_GROUP, 0);
            play.sibling->SetDlgCtrlID(ControlId + 1);
            play.sibling->SetWindowPos(nullptr, 320, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        }
        HaveItSpeak(*play.control);
        PumpAll();
        play.over = false;

        Provocation(play).Run();

        m_missed = play.over == play.awaited.has_value() ? std::string() : play.Title();
        play.over = true;
        for (const CWnd* const left : {play.control.get(), play.sibling.get()})
        {
            if (left != nullptr && left->GetSafeHwnd() != nullptr)
            {
                ::SendMessage(*left, WM_CANCELMODE, 0, 0);
            }
        }
        EXPECT_EQ(EndTimers(), 0) << play.Title() << ": left with a timer";
        return play.Finish();
    }
};

TEST_P(DeathAtAnyMoment, LeaveTheRestSound)
{
    const bool plain = GetParam().parent == &ParentKinds[0];
    for (const APPMODE mode : {STD, EFB})
    {
        if (mode == STD && !plain)
        {
            continue; // their own code runs on-board
        }
        const ModeScope scope(mode);
        const std::vector<Told> told = Give({}, Death::Window);
        m_rehearsed = told;
        EXPECT_FALSE(told.empty());
        int kinds = 0;
        for (const Told& each : told)
        {
            if (!IsFirstOfItsKind(each, told))
            {
                // Told again, in another place of the control's code.
                if (mode != STD && plain &&
                    std::ranges::find(BySystem, each.message) == std::end(BySystem))
                {
                    Give(each, Death::Control);
                }
                continue;
            }
            ++kinds;
            Give(each, Death::Control);
            if (mode != STD) // where most of what runs is the library's; else the first is enough
            {
                Give(each, Death::Parent);
            }
            if (mode != STD && plain)
            {
                Give(each, kinds % 2 != 0 ? Death::Sibling : Death::Window);
            }
        }
        ForgetClipboard();
        EXPECT_NEAR(double(Give({}, Death::Window).size()), double(told.size()),
                    std::max(2.0, double(told.size()) / 10)) // repaints come together under load
            << "a fresh control is not as it was";
    }
}

std::vector<Case> Cases()
{
    std::vector<Case> cases;
    for (const ParentKind& kind : ParentKinds)
    {
        for (const Subject& subject : Subjects())
        {
            if (&kind == ParentKinds || kind.controls.contains(subject.name))
            {
                cases.push_back({&subject, &kind});
            }
        }
    }
    return cases;
}

INSTANTIATE_TEST_SUITE_P(Of, DeathAtAnyMoment, testing::ValuesIn(Cases()), [](const auto& info) {
    const std::string parent = info.param.parent->name;
    return TestName(info.param.subject->name + (parent.empty() ? "" : ' ' + parent));
});

} // namespace
