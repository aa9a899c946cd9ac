#include "lists/list_box_for_tests.h"
#include "support/DialogTemplate.h"

#include "CustomDialog.h"

#include <gmock/gmock.h>

// Layout ----------------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, BandAppearsWithTheRowThatDoesNotFitAndGoesWithIt)
{
    auto& list = AddList(0);
    const int inset = ::GetSystemMetrics(SM_CXFRAME) - 3 + ::GetSystemMetrics(SM_CXEDGE);
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());

    const int visible = ClientRectOf(list).Height() / list.GetItemHeight(0);
    list.Fill(visible);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    list.AddString("One more");
    EXPECT_TRUE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset - 52);
    int minimum = -1;
    int maximum = -1;
    list.m_vBar.GetScrollRange(&minimum, &maximum);
    EXPECT_EQ(minimum, 0);
    EXPECT_EQ(maximum, 2); // rows - visible rows + 1
    EXPECT_EQ(list.m_vBar.GetPageSize(), visible - 1);

    // The bar lies beside the client rectangle and three pixels over its ends.
    const CRect area = list.m_vBar.GetArea();
    EXPECT_EQ(area.Width(), 55);
    EXPECT_EQ(area.left, inset + ClientRectOf(list).Width());
    EXPECT_EQ(area.top, inset - 3);
    EXPECT_EQ(area.Height(), ClientRectOf(list).Height() + 6);

    list.DeleteString(0);
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(ClientRectOf(list).Width(), 300 - 2 * inset);
    list.Fill(100);
    list.ResetContent();
    EXPECT_FALSE(list.m_vBar.ShowScrollBar());
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 0);
}

TEST_F(ListBoxOnBoard, TheFrameIsPaintedFromEdgeToEdge)
{
    auto& list = AddList(500);
    const Pixels seen = WindowPixels(list);
    constexpr COLORREF outline = RGB(70, 70, 70);
    EXPECT_EQ(seen.At(0, 0), outline);
    EXPECT_EQ(seen.At(2, 150), outline);
    EXPECT_EQ(seen.At(150, 299), outline);
    EXPECT_EQ(seen.At(299, 150), outline);
    // The trough beside the thumb, and no pixel of the platform's bar.
    const CRect area = list.m_vBar.GetArea();
    const CRect second = list.m_vBar.GetPartArea(CFauxScrollBar::PRESSED_SECOND);
    EXPECT_EQ(seen.At(area.CenterPoint().x, second.top - 10), RGB(26, 26, 26));
    EXPECT_EQ(seen.Count(::GetSysColor(COLOR_SCROLLBAR), area), 0);

    list.EnableWindow(FALSE);
    PumpAll();
    EXPECT_NE(WindowPixels(list).At(area.CenterPoint().x, second.top - 10), RGB(26, 26, 26));
}

TEST_F(ListBoxOnBoard, ABarThatLooksTheSameIsNotPaintedAgain)
{
    auto& list = AddList(100);
    const CRect area = list.m_vBar.GetArea();
    const CPoint mark(area.CenterPoint().x, area.bottom - 60);
    {
        CWindowDC dc(&list);
        dc.SetPixel(mark.x, mark.y, RGB(255, 0, 0));
    }
    // The range grows with every row, the picture does not.
    list.Fill(50);
    PumpAll();
    EXPECT_EQ(WindowPixels(list).At(mark), RGB(255, 0, 0));
    list.SetTopIndex(40);
    EXPECT_NE(WindowPixels(list).At(mark), RGB(255, 0, 0));
}

TEST_F(ListBoxOnBoard, BarFollowsEveryWayOfScrollingAndResizing)
{
    auto& list = AddList(200);
    list.SetTopIndex(30);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 30);
    list.SetCurSel(150);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex());
    EXPECT_GT(list.GetTopIndex(), 30);
    list.SelectString(-1, "Row 7");
    EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex());
    list.SetTopIndex(0);
    EXPECT_EQ(list.CCustomListBox::SetScrollPos(SB_VERT, 12), 0);
    EXPECT_EQ(list.GetTopIndex(), 12);

    list.MoveWindow(20, 20, 300, 200);
    EXPECT_EQ(list.m_vBar.GetArea().Height(), ClientRectOf(list).Height() + 6);
    EXPECT_EQ(list.m_vBar.GetPageSize(), list.VisibleRows() - 1);
    // At the end, the bar does not run ahead of the rows.
    list.SetTopIndex(199);
    list.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), list.GetTopIndex());
    EXPECT_EQ(list.GetTopIndex(), 200 - list.VisibleRows());
    list.SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(list.GetTopIndex(), 0);
    list.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 25));
    EXPECT_EQ(list.GetTopIndex(), 25);
    while (list.GetCount() > 3)
    {
        list.DeleteString(list.GetCount() - 1);
    }
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 0);
    EXPECT_EQ(list.GetTopIndex(), 0);
}

