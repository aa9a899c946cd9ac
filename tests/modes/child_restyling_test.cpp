#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "FauxScrollBar.h"
#include "OnBoardUI.h"
#include "support/WindowTest.h"

#include <limits>

namespace {

constexpr double Enlarging = 1.7;
constexpr double Reducing = 1.0 / 1.7;
constexpr std::pair<double, APPMODE> BothWays[] = {{Enlarging, ONBOARD}, {Reducing, STD}};

int Across(int length, double scale)
{
    return int(scale > 1 ? length * scale * 1.32 : length * scale / 1.32);
}

void Restyle(const CWnd& parent, double scale, APPMODE mode)
{
    ModifyChildWndsData data;
    data.parent = parent;
    data.scale = scale;
    data.mode = mode;
    EXPECT_TRUE(
        ::EnumChildWindows(parent, &ModifyChildsForAppMode, reinterpret_cast<LPARAM>(&data)));
}

// An heir that has its own say once, right after the first message of a kind. It notes the first
// place that it is asked to take, before that.
template <class Base> class Heir : public Base
{
public:
    // Its width and place: once the control has had its say, with the frame, or before that.
    bool keeps = false;
    bool before = false;
    std::optional<WINDOWPOS> asked;
    void ActAfter(UINT message, std::function<void()> act)
    {
        m_message = message;
        m_act = std::move(act);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        auto* const position =
            message == WM_WINDOWPOSCHANGING ? reinterpret_cast<WINDOWPOS*>(lParam) : nullptr;
        if (position != nullptr && !asked)
        {
            asked = *position;
        }
        constexpr UINT Kept = SWP_NOSIZE | SWP_NOMOVE;
        const bool keepsNow = position != nullptr && keeps && (position->flags & SWP_NOSIZE) == 0 &&
                              position->cx != WindowRectOf(*this).Width();
        if (keepsNow && before)
        {
            position->flags |= Kept;
        }
        const LRESULT result = Base::WindowProc(message, wParam, lParam);
        if (keepsNow && !before)
        {
            position->flags = (position->flags | Kept) & ~SWP_FRAMECHANGED;
        }
        if (message == m_message && m_act)
        {
            std::exchange(m_act, nullptr)();
        }
        return result;
    }

private:
    UINT m_message = 0;
    std::function<void()> m_act;
};

// A plain window of any class.
class Plain : public Heir<CWnd>
{
public:
    explicit Plain(const char* windowClass)
        : m_class(windowClass)
    {}
    BOOL Create(const char* text, DWORD style, const CRect& place, CWnd* parent, UINT id)
    {
        return CWnd::Create(m_class, text, style, place, parent, id);
    }

private:
    const char* m_class;
};

class ChildRestylingTest : public WindowTest
{
protected:
    Plain& AddPlain(const char* windowClass, const CRect& place, DWORD style = 0)
    {
        Plain& plain = Add(std::make_unique<Plain>(windowClass), place, style);
        plain.asked.reset();
        return plain;
    }
};

TEST_F(ChildRestylingTest, OnlyDirectChildrenAreTouched)
{
    CWnd& box = AddPlain("STATIC", CRect(10, 20, 110, 50));
    CEdit inner;
    ASSERT_TRUE(inner.Create(WS_CHILD | WS_VISIBLE, CRect(1, 2, 31, 12), &box, 1));
    MessageLog log(inner, {WM_SETFONT, WM_WINDOWPOSCHANGING});
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(log.All(), std::vector<Received>());
    EXPECT_EQ(PlaceIn(Host(), box).Width(), 224);

    EXPECT_EQ(ModifyChildsForAppMode(box, 0), 1);

    // A record that names no parent is not one of all top-level windows.
    const CRect place = WindowRectOf(Host());
    ModifyChildWndsData nobody;
    nobody.scale = Enlarging;
    nobody.mode = ONBOARD;
    EXPECT_EQ(ModifyChildsForAppMode(Host(), reinterpret_cast<LPARAM>(&nobody)), 1);
    EXPECT_EQ(WindowRectOf(Host()), place);

    for (const double absurd : {1e300, -1e300, std::numeric_limits<double>::quiet_NaN()})
    {
        Restyle(Host(), absurd, ONBOARD); // to its end, or it fails
    }
}

TEST_F(ChildRestylingTest, ControlsGetTheFontOfTheMode)
{
    static const char* const ComboClass = "CCUSTOMDROPLISTCOMBO";
    ASSERT_TRUE(CCustomDropListCombo::RegisterWndClass(AfxGetInstanceHandle()));
    const std::tuple<const char*, CFont*, CFont*> cases[] = {
        {"SysListView32", &CCustomListCtrl::GetStdFont(), &CCustomListCtrl::GetOnBoardFont()},
        {"ListBox", &CCustomListBox::GetStdFont(), &CCustomListBox::GetOnBoardFont()},
        {"Edit", &CCustomEdit::GetStdFont(), &CCustomEdit::GetOnBoardFont()},
        {ComboClass, &CCustomDropListCombo::GetStdFont(), &CCustomDropListCombo::GetOnBoardFont()},
        {"Static", nullptr, nullptr},
    };
    for (const auto& [windowClass, standard, onBoard] : cases)
    {
        SCOPED_TRACE(windowClass);
        Plain& control = AddPlain(windowClass, CRect(10, 20, 110, 50));
        MessageLog log(control, {WM_SETFONT});
        Restyle(Host(), Enlarging, EFB);
        Restyle(Host(), 1.0, FULLSCREEN);
        EXPECT_EQ(control.GetStyle() & WS_VSCROLL, 0U);
        Restyle(Host(), Reducing, STD);
        EXPECT_EQ((control.GetStyle() & WS_VSCROLL) != 0, standard == &CCustomListBox::GetStdFont())
            << "a list box gets the platform's bar back";
        std::vector<WPARAM> expected;
        if (standard != nullptr)
        {
            ASSERT_NE(onBoard->GetSafeHandle(), nullptr);
            expected.assign(2, WPARAM(onBoard->GetSafeHandle()));
            expected.push_back(WPARAM(standard->GetSafeHandle()));
        }
        EXPECT_EQ(log.WParams(WM_SETFONT), expected);
        ASSERT_TRUE(control.asked);
        EXPECT_EQ((control.asked->flags & SWP_FRAMECHANGED) != 0,
                  standard == &CCustomListCtrl::GetStdFont())
            << "a report list lays out its frame again";
        control.DestroyWindow();
    }
}

// With heirs of edits and lists that have much to show, in the standard mode.
class ChildPlacingTest : public ChildRestylingTest
{
protected:
    const ModeScope m_standard{STD};

