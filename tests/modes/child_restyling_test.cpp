#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "CustomListBox.h"
#include "CustomListCtrl.h"
#include "FauxScrollBar.h"
#include "OnBoardUI.h"
#include "support/WindowTest.h"

#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace {

constexpr double Enlarging = 1.7;
constexpr double Reducing = 1.0 / 1.7;

void Restyle(const CWnd& parent, double scale, APPMODE mode)
{
    ModifyChildWndsData data;
    data.parent = parent;
    data.scale = scale;
    data.mode = mode;
    EXPECT_TRUE(
        ::EnumChildWindows(parent, &ModifyChildsForAppMode, reinterpret_cast<LPARAM>(&data)));
}

// A plain window of any class. It notes the first place that it is asked to take, before it has its
// own say.
class Plain : public CWnd
{
public:
    explicit Plain(const char* windowClass)
        : m_class(windowClass)
    {}
    BOOL Create(const char* text, DWORD style, const CRect& place, CWnd* parent, UINT id)
    {
        return CWnd::Create(m_class, text, style, place, parent, id);
    }
    std::optional<WINDOWPOS> asked;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_WINDOWPOSCHANGING && !asked)
        {
            asked = *reinterpret_cast<const WINDOWPOS*>(lParam);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    const char* m_class;
};

class ChildRestylingTest : public WindowTest
{
protected:
    CRect PlaceOf(const CWnd& child)
    {
        CRect place = WindowRectOf(child);
        Host().ScreenToClient(&place);
        return place;
    }

    Plain& AddPlain(const char* windowClass, const CRect& place, DWORD style = 0)
    {
        Plain& plain = Add(std::make_unique<Plain>(windowClass), place, style);
        plain.asked.reset();
        return plain;
    }
};

TEST_F(ChildRestylingTest, PlacesScaleAndAreTruncated)
{
    CWnd& child = AddPlain("STATIC", CRect(0, 0, 1, 1));
    const double nextAboveOne = std::nextafter(1.0, 2.0);
    const std::tuple<CRect, double, CRect> cases[] = {
        {CRect(CPoint(10, 20), CSize(100, 30)), Enlarging, CRect(CPoint(22, 34), CSize(224, 51))},
        {CRect(CPoint(22, 34), CSize(224, 51)), Reducing, CRect(CPoint(9, 20), CSize(99, 30))},
        {CRect(CPoint(10, 20), CSize(100, 30)), 1.0, CRect(CPoint(7, 20), CSize(75, 30))},
        {CRect(CPoint(-10, -20), CSize(7, 3)), Enlarging, CRect(CPoint(-22, -34), CSize(15, 5))},
        {CRect(CPoint(-10, -20), CSize(7, 3)), Reducing, CRect(CPoint(-4, -11), CSize(3, 1))},
        {CRect(10, 10, 20, 20), 0.0, CRect(0, 0, 0, 0)},
        // The factor nearest above one still narrows, the next one widens.
        {CRect(100, 100, 200, 200), nextAboveOne, CRect(CPoint(75, 100), CSize(75, 100))},
        {CRect(100, 100, 200, 200), std::nextafter(nextAboveOne, 2.0),
         CRect(CPoint(132, 100), CSize(132, 100))},
    };
    for (const auto& [before, scale, after] : cases)
    {
        child.MoveWindow(&before);
        Restyle(Host(), scale, ONBOARD);
        EXPECT_EQ(PlaceOf(child), after) << before.left << " by " << scale;
    }
}