// Sideways --------------------------------------------------------------------------------------

TEST_F(ListBoxOnBoard, WideRowsScrollSideways)
{
    auto& list = AddList(3, ListStyle | WS_HSCROLL);
    EXPECT_FALSE(list.m_hBarNeeded);
    list.AddString("A row that is a good deal wider than the window that is to show it, by far");
    ASSERT_TRUE(list.m_hBarNeeded);
    PumpAll();
    const CRect client = ClientRectOf(list);
    EXPECT_EQ(list.m_hBar.GetArea().Height(), 55);

    const auto rowPixels = [&] {
        return ScreenPixels(CRect(WindowPoint(list, CPoint(0, 0)), CSize(240, 120)));
    };
    const Pixels before = rowPixels();
    list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    PumpAll();
    EXPECT_FALSE(rowPixels() == before);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 1);
    for (int turn = 0; turn < 200; ++turn)
    {
        list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    }
    const int end = list.m_hBar.GetScrollPos();
    EXPECT_EQ(list.m_hBar.GetPartArea(CFauxScrollBar::PRESSED_THUMB).right,
              list.m_hBar.GetPartArea(CFauxScrollBar::PRESSED_SECOND).left);
    list.SendMessage(WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), end - 1);
    list.SendMessage(WM_HSCROLL, SB_LEFT);
    PumpAll();
    EXPECT_TRUE(rowPixels() == before);

    // Both bars: narrower by the vertical band, which may ask for the horizontal one.
    list.Fill(100);
    EXPECT_TRUE(list.m_vBarNeeded);
    EXPECT_EQ(ClientRectOf(list).Width(), client.Width() - 52);
    list.DeleteString(3);
    EXPECT_FALSE(list.m_hBarNeeded);
    list.ResetContent();
    EXPECT_FALSE(list.m_vBarNeeded);
}

TEST_F(ListBoxOnBoard, WithoutTheStyleNothingScrollsSideways)
{
    auto& list = AddList(0);
    list.AddString("A row that is a good deal wider than the window that is to show it, by far");
    EXPECT_FALSE(list.m_hBarNeeded);
    EXPECT_EQ(list.GetHorizontalExtent(), 0);
}

// Modes -----------------------------------------------------------------------------------------

namespace {

class ListDialog : public CCustomDialog
{
public:
    explicit ListDialog(bool subclass)
        : CCustomDialog(0U, nullptr)
        , m_subclass(subclass)
    {}

    ListBoxForTests list;

protected:
    BOOL OnInitDialog() override
    {
        if (m_subclass)
        {
            list.SubclassDlgItem(101, this);
        }
        return CCustomDialog::OnInitDialog();
    }

private:
    bool m_subclass;
};

bool PlatformBarWorks(CListBox& list)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_ALL;
    list.SetTopIndex(5);
    const BOOL told = ::GetScrollInfo(list, SB_VERT, &info);
    return (list.GetStyle() & WS_VSCROLL) != 0 && told && info.nPos == 5 &&
           info.nMax == list.GetCount() - 1 && info.nPage > 1 && info.nPage < 40;
}

} // namespace

TEST_F(ListBoxTest, DirectListsGoThroughAllModesAndBack)
{
    for (const APPMODE born : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(born);
        auto& list = AddList(60, ListStyle | WS_HSCROLL);
        list.SetHorizontalExtent(40);
        for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
            EXPECT_EQ(list.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
            EXPECT_TRUE(list.m_vBar.ShowScrollBar());
            list.SetTopIndex(10 + mode);
            EXPECT_EQ(list.m_vBar.GetScrollPos(), 10 + mode);
        }
        const int onBoardWidth = ClientRectOf(list).Width();
        COnBoardUIGeneral::SetAppMode(STD);
        list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_TRUE(PlatformBarWorks(list)) << APPMODE_NAMES[born];
        EXPECT_EQ(list.GetHorizontalExtent(), 40);
        EXPECT_GT(ClientRectOf(list).Width(), onBoardWidth);
        EXPECT_EQ(ClientRectOf(list).Width(), 300 - 4 - ::GetSystemMetrics(SM_CXVSCROLL));
        Remove(list);
    }
}