    // In the new mode, as a window that follows it does.
    void ChangeMode(APPMODE mode)
    {
        COnBoardUIGeneral::SetAppMode(mode);
        Restyle(Host(), mode == STD ? Reducing : Enlarging, mode);
    }

    static CString Words(int count)
    {
        CString words;
        for (int word = 0; word < count; ++word)
        {
            words += "waypoint ";
        }
        return words;
    }

    Heir<CCustomEdit>& AddEdit(const CRect& place)
    {
        return Add<Heir<CCustomEdit>>(place,
                                      ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | WS_BORDER);
    }

    Heir<CCustomListBox>& AddList(const CRect& place, DWORD style, int words)
    {
        auto& list = Add<Heir<CCustomListBox>>(place, WS_VSCROLL | style);
        for (int row = 0; row < 100; ++row)
        {
            list.AddString(Words(words));
        }
        return list;
    }
};

TEST_F(ChildPlacingTest, AnEditBreaksItsLinesForItsFontAndItsPlace)
{
    CCustomEdit& edit = AddEdit(CRect(10, 20, 210, 120));
    edit.SetWindowText(Words(60) + "\r\n" + Words(60) + "\r\n" + Words(60));
    edit.LineScroll(7); // there are fewer paragraphs
    CFont& onBoard = CCustomEdit::GetOnBoardFont();
    const Act<> steps[] = {
        {"on-board", [&] { ChangeMode(ONBOARD); }},
        {"a font alone", [&] { edit.SetFont(&CCustomEdit::GetStdFont()); }},
        {"and back", [&] { edit.SetFont(&onBoard); }},
        {"standard", [&] { ChangeMode(STD); }},
        {"a font alone in the standard mode", [&] { edit.SetFont(&onBoard); }},
    };
    for (const auto& [name, act] : steps)
    {
        SCOPED_TRACE(name);
        act();
        EXPECT_LE(ClientRectOf(edit).Width(), WindowRectOf(edit).Width());
        EXPECT_EQ(edit.GetFirstVisibleLine(), 7);
        const int lines = edit.GetLineCount();
        EXPECT_GT(lines, 3 + 7);
        edit.SetRect(nullptr); // breaks them anew
        EXPECT_EQ(edit.GetLineCount(), lines);
    }
}

TEST_F(ChildPlacingTest, AComboThatHasTakenNoHeightOfAModeIsScaled)
{
    const ModeScope scope(ONBOARD);
    auto& combo = Add<CCustomDropListCombo>(CRect(10, 20, 110, 43)); // made in the mode
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(WindowRectOf(combo).Height(), 39);
    const auto changeTo = [&](APPMODE mode) {
        ChangeMode(mode);
        return WindowRectOf(combo).Height();
    };
    EXPECT_EQ(changeTo(STD), 23);
    EXPECT_EQ(changeTo(ONBOARD), 39);
    combo.SetCustomComboLBox(nullptr);
    EXPECT_EQ(changeTo(STD), 22) << "without a list it follows no mode";
    EXPECT_EQ(changeTo(ONBOARD), 37);
}

TEST_F(ChildPlacingTest, AListBoxOfWholeRowsKeepsThemHoweverTheModeComes)
{
    auto& list = AddList(CRect(10, 20, 160, 98), 0, 1);
    MessageLog log(list, {WM_SIZE});
    ChangeMode(ONBOARD), ChangeMode(STD); // in which it has the library's font now
    EXPECT_LT(log.Count(WM_SIZE), 12) << "a height that is no longer one of whole rows";
    int height = WindowRectOf(list).Height();
    const auto place = [&](double scale, APPMODE mode) { Restyle(Host(), scale, mode); };
    const auto hear = [&](APPMODE mode) { SetMode(mode, list); };
    const Act<> ways[] = {
        {"before its place",
         [&] { hear(ONBOARD), place(Enlarging, ONBOARD), hear(STD), place(Reducing, STD); }},
        {"through two that narrow it",
         [&] { ChangeMode(ONBOARD), hear(EFB), place(1, EFB), ChangeMode(STD); }},
        {"after a place for another, and one that its parent chose",
         [&] {
             place(Enlarging, ONBOARD), list.SetFont(&CCustomListBox::GetStdFont());
             list.MoveWindow(10, 20, 150, 30);
             height = WindowRectOf(list).Height();
             ChangeMode(ONBOARD), ChangeMode(STD);
         }},
    };
    for (const auto& [name, act] : ways)
    {
        act();
        EXPECT_EQ(WindowRectOf(list).Height(), height) << name;
    }
}

TEST_F(ChildPlacingTest, AListBoxGetsItsSidewaysPlaceBackWheneverTheModeGoesBack)
{
    auto& list = AddList(CRect(10, 20, 110, 120), WS_HSCROLL | LBS_NOINTEGRALHEIGHT, 7);
    list.SetHorizontalExtent(400);
    list.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 60));
    const int place = list.GetScrollPos(SB_HORZ);
    ASSERT_GT(place, 0);
    for (const auto& [from, to] : {std::pair{ONBOARD, STD}, {STD, ONBOARD}})
    {
        if (from != STD)
        {
            ChangeMode(from);
        }
        list.ActAfter(WM_SETFONT, [from = from] { COnBoardUIGeneral::SetAppMode(from); });
        ChangeMode(to);
        list.RedrawWindow();
        EXPECT_TRUE(from != STD || list.GetScrollPos(SB_HORZ) == place) << "on the way in";
        for (const APPMODE mode : {STD, ONBOARD, STD})
        {
            ChangeMode(mode);
            list.RedrawWindow();
            EXPECT_TRUE(mode != STD || list.GetScrollPos(SB_HORZ) == place) << "from " << from;
        }
    }
}