TEST_F(ChildRestylingTest, OnlyDirectChildrenAreTouched)
{
    CWnd& box = AddPlain("STATIC", CRect(10, 20, 110, 50));
    CEdit inner;
    ASSERT_TRUE(inner.Create(WS_CHILD | WS_VISIBLE, CRect(1, 2, 31, 12), &box, 1));
    MessageLog log(inner, {WM_SETFONT, WM_WINDOWPOSCHANGING});
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(log.All(), std::vector<Received>());
    EXPECT_EQ(PlaceOf(box).Width(), 224);

    EXPECT_EQ(ModifyChildsForAppMode(box, 0), 1);

    // A record that names no parent is not one of all top-level windows.
    const CRect place = WindowRectOf(Host());
    ModifyChildWndsData nobody;
    nobody.scale = Enlarging;
    nobody.mode = ONBOARD;
    EXPECT_EQ(ModifyChildsForAppMode(Host(), reinterpret_cast<LPARAM>(&nobody)), 1);
    EXPECT_EQ(WindowRectOf(Host()), place);

    // Absurd factors do no harm.
    for (const double scale : {1e300, -1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()})
    {
        Restyle(Host(), scale, ONBOARD); // to its end, or it fails
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
        Restyle(Host(), Reducing, STD);
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
        EXPECT_NE(control.asked->flags & SWP_NOZORDER, 0U);
        control.DestroyWindow();
    }
}

TEST_F(ChildRestylingTest, AListBoxGetsThePlatformsBarBackInTheStandardModeOnly)
{
    CWnd& list = AddPlain("LISTBOX", CRect(10, 20, 110, 50), LBS_NOINTEGRALHEIGHT);
    MessageLog log(list, {WM_STYLECHANGED});
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(list.GetStyle() & WS_VSCROLL, 0U);
    Restyle(Host(), Reducing, STD);
    EXPECT_NE(list.GetStyle() & WS_VSCROLL, 0U);
    log.Clear();
    Restyle(Host(), Reducing, STD);
    EXPECT_EQ(log.Count(WM_STYLECHANGED), 0) << "written only when it changes";
}

// In the new mode, as a window that follows it does.
void ChangeMode(const CWnd& parent, APPMODE mode)
{
    COnBoardUIGeneral::SetAppMode(mode);
    Restyle(parent, mode == STD ? Reducing : Enlarging, mode);
}

TEST_F(ChildRestylingTest, AnEditBreaksItsLinesForItsFontAndItsPlace)
{
    const ModeScope standard(STD);
    auto& edit = Add<CCustomEdit>(CRect(10, 20, 210, 120),
                                  ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | WS_BORDER);
    CString paragraph;
    for (int word = 0; word < 60; ++word)
    {
        paragraph += "waypoint ";
    }
    edit.SetWindowText(paragraph + "\r\n" + paragraph + "\r\n" + paragraph);
    const auto isBroken = [&edit](const char* when, int firstLine) {
        SCOPED_TRACE(when);
        CRect client;
        edit.GetClientRect(&client);
        EXPECT_LE(client.Width(), WindowRectOf(edit).Width());
        EXPECT_EQ(edit.GetFirstVisibleLine(), firstLine);
        const int lines = edit.GetLineCount();
        EXPECT_GT(lines, 3 + firstLine);
        edit.SetRect(nullptr); // breaks them anew
        EXPECT_EQ(edit.GetLineCount(), lines);
    };
    edit.LineScroll(7); // there are fewer paragraphs
    ChangeMode(Host(), ONBOARD);
    isBroken("on-board", 7);
    edit.SetFont(&CCustomEdit::GetStdFont());
    isBroken("a font alone", 7);
    edit.SetFont(&CCustomEdit::GetOnBoardFont());
    isBroken("and back", 7);
    ChangeMode(Host(), STD);
    isBroken("standard", 7);
    edit.SetFont(&CCustomEdit::GetOnBoardFont());
    isBroken("a font alone in the standard mode", 7);
}

TEST_F(ChildRestylingTest, AListBoxIsLaidOutInItsNewPlaceAlone)
{
    const ModeScope standard(STD);
    auto& list = Add<CCustomListBox>(CRect(10, 20, 110, 120), WS_VSCROLL | LBS_NOINTEGRALHEIGHT);
    for (int row = 0; row < 200; ++row)
    {
        list.AddString("waypoint");
    }
    MessageLog log(list, {WM_SIZE});
    ChangeMode(Host(), ONBOARD);
    EXPECT_LE(log.Count(WM_SIZE), 2) << "at the new size, and once more for its bar at most";
    CRect client;
    list.GetClientRect(&client);
    EXPECT_LT(client.Width(), WindowRectOf(list).Width() - 52) << "with its bar";
}

