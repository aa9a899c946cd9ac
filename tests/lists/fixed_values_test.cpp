// What hosts and derived classes know of the lists by its value: fonts, timers, the combo's window
// class, and the flags of a frame that is laid out anew.

#include "CustomDropListCombo.h"
#include "CustomEdit.h"
#include "OnBoardUI.h"
#include "listctrl/list_for_tests.h"
#include "lists/check_list_for_tests.h"

#include <cmath>

using namespace parts;

TEST_F(WindowTest, ControlsHaveTheFontsOfTheirKind)
{
    const struct
    {
        const char* name;
        CFont& onBoard;
        CFont& standard;
        double factor;
    } kinds[] = {
        {"list box", CCustomListBox::GetOnBoardFont(), CCustomListBox::GetStdFont(), 1.3},
        {"combo", CCustomDropListCombo::GetOnBoardFont(), CCustomDropListCombo::GetStdFont(), 1.3},
        {"check list", CCustomChecklistBox::GetOnBoardFont(), CCustomChecklistBox::GetStdFont(),
         1.7},
        {"report list", CCustomListCtrl::GetOnBoardFont(), CCustomListCtrl::GetStdFont(), 1.7},
        {"edit", CCustomEdit::GetOnBoardFont(), CCustomEdit::GetStdFont(), 1.7},
    };
    LOGFONT stock = {};
    ::GetObject(::GetStockObject(SYSTEM_FONT), sizeof(stock), &stock);
    const CClientDC screen(nullptr);
    const int tenthsOfAPoint = COnBoardUIGeneral::GetStdCtrllfHeight();
    EXPECT_GT(tenthsOfAPoint, 0);
    for (const auto& kind : kinds)
    {
        LOGFONT font = {};
        kind.onBoard.GetLogFont(&font);
        EXPECT_EQ(font.lfHeight, LONG(std::trunc(stock.lfHeight * kind.factor))) << kind.name;
        EXPECT_EQ(font.lfWeight, 400) << kind.name;
        EXPECT_STREQ(font.lfFaceName, "Arial") << kind.name;
        kind.standard.GetLogFont(&font);
        EXPECT_EQ(font.lfHeight, -::MulDiv(tenthsOfAPoint, screen.GetDeviceCaps(LOGPIXELSY), 720))
            << kind.name;
        EXPECT_STREQ(font.lfFaceName, "MS Sans Serif") << kind.name;
    }
}

namespace {

struct LargeTexts : CheckListForTests
{
    static void Scale(double factor) { CreateOnBoardFont(m_OBFont, factor, 0, 400); }
};

} // namespace

TEST_F(ListBoxOnBoard, RowsAreHalfAgainAsHighAsTheirTextAndThoseOfVariableChecksAsTheCheck)
{
    auto& list = AddList(1);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(&CCustomListBox::GetOnBoardFont());
    EXPECT_EQ(list.GetEntryHeight("Aj"), int(dc.GetTextExtent("Aj", 2).cy * 1.5));

    auto& checks = Add<LargeTexts>(CRect(20, 20, 320, 320), CheckListStyle);
    auto& variable = Add<LargeTexts>(CRect(20, 20, 320, 320), VariableCheckListStyle);
    const int check = variable.CalcMinimumItemHeight();
    LargeTexts::Scale(5);
    dc.SelectObject(&CCustomChecklistBox::GetOnBoardFont());
    EXPECT_EQ(checks.CalcMinimumItemHeight(), dc.GetTextExtent("Aj", 2).cy);
    EXPECT_EQ(variable.CalcMinimumItemHeight(), check) << "whatever its texts";
    dc.SelectStockObject(SYSTEM_FONT);
    LargeTexts::Scale(1.7);
}