TEST_F(ChildPlacingTest, AReportListKeepsItsRowsHoweverTheModeComes)
{
    constexpr int Top = 40;
    auto& list = Add<Heir<CCustomListCtrl>>(CRect(10, 20, 210, 220), LVS_REPORT);
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 100);
    AddRows(list, 200);
    const auto* const bar = reinterpret_cast<const CFauxScrollBar*>(list.GetScrollBarCtrl(SB_VERT));
    const auto top = [&] {
        return list.GetTopIndex() + (COnBoardUIGeneral::InOnBoardMode() ? bar->GetScrollPos() : 0);
    };
    APPMODE before = STD;
    const auto goBack = [&] { COnBoardUIGeneral::SetAppMode(before); };
    const struct
    {
        const char* what;
        bool placed;
        UINT message;
        std::function<void()> act;
        int highest = Top;
    } steps[] = {
        {"it is laid out", true, 0, nullptr},
        {"the mode went back on the way", true, WM_SETFONT, goBack},
        {"and in a list that nobody places", false, WM_NCCALCSIZE, goBack},
        {"the heir shows another row", true, WM_SETFONT, [&] { list.EnsureVisible(100, 0); }, 100},
        {"deletes one out of sight", true, WM_SETFONT, [&] { list.DeleteItem(190); }},
        {"asks for it", true, WM_SETFONT, [&] { EXPECT_EQ(top(), Top); }},
    };
    for (const auto& [from, to] : {std::pair{STD, ONBOARD}, {ONBOARD, STD}})
    {
        for (const auto& each : steps)
        {
            SCOPED_TRACE(testing::Message() << each.what << " from " << from);
            ChangeMode(STD);
            list.MoveWindow(10, 20, 200, 200);
            list.Scroll(CSize(0, (Top - list.GetTopIndex()) * ItemRectOf(list, 0).Height()));
            if (from != STD)
            {
                ChangeMode(from);
            }
            ASSERT_EQ(top(), Top);
            before = from;
            list.ActAfter(each.message, each.act);
            each.placed ? ChangeMode(to) : COnBoardUIGeneral::SetAppMode(to);
            list.RedrawWindow();
            EXPECT_LE(top(), each.highest);
            EXPECT_GE(top(), each.highest == Top ? Top : Top + 31);
        }
    }
}