// A control whose heir has its own say once, right after the first message of a kind, and which may
// keep its width and place whatever it is told.
enum class Keeps
{
    Nothing,
    Before,   // then asks the control
    After,    // the control, and the frame with it
    Swallowed // the control is not asked
};
template <class Base> class Heir : public Base
{
public:
    using Base::Base;
    Keeps keeps = Keeps::Nothing;
    void ActAfter(UINT message, std::function<void()> act)
    {
        m_message = message;
        m_act = std::move(act);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        constexpr UINT Kept = SWP_NOSIZE | SWP_NOMOVE;
        auto* const position = reinterpret_cast<WINDOWPOS*>(lParam);
        const bool asked = message == WM_WINDOWPOSCHANGING && keeps != Keeps::Nothing &&
                           (position->flags & SWP_NOSIZE) == 0 &&
                           position->cx != WindowRectOf(*this).Width();
        if (asked && keeps != Keeps::After)
        {
            position->flags |= Kept;
        }
        const LRESULT result =
            asked && keeps == Keeps::Swallowed ? 0 : Base::WindowProc(message, wParam, lParam);
        if (asked && keeps == Keeps::After)
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

TEST_F(ChildRestylingTest, AnEditShowsWhatItsHeirBroughtIntoSightOnTheWay)
{
    const ModeScope standard(STD);
    auto& edit = Add<Heir<CCustomEdit>>(CRect(10, 20, 210, 120),
                                        ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | WS_BORDER);
    CString text;
    for (int word = 0; word < 80; ++word)
    {
        text += "waypoint ";
    }
    const std::tuple<const char*, UINT, std::function<void()>> steps[] = {
        {"another text", WM_SETFONT, [&] { edit.SetWindowText(text + "!"); }},
        {"another text for a size", WM_SIZE, [&] { edit.SetWindowText(text + "?"); }},
        {"scrolled up", WM_SETFONT, [&] { edit.LineScroll(-edit.GetFirstVisibleLine()); }},
        {"scrolled to the caret", WM_SETFONT,
         [&] {
             edit.SetSel(0, 0, TRUE);
             edit.SendMessage(EM_SCROLLCARET);
         }},
    };
    for (const auto& [what, message, act] : steps)
    {
        for (const bool placed : {true, false})
        {
            SCOPED_TRACE(what);
            edit.MoveWindow(10, 20, 200, 100);
            edit.SetWindowText(text);
            edit.LineScroll(7);
            ASSERT_EQ(edit.GetFirstVisibleLine(), 7);
            edit.ActAfter(message, act);
            if (placed)
            {
                ChangeMode(Host(), ONBOARD);
            }
            else
            {
                edit.SetFont(&CCustomEdit::GetStdFont());
            }
            EXPECT_EQ(edit.GetFirstVisibleLine(), 0) << placed;
            edit.ActAfter(0, nullptr);
            ChangeMode(Host(), STD);
        }
    }
    int lines = 0;
    edit.MoveWindow(10, 20, 200, 100);
    edit.ActAfter(WM_SETFONT, [&] { lines = edit.GetLineCount(); });
    ChangeMode(Host(), ONBOARD);
    EXPECT_GT(lines, 8) << "broken, whenever it is asked";
}

TEST_F(ChildRestylingTest, AReportListKeepsItsRowsHoweverTheModeComes)
{
    const ModeScope standard(STD);
    constexpr int Top = 40;
    auto& list = Add<Heir<CCustomListCtrl>>(CRect(10, 20, 210, 220), LVS_REPORT);
    list.InsertColumn(0, "Name", LVCFMT_LEFT, 100);
    for (int row = 0; row < 200; ++row)
    {
        list.InsertItem(row, "waypoint");
    }
    const auto rowHeight = [&] {
        CRect row;
        list.GetItemRect(0, &row, LVIR_BOUNDS);
        return row.Height();
    };
    const auto* const bar = reinterpret_cast<const CFauxScrollBar*>(list.GetScrollBarCtrl(SB_VERT));
    const auto top = [&] {
        return list.GetTopIndex() + (COnBoardUIGeneral::InOnBoardMode() ? bar->GetScrollPos() : 0);
    };
    const auto begin = [&](APPMODE mode) {
        ChangeMode(Host(), STD);
        list.MoveWindow(10, 20, 200, 200);
        list.Scroll(CSize(0, (Top - list.GetTopIndex()) * rowHeight()));
        ASSERT_EQ(top(), Top);
        if (mode != STD)
        {
            ChangeMode(Host(), mode);
            ASSERT_EQ(top(), Top);
        }
    };
    for (const auto& [from, to] : {std::pair{STD, ONBOARD}, {ONBOARD, STD}})
    {
        SCOPED_TRACE(from);
        begin(from);
        list.ActAfter(WM_SETFONT, [from = from] { COnBoardUIGeneral::SetAppMode(from); });
        ChangeMode(Host(), to);
        EXPECT_EQ(top(), Top) << "the mode went back on the way";

        begin(from);
        list.ActAfter(WM_SETFONT, [&] { list.EnsureVisible(100, FALSE); });
        ChangeMode(Host(), to);
        EXPECT_GT(top(), Top + 30) << "the heir shows another row";
        EXPECT_LE(top(), 100);

        begin(from);
        list.ActAfter(WM_SETFONT, [&] { list.DeleteItem(199); });
        ChangeMode(Host(), to);
        EXPECT_EQ(top(), Top) << "the heir deletes a row out of sight";
        list.InsertItem(199, "waypoint");

        begin(from);
        int asked = 0;
        list.ActAfter(WM_SETFONT, [&] { asked = top(); });
        ChangeMode(Host(), to);
        EXPECT_EQ(asked, Top) << "whenever it is asked";
    }
}

TEST_F(ChildRestylingTest, AListBoxGetsItsSidewaysPlaceBackWheneverTheModeGoesBack)
{
    const ModeScope standard(STD);
    auto& list = Add<Heir<CCustomListBox>>(CRect(10, 20, 110, 120),
                                           WS_VSCROLL | WS_HSCROLL | LBS_NOINTEGRALHEIGHT);
    for (int row = 0; row < 50; ++row)
    {
        list.AddString("waypoint waypoint waypoint waypoint waypoint waypoint waypoint");
    }
    list.SetHorizontalExtent(400);
    list.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 60));
    const int place = list.GetScrollPos(SB_HORZ);
    ASSERT_GT(place, 0);
    ChangeMode(Host(), ONBOARD);
    ChangeMode(Host(), STD);
    ASSERT_EQ(list.GetScrollPos(SB_HORZ), place);
    list.ActAfter(WM_SETFONT, [] { COnBoardUIGeneral::SetAppMode(STD); });
    ChangeMode(Host(), ONBOARD);
    list.RedrawWindow();
    EXPECT_EQ(list.GetScrollPos(SB_HORZ), place) << "on the way in";
    ChangeMode(Host(), STD);
    ChangeMode(Host(), ONBOARD);
    list.ActAfter(WM_SETFONT, [] { COnBoardUIGeneral::SetAppMode(ONBOARD); });
    ChangeMode(Host(), STD);
    list.RedrawWindow();
    ChangeMode(Host(), STD);
    list.RedrawWindow();
    EXPECT_EQ(list.GetScrollPos(SB_HORZ), place) << "on the way out";
}