TEST_F(ListBoxTest, TemplateAndSubclassedListsFollowTheirDialog)
{
    DialogTemplate form(CRect(0, 0, 200, 160), WS_POPUP | WS_CAPTION | WS_VISIBLE);
    form.Add("ListBox", "", ListStyle | WS_BORDER, CRect(10, 10, 110, 100), 101);
    for (const bool early : {true, false})
    {
        for (const APPMODE born : {STD, EFB})
        {
            COnBoardUIGeneral::SetAppMode(born);
            ListDialog dialog(early);
            ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
            if (!early)
            {
                PumpAll();
                ASSERT_TRUE(dialog.list.SubclassDlgItem(101, &dialog));
            }
            dialog.list.Fill(80);
            PumpAll();
            const int font = dialog.list.GetItemHeight(0);
            for (const APPMODE mode : {ONBOARD, STD, EFBFS, STD})
            {
                COnBoardUIGeneral::SetAppMode(mode);
                PumpAll();
                const bool onBoard = mode != STD;
                EXPECT_EQ(dialog.list.m_vBarNeeded, onBoard);
                EXPECT_EQ((dialog.list.GetStyle() & WS_VSCROLL) == 0, onBoard);
                CFont& expected =
                    onBoard ? CCustomListBox::GetOnBoardFont() : CCustomListBox::GetStdFont();
                EXPECT_EQ(dialog.list.GetFont()->GetSafeHandle(), expected.GetSafeHandle());
            }
            EXPECT_TRUE(PlatformBarWorks(dialog.list)) << early << APPMODE_NAMES[born];
            EXPECT_GT(font, 0);
            dialog.DestroyWindow();
        }
    }
    COnBoardUIGeneral::SetAppMode(STD);
}

TEST_F(ListBoxTest, InTheStandardModeItIsThePlatformsListBox)
{
    auto script = [this](CListBox& list) {
        Host().Forget();
        std::vector<LRESULT> results;
        const auto send = [&](UINT message, WPARAM w, LPARAM l) {
            results.push_back(list.SendMessage(message, w, l));
        };
        for (const char* text : {"pear", "apple", "fig", "quince", "date", "lime", "plum"})
        {
            send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        }
        send(LB_INSERTSTRING, 2, reinterpret_cast<LPARAM>("kiwi"));
        send(LB_INSERTSTRING, 99, reinterpret_cast<LPARAM>("none"));
        send(LB_FINDSTRING, WPARAM(-1), reinterpret_cast<LPARAM>("qu"));
        send(LB_SETITEMDATA, 3, 77);
        send(LB_GETITEMDATA, 3, 0);
        send(LB_SETCURSEL, 4, 0);
        send(LB_DELETESTRING, 1, 0);
        send(LB_DELETESTRING, 50, 0);
        send(LB_GETCURSEL, 0, 0);
        send(LB_SETTOPINDEX, 3, 0);
        send(LB_GETTOPINDEX, 0, 0);
        send(WM_KEYDOWN, VK_DOWN, 1);
        send(WM_KEYDOWN, VK_END, 1);
        send(WM_VSCROLL, SB_LINEUP, 0);
        send(LB_GETTOPINDEX, 0, 0);
        send(LB_SETHORIZONTALEXTENT, 500, 0);
        send(LB_GETHORIZONTALEXTENT, 0, 0);
        send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
        send(WM_LBUTTONUP, 0, MAKELPARAM(10, 5));
        send(LB_GETCURSEL, 0, 0);
        send(LB_RESETCONTENT, 0, 0);
        send(LB_GETCOUNT, 0, 0);
        std::vector<UINT> codes = Host().CodesFrom(UINT(list.GetDlgCtrlID()));
        results.insert(results.end(), codes.begin(), codes.end());
        return results;
    };
    const CRect place(20, 20, 220, 90);
    auto& ours = Add<ListBoxForTests>(place, ListStyle);
    const auto fresh = script(ours);
    auto& platform = Add<CListBox>(CRect(240, 20, 440, 90), ListStyle);
    EXPECT_EQ(fresh, script(platform));
    {
        const ModeScope onBoard(EFB);
        ours.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    }
    ours.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(fresh, script(ours)) << "after a trip through an on-board mode";
}