TEST_F(ListBoxOnBoard, TheTimersAreKnownToHostsAndTheInitialWaitIsHonoured)
{
    const UINT timers[][4] = {
        {CCustomListBox::m_timerid, CCustomListBox::m_timerperiod,
         CCustomListBox::m_timerInitialWaitID, CCustomListBox::m_timerInitialWaitPeriod},
        {CCustomListCtrl::m_timerid, CCustomListCtrl::m_timerperiod,
         CCustomListCtrl::m_timerInitialWaitID, CCustomListCtrl::m_timerInitialWaitPeriod}};
    for (const auto& of : timers)
    {
        EXPECT_EQ(std::vector(of, of + 4), (std::vector<UINT>{101, 130, 104, 300}));
    }
    EXPECT_EQ(CCustomEdit::m_timerid, 103U);
    EXPECT_EQ(CCustomEdit::m_timerperiod, 102U);

    // A derived class may start the wait: one line, and from then on the repeats.
    auto& list = AddList(500);
    MoveTo(list.PartPoint(Second));
    Press();
    list.KillTimer(CCustomListBox::m_timerid);
    const int top = list.GetTopIndex();
    list.SetTimer(CCustomListBox::m_timerInitialWaitID, 10, nullptr);
    MessageLog log(list, {WM_TIMER});
    ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_TIMER) >= 3; }));
    Release();
    EXPECT_EQ(log.WParams(WM_TIMER)[0], 104U);
    EXPECT_EQ(log.WParams(WM_TIMER)[1], 101U);
    EXPECT_EQ(log.WParams(WM_TIMER)[2], 101U) << "the wait comes once";
    EXPECT_EQ(list.GetTopIndex(), top + 3);
    PumpFor(200);
    list.SendMessage(WM_TIMER, CCustomListBox::m_timerInitialWaitID);
    EXPECT_EQ(list.GetTopIndex(), top + 3) << "the button is up";
}

TEST_F(ListBoxOnBoard, AFrameThatGetsABarIsLaidOutAnewWithoutItsOldBits)
{
    struct Framed : ListBoxForTests
    {
        std::vector<UINT> frames;

        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_WINDOWPOSCHANGING)
            {
                frames.push_back(reinterpret_cast<const WINDOWPOS*>(lParam)->flags);
            }
            return ListBoxForTests::WindowProc(message, wParam, lParam);
        }
    };
    auto& list = AddList<Framed>(2);
    list.frames.clear();
    list.Fill(50);
    EXPECT_EQ(
        std::ranges::count_if(list.frames, [](UINT flags) { return (flags & 0x123) == 0x123; }), 1)
        << "with the row that does not fit, and no other";
}

TEST_F(WindowTest, TheCombosWindowClassServesEveryModule)
{
    ASSERT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr));
    EXPECT_TRUE(CCustomDropListCombo::RegisterWndClass(nullptr)) << "again";
    WNDCLASS known = {};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), "CCUSTOMDROPLISTCOMBO", &known));
    EXPECT_EQ(known.style, UINT(CS_GLOBALCLASS));
    EXPECT_EQ(known.hCursor, ::LoadCursor(nullptr, IDC_ARROW));
    EXPECT_TRUE(known.hbrBackground == nullptr && known.hIcon == nullptr);
    EXPECT_TRUE(known.lpszMenuName == nullptr && known.cbClsExtra == 0 && known.cbWndExtra == 0);
    const HMODULE another = ::GetModuleHandle("user32.dll");
    EXPECT_TRUE(::GetClassInfo(another, "CCUSTOMDROPLISTCOMBO", &known));
}

TEST_F(ListCtrlOnBoard, TheReportListIsAskedForItsBarsItsVersionAndItsFrame)
{
    const GridLines none;
    EXPECT_EQ(none.firstgrid(), -1);
    EXPECT_EQ(none.lastgrid(), -1);
    auto& list = AddList(3);
    EXPECT_EQ(list.GetScrollBarCtrl(SB_BOTH), nullptr);
    EXPECT_EQ(list.SendMessage(CCM_GETVERSION), 5);
    // The frame is three pixels less wide than that of a sizeable window, by the metrics of the
    // other direction; the edge lies within it.
    const CRect window = WindowRectOf(list);
    const CPoint client = ClientPoint(list, CPoint(0, 0));
    const int edge = ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(client.x - window.left, ::GetSystemMetrics(SM_CYFRAME) - 3 + edge);
    EXPECT_EQ(client.y - window.top, ::GetSystemMetrics(SM_CXFRAME) - 3 + edge);
}