TEST_F(ChildRestylingTest, AControlThatKeepsItsSizeHasTheFrameOfTheMode)
{
    for (const Keeps keeps : {Keeps::Before, Keeps::After, Keeps::Swallowed})
    {
        SCOPED_TRACE(int(keeps));
        const ModeScope standard(STD);
        auto& list = Add<Heir<CCustomListBox>>(CRect(10, 20, 210, 125), WS_VSCROLL);
        auto& edit = Add<Heir<CCustomEdit>>(CRect(10, 130, 210, 230),
                                            ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL | WS_BORDER);
        CString text;
        for (int row = 0; row < 50; ++row)
        {
            list.AddString("waypoint");
            text += "waypoint waypoint ";
        }
        edit.SetWindowText(text);
        ChangeMode(Host(), ONBOARD);
        ChangeMode(Host(), STD);
        const auto width = [](const CWnd& control) {
            const_cast<CWnd&>(control).RedrawWindow(nullptr, nullptr,
                                                    RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
            return ClientRectOf(control).Width();
        };
        list.MoveWindow(10, 20, 200, 105);
        edit.MoveWindow(10, 130, 200, 100);
        const int listWidth = width(list);
        const int editWidth = width(edit);
        const CSize listSize = WindowRectOf(list).Size();
        list.keeps = edit.keeps = keeps;
        for (int turn = 0; turn < 2; ++turn)
        {
            ChangeMode(Host(), ONBOARD);
            EXPECT_LT(width(list), 200 - 52) << "with its bar";
            EXPECT_LE(width(edit), 200 - 52) << "with its bar";
            ChangeMode(Host(), STD);
            EXPECT_EQ(width(list), listWidth);
            EXPECT_EQ(width(edit), editWidth);
        }
        EXPECT_EQ(WindowRectOf(list).Size(), listSize) << "whatever the frames cut off it";
        Remove(list);
        Remove(edit);
    }
}

TEST_F(ChildRestylingTest, ACombosHeightTakesInItsList)
{
    for (const bool standard : {false, true})
    {
        Plain& combo = AddPlain("COMBOBOX", CRect(10, 20, 110, 170), CBS_DROPDOWNLIST);
        const CRect closed = PlaceOf(combo);
        CRect dropped;
        combo.SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        ASSERT_GT(dropped.Height(), closed.Height());
        combo.asked.reset();
        const double scale = standard ? Reducing : Enlarging;
        Restyle(Host(), scale, standard ? STD : ONBOARD);
        EXPECT_EQ(combo.asked->cy,
                  int(closed.Height() * scale) +
                      (standard ? dropped.Height() : int(dropped.Height() * scale)));
        EXPECT_EQ(combo.asked->x, int(standard ? 10 * scale / 1.32 : 10 * scale * 1.32));
        combo.DestroyWindow();
    }
}

TEST_F(ChildRestylingTest, AnAttachedRichEditChangesItsDefaultCharacters)
{
    auto& edit = Add<CRichEditCtrl>(CRect(10, 20, 210, 120), ES_MULTILINE);
    CHARFORMAT format = {};
    format.cbSize = sizeof(format);
    format.dwMask = CFM_SIZE;
    format.yHeight = 202;
    edit.SetDefaultCharFormat(format);
    MessageLog log(edit, {EM_SETBKGNDCOLOR});
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
    }
    const Received background = {EM_SETBKGNDCOLOR, FALSE, RGB(180, 180, 180)};
    EXPECT_EQ(log.All(), std::vector<Received>(3, background));
}

TEST_F(ChildRestylingTest, AnAttachedTabControlSizesItsItems)
{
    auto& tabs = Add<CTabCtrl>(CRect(10, 20, 310, 120));
    MessageLog log(tabs, {TCM_SETITEMSIZE});
    Restyle(Host(), Enlarging, ONBOARD);
    EXPECT_EQ(log.All(), std::vector<Received>()) << "it has no item yet";
    tabs.InsertItem(0, "First");
    tabs.InsertItem(1, "Second, longer");
    for (const bool standard : {false, true})
    {
        CRect item;
        ASSERT_TRUE(tabs.GetItemRect(0, &item));
        log.Clear();
        const double scale = standard ? Reducing : Enlarging;
        Restyle(Host(), scale, standard ? STD : ONBOARD);
        const int width = int(standard ? item.Width() * scale / 1.32 : item.Width() * scale * 1.32);
        const std::vector<Received> expected = {
            {TCM_SETITEMSIZE, 0, MAKELPARAM(width, int(item.Height() * scale) + 3)}};
        EXPECT_EQ(log.All(), expected);
    }
}

} // namespace