TEST_F(ChildPlacingTest, AControlThatKeepsItsSizeHasTheFrameOfTheMode)
{
    auto& list = AddList(CRect(10, 20, 210, 125), 0, 1);
    auto& edit = AddEdit(CRect(10, 130, 210, 230));
    edit.SetWindowText(Words(100));
    ChangeMode(ONBOARD);
    ChangeMode(STD);
    list.MoveWindow(10, 20, 200, 105);
    edit.MoveWindow(10, 130, 200, 100);
    const auto widths = [&] {
        Repaint(list);
        Repaint(edit);
        return std::pair(ClientRectOf(list).Width(), ClientRectOf(edit).Width());
    };
    const auto standard = widths();
    const CSize size = WindowRectOf(list).Size();
    list.keeps = edit.keeps = true;
    for (const auto& [before, mode] :
         {std::pair(true, ONBOARD), {true, STD}, {false, ONBOARD}, {false, STD}})
    {
        list.before = edit.before = before;
        ChangeMode(mode);
        const auto now = widths();
        EXPECT_TRUE(mode == STD ? now == standard : now.first < 200 - 52 && now.second <= 200 - 52)
            << mode << ' ' << now.first << ' ' << now.second;
    }
    EXPECT_EQ(WindowRectOf(list).Size(), size) << "whatever the frames cut off it";
}

TEST_F(ChildRestylingTest, ACombosHeightTakesInItsList)
{
    for (const auto& [scale, mode] : BothWays)
    {
        Plain& combo = AddPlain("COMBOBOX", CRect(10, 20, 110, 170), CBS_DROPDOWNLIST);
        const int closed = PlaceIn(Host(), combo).Height();
        CRect dropped;
        combo.SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        ASSERT_GT(dropped.Height(), closed);
        combo.SendMessage(CB_SHOWDROPDOWN, TRUE);
        combo.asked.reset();
        Restyle(Host(), scale, mode);
        EXPECT_EQ(::GetCapture(), nullptr) << "by a list that is no longer open";
        EXPECT_EQ(combo.asked->cy,
                  int(closed * scale) + int(dropped.Height() * (mode == STD ? 1 : scale)));
        EXPECT_EQ(combo.asked->x, Across(10, scale));
        combo.DestroyWindow();
    }
}

TEST_F(ChildRestylingTest, AnAttachedRichEditChangesItsDefaultCharacters)
{
    auto& edit = Add<CRichEditCtrl>(CRect(10, 20, 210, 120), ES_MULTILINE);
    CHARFORMAT format = {.cbSize = sizeof(format), .dwMask = CFM_SIZE, .yHeight = 202};
    edit.SetDefaultCharFormat(format);
    const std::tuple<double, APPMODE, const char*, LONG, bool> steps[] = {
        {Enlarging, ONBOARD, "Arial", 252, true}, // 252.5
        {1.0, EFBFS, "Arial", 315, true},
        {Reducing, STD, "MS Sans Serif", 252, false}};
    for (const auto& [scale, mode, face, height, bold] : steps)
    {
        Restyle(Host(), scale, mode);
        edit.SendMessage(EM_GETCHARFORMAT, 0, LPARAM(&format));
        EXPECT_STREQ(format.szFaceName, face);
        EXPECT_EQ(format.yHeight, height);
        EXPECT_EQ((format.dwEffects & CFE_BOLD) != 0, bold);
        EXPECT_EQ(edit.SetBackgroundColor(FALSE, RGB(0, 0, 0)), RGB(180, 180, 180));
    }
}

TEST_F(ChildRestylingTest, AnAttachedTabControlSizesItsItems)
{
    auto& tabs = Add<CTabCtrl>(CRect(10, 20, 310, 120));
    MessageLog log(tabs, {TCM_SETITEMSIZE});
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(log.All(), std::vector<Received>()) << "it has no item yet";
    tabs.InsertItem(0, "First");
    tabs.InsertItem(1, "Second, longer");
    for (const auto& [scale, mode] : BothWays)
    {
        CRect item;
        ASSERT_TRUE(tabs.GetItemRect(0, &item));
        log.Clear();
        Restyle(Host(), scale, mode);
        const LPARAM size = MAKELPARAM(Across(item.Width(), scale), int(item.Height() * scale) + 3);
        EXPECT_EQ(log.All(), (std::vector<Received>{{TCM_SETITEMSIZE, 0, size}}));
    }
}

} // namespace