TEST_F(ListBoxOnBoard, ListsLeaveNoGraphicsObjectsBehind)
{
    const auto live = [this] {
        auto& list = AddList(300, ListStyle | WS_HSCROLL);
        list.SetTopIndex(50);
        PumpAll();
        Remove(list);
    };
    for (int turn = 0; turn < 5; ++turn)
    {
        live(); // the system keeps a few device contexts for good
    }
    const int before = GraphicsObjects();
    for (int turn = 0; turn < 30; ++turn)
    {
        live();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}

TEST_F(ListBoxOnBoard, OddArgumentsHaveADefinedResult)
{
    auto& list = AddList(0, ListStyle | WS_HSCROLL);
    EXPECT_EQ(list.GetEntryHeight(nullptr), list.GetEntryHeight("x"));
    EXPECT_EQ(list.GetEntryWidth(0), 0);
    EXPECT_EQ(list.GetEntryWidth(-7), 0);
    EXPECT_GT(list.GetMaxCharWidth(), 0);
    EXPECT_EQ(list.SendMessage(LB_DELETESTRING, 3), LB_ERR);
    list.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0xFFFF));
    list.CCustomListBox::SetScrollPos(SB_VERT, -5);
    EXPECT_EQ(list.m_vBar.GetScrollPos(), 0);
    list.Fill(100);
    list.CCustomListBox::SetScrollPos(SB_VERT, INT_MAX);
    EXPECT_EQ(list.GetTopIndex(), 100 - list.VisibleRows());
    for (const CSize size : {CSize(0, 0), CSize(5, 5), CSize(60, 300), CSize(300, 40)})
    {
        list.MoveWindow(10, 10, size.cx, size.cy);
        list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        list.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    }
    EXPECT_EQ(list.GetCount(), 100);
}

// Rows that the list draws ------------------------------------------------------------------------

TEST_F(ListBoxTest, DrawnRowsFollowTheMode)
{
    for (const DWORD kind : {LBS_OWNERDRAWFIXED, LBS_OWNERDRAWVARIABLE})
    {
        auto& list = AddList(0, ListStyle | kind | LBS_HASSTRINGS);
        list.SetFont(&CCustomListBox::GetStdFont());
        list.Fill(40);
        list.SetCurSel(1);
        PumpAll();
        const int standard = list.GetItemHeight(0);
        EXPECT_EQ(WindowPixels(list).At(100, 2 + standard + 2), ::GetSysColor(COLOR_HIGHLIGHT));
        {
            const ModeScope scope(ONBOARD);
            list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
            const int onBoard = list.GetItemHeight(0);
            EXPECT_EQ(onBoard, list.GetEntryHeight("Row"));
            EXPECT_GT(onBoard, 3 * standard / 2);
            PumpAll();
            const Pixels seen = WindowPixels(list);
            EXPECT_EQ(seen.At(200, 3 + onBoard + 2), RGB(50, 80, 110));
            EXPECT_GT(seen.Count(RGB(230, 230, 230), CRect(3, 3 + onBoard, 203, 3 + 2 * onBoard)),
                      20);
            list.EnableWindow(FALSE);
            PumpAll();
            EXPECT_GT(WindowPixels(list).Count(RGB(70, 70, 70), CRect(5, 5, 203, 200)), 50);
            list.EnableWindow(TRUE);
        }
        list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
        EXPECT_EQ(list.GetItemHeight(0), standard);
        EXPECT_TRUE(PlatformBarWorks(list));
        Remove(list);
    }
}

TEST_F(ListBoxOnBoard, FillingShowsWhatARepaintWouldShow)
{
    auto& list = AddList(5, ListStyle | WS_HSCROLL | LBS_SORT);
    const auto shows = [&] {
        list.UpdateWindow();
        const Pixels seen = WindowPixels(list);
        list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return seen == WindowPixels(list);
    };
    list.AddString("Row 01"); // between two rows in sight, painted by the host's own update
    EXPECT_TRUE(shows());
    list.InsertString(0, "First");
    list.SetCurSel(2); // painted at once by the platform
    EXPECT_TRUE(shows());
    list.Fill(60);
    EXPECT_TRUE(shows());
    list.SetTopIndex(20);
    list.AddString("Aardvark"); // above what is in sight
    EXPECT_TRUE(shows());
    list.SetRedraw(FALSE);
    list.AddString("Zulu");
    list.DeleteString(0);
    list.SetRedraw(TRUE);
    list.Invalidate();
    EXPECT_TRUE(shows());
}

TEST_F(ListBoxOnBoard, TheFrameIsNeverYesterdays)
{
    auto& list = AddList(0, ListStyle | WS_HSCROLL);
    const auto settled = [&](const char* when) {
        PumpAll();
        const Pixels seen = WindowPixels(list);
        list.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        EXPECT_TRUE(seen == WindowPixels(list)) << when;
    };
    for (int row = 0; row < 30; ++row)
    {
        list.AddString("A row that is a good deal wider than the window that is to show it");
    }
    settled("filled: both bars and the corner");
    for (const CSize size : {CSize(229, 100), CSize(100, 100), CSize(300, 250), CSize(120, 300)})
    {
        list.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        settled("resized");
    }
    list.ResetContent();
    settled("emptied");
}

TEST_F(ListBoxOnBoard, BarAndContentAgreeSidewaysAfterResetAndFont)
{
    auto& list = AddList(3, ListStyle | WS_HSCROLL);
    list.SetHorizontalExtent(2000);
    const auto left = [&] {
        PumpAll();
        return ScreenPixels(CRect(WindowPoint(list, CPoint(3, 3)), CSize(100, 50)));
    };
    const Pixels unscrolled = left();
    for (int step = 0; step < 30; ++step)
    {
        list.SendMessage(WM_HSCROLL, SB_LINERIGHT);
    }
    list.ResetContent();
    list.Fill(3);
    EXPECT_EQ(list.m_hBar.GetScrollPos(), 0);
    EXPECT_TRUE(left() == unscrolled);
    list.CCustomListBox::SetScrollPos(SB_HORZ, 20);
    list.SetFont(&CCustomListBox::GetOnBoardFont());
    const Pixels scrolled = left();
    list.CCustomListBox::SetScrollPos(SB_HORZ, 20);
    EXPECT_TRUE(left() == scrolled);
}

TEST_F(ListBoxTest, WhatTheHostSetInTheStandardModeStays)
{
    auto& drawn = AddList(5, ListStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    drawn.SetItemHeight(0, 40);
    drawn.SetFont(&CCustomListBox::GetStdFont());
    EXPECT_EQ(drawn.GetItemHeight(0), 40);
    auto& whole = Add<ListBoxForTests>(CRect(340, 20, 640, 320), WS_VSCROLL | LBS_NOTIFY);
    const CSize size = WindowRectOf(whole).Size();
    for (int trip = 0; trip < 3; ++trip)
    {
        for (const APPMODE mode : {ONBOARD, STD})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            Host().RedrawWindow(nullptr, nullptr,
                                RDW_FRAME | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        }
    }
    EXPECT_EQ(drawn.GetItemHeight(0), 40);
    EXPECT_EQ(WindowRectOf(whole).Size(), size);

    // A list made not to paint stays so, and one that is let go of paints again.
    const ModeScope scope(ONBOARD);
    auto& still = Add<ListBoxForTests>(CRect(20, 340, 220, 440), ListStyle | LBS_NOREDRAW);
    const Pixels before = WindowPixels(still);
    still.Fill(3);
    PumpAll();
    EXPECT_EQ(WindowPixels(still).Count(0), before.Count(0));
    auto& released = Add<ListBoxForTests>(CRect(240, 340, 440, 440), ListStyle);
    released.Fill(3);
    const HWND window = released.UnsubclassWindow();
    PumpAll();
    ::SendMessage(window, LB_SETCURSEL, 1, 0);
    ::UpdateWindow(window);
    const CWnd* stands = CWnd::FromHandle(window);
    EXPECT_GT(WindowPixels(*stands).Count(::GetSysColor(COLOR_HIGHLIGHT)), 100);
    ::DestroyWindow(window);
}
