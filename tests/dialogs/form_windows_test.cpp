#include "CustomDropListCombo.h"
#include "CustomPropPage.h"
#include "dialogs/dialog_for_tests.h"
#include "support/OnBoard.h"

namespace {

using FormWindowsTest = CustomDialogTest;

TEST_F(FormWindowsTest, AFormIsRescaledOnceHoweverItReachesTheMode)
{
    ViewForTests standard(Host());
    const CRect before = ChildPlaces(standard).front();
    // The mode when it is opened, at its update and after that.
    const APPMODE cases[][3] = {
        {ONBOARD, ONBOARD, ONBOARD},
        {STD, ONBOARD, ONBOARD},
        {STD, STD, ONBOARD},
        {ONBOARD, STD, STD}, // never scaled, never scaled back
    };
    for (const auto& [opened, atItsUpdate, after] : cases)
    {
        const ModeScope scope(opened);
        ViewForTests view(Host());
        COnBoardUIGeneral::SetAppMode(atItsUpdate);
        view.OnInitialUpdate();
        view.OnInitialUpdate(); // for another document
        COnBoardUIGeneral::SetAppMode(after);
        EXPECT_EQ(ChildPlaces(view).front(), after == STD ? before : Enlarged(before));
        EXPECT_EQ(view.GetControls().size(), 2U);
        EXPECT_EQ(view.GetControls()[1]->GetDlgCtrlID(), IDC_TEST_CHECK);
    }
}

TEST_F(FormWindowsTest, AFormScrollsAsFarAsItsControlsReachAndLooksAndWorksLikeADialog)
{
    ViewForTests view(Host());
    view.MoveWindow(0, 0, 120, 60);
    const CRect before = ChildPlaces(view).front();
    const CSize total = view.GetTotalSize();
    view.ScrollToPosition(CPoint(30, 20));
    ASSERT_EQ(view.GetScrollPosition(), CPoint(30, 20));
    COnBoardUIGeneral::SetAppMode(EFB);
    EXPECT_EQ(view.GetScrollPosition(), CPoint(0, 0));
    EXPECT_EQ(ChildPlaces(view).front(), Enlarged(before)) << "from the form's own corner";
    EXPECT_EQ(view.GetTotalSize(), Enlarged(CRect(CPoint(0, 0), total)).Size());

    view.GetDlgItem(IDC_TEST_EDIT)->SetFocus();
    TypeKey(VK_TAB);
    EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), IDC_TEST_CHECK);

    view.ScrollToPosition(CPoint(0, 0));
    view.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    view.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    const int page = view.GetTotalSize().cy / 10;
    EXPECT_EQ(view.GetScrollPosition().y, page + page / 10);
    const CSize beyond = view.GetTotalSize() - ClientRectOf(view).Size();
    view.ScrollToPosition(CPoint(5000, -20));
    EXPECT_EQ(view.GetScrollPosition(), CPoint(beyond.cx, 0));

    view.MoveWindow(0, 0, 900, 600); // room for everything: no bars, no offset
    PumpAll();
    EXPECT_EQ(view.GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0U);
    EXPECT_EQ(ChildPlaces(view).front(), Enlarged(before));
    EXPECT_EQ(WindowPixels(view).At(490, 300), RGB(50, 50, 50));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    EXPECT_EQ(AskColors(view, WM_CTLCOLOREDIT, dc, ::GetDlgItem(view, IDC_TEST_EDIT)),
              CCustomDialog::m_BkEditBrush.GetSafeHandle());
}

// An edit of many lines takes every key, and gives the page's window those that are for the dialog.
TEST_F(FormWindowsTest, TabAndEscapeLeaveAnEditOfManyLinesOnAPage)
{
    for (const APPMODE mode : AllModes)
    {
        SCOPED_TRACE(mode);
        const ModeScope scope(mode);
        CCustomPropPage page(IDD_TEST_PAGE_1);
        Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
        sheet.AddPage(&page);
        CEdit edit;
        sheet.inLoop = [&] {
            page.GetDlgItem(IDC_TEST_EDIT)->DestroyWindow();
            edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_MULTILINE, CRect(5, 5, 90, 60),
                        &page, IDC_TEST_EDIT);
            edit.SetFocus();
            TypeKey(VK_TAB);
            EXPECT_EQ(::GetFocus(), ::GetDlgItem(sheet, IDOK));
            TypeKey(VK_TAB, VK_SHIFT);
            EXPECT_EQ(CWnd::GetFocus(), &edit);
            TypeKey(VK_ESCAPE);
            if (sheet.SendMessage(PSM_GETCURRENTPAGEHWND) != 0)
            {
                sheet.EndDialog(IDOK); // not closed
            }
        };
        EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    }
}

TEST_F(FormWindowsTest, AFormIsScrolledByTheWheelAlsoFromItsControls)
{
    UINT lines = 0;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    ASSERT_GT(lines, 0U);
    ViewForTests view(Host());
    view.MoveWindow(0, 0, 120, 60);
    view.SetScrollSizes(MM_TEXT, CSize(100, 1000), CSize(0, 100), CSize(0, 10));
    const auto turn = [&view](int id, int delta) {
        const CWnd& turned = id == 0 ? view : *view.GetDlgItem(id);
        turned.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(20, 20));
        return view.GetScrollPosition().y;
    };
    const int notch = int(lines) * 10;
    EXPECT_EQ(turn(0, -WHEEL_DELTA), notch);
    EXPECT_EQ(turn(IDC_TEST_CHECK, -2 * WHEEL_DELTA), 3 * notch);
    EXPECT_EQ(turn(IDC_TEST_CHECK, WHEEL_DELTA), 2 * notch);
    for (int part = 0; part < WHEEL_DELTA; ++part)
    {
        turn(0, -1); // a fine wheel
    }
    EXPECT_EQ(turn(0, 0), 3 * notch);
    EXPECT_EQ(turn(0, 0x7000), 0);

    Host().AlsoRecord({WM_MOUSEWHEEL});
    EXPECT_EQ(Host().Count(WM_MOUSEWHEEL), 0);
    view.MoveWindow(0, 0, 500, 1000); // nothing to scroll: whoever is behind it may
    turn(0, -WHEEL_DELTA);
    EXPECT_EQ(Host().Count(WM_MOUSEWHEEL), 1);
}

TEST_F(FormWindowsTest, AFormKeepsTheFocusOfItsControlForItsFrame)
{
    Standing<CFrameWnd> frame;
    ASSERT_TRUE(
        frame.Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 80, 600, 500)));
    ViewForTests view(frame);
    frame.SetActiveView(&view);
    const HWND edit = ::GetDlgItem(view, IDC_TEST_EDIT);
    const HWND check = ::GetDlgItem(view, IDC_TEST_CHECK);
    const auto comeBack = [&frame] {
        frame.SetForegroundWindow();
        PumpAll();
        return ::GetDlgCtrlID(::GetFocus());
    };
    const auto leave = [&] {
        Host().SetForegroundWindow();
        PumpAll();
        EXPECT_NE(::GetForegroundWindow(), frame.m_hWnd);
    };
    comeBack();
    ::SetFocus(check);
    leave();
    const MessageLog focus(*CWnd::FromHandle(check), {WM_SETFOCUS, WM_KILLFOCUS});
    EXPECT_EQ(comeBack(), IDC_TEST_CHECK);
    EXPECT_EQ(focus.Count(WM_SETFOCUS), 1);
    EXPECT_EQ(focus.Count(WM_KILLFOCUS), 0) << "it is not taken and given again";
    frame.ShowWindow(SW_MINIMIZE);
    PumpAll();
    frame.ShowWindow(SW_RESTORE);
    EXPECT_EQ(comeBack(), IDC_TEST_CHECK);
    leave();
    ::EnableWindow(check, FALSE);
    EXPECT_EQ(comeBack(), IDC_TEST_EDIT) << "the first that can have it";
    ::EnableWindow(check, TRUE);
    leave();
    ::DestroyWindow(edit);
    EXPECT_EQ(comeBack(), IDC_TEST_CHECK);
}

// Opened on either side of the mode switch.
class SheetOpened : public InMode<CustomDialogTest>
{};

INSTANTIATE_TEST_SUITE_P(In, SheetOpened, testing::Values(STD, EFB));

TEST_P(SheetOpened, HasTabsAsHighAfterManyChangesAsAfterTheFirst)
{
    CCustomPropPage page(IDD_TEST_PAGE_1);
    CCustomPropSheet sheet("Sheet", nullptr, &Host());
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&Host(), WS_POPUP | WS_CAPTION | WS_VISIBLE));
    CTabCtrl& tabs = *sheet.GetTabControl();
    std::map<bool, int> heights;
    for (const APPMODE mode : {GetParam(), ONBOARD, EFB, STD, ONBOARD, STD, EFB, FULLSCREEN, STD})
    {
        SCOPED_TRACE(mode);
        COnBoardUIGeneral::SetAppMode(mode);
        CRect tab;
        ASSERT_TRUE(tabs.GetItemRect(0, &tab));
        const auto known = heights.try_emplace(mode != STD, tab.Height()).first;
        EXPECT_EQ(tab.Height(), known->second);
        CRect area = PlaceIn(sheet, tabs);
        tabs.AdjustRect(FALSE, &area);
        EXPECT_NEAR(PlaceIn(sheet, page).top, area.top, 1) << "below the tabs";
    }
    EXPECT_EQ(heights[true], int(heights[false] * 1.7) + 3);
}

TEST_F(FormWindowsTest, ASheetAndItsPagesAreScaledOnceHoweverTheyReachTheMode)
{
    struct Page : CCustomPropPage
    {
        APPMODE change;
        explicit Page(APPMODE on)
            : CCustomPropPage(IDD_TEST_PAGE_1)
            , change(on)
        {}
        BOOL OnInitDialog() override
        {
            COnBoardUIGeneral::SetAppMode(change);
            return CCustomPropPage::OnInitDialog();
        }
    };
    CRect before;
    CRect sheetBefore;
    CSize pageBefore;
    CSize onBoardSize(0, 0);
    Journal journal;
    FlightBag bag(journal);
    CCustomPropSheet::SetEfb(&bag);
    for (const auto& [opened, onTheWay] : {std::pair{STD, STD}, {EFB, EFB}, {STD, EFB}})
    {
        SCOPED_TRACE(testing::Message() << opened << onTheWay);
        const ModeScope scope(opened);
        Page first(onTheWay);
        CCustomPropPage second(IDD_TEST_PAGE_2);
        Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        const auto standard = [&] {
            before = ChildPlaces(first).front();
            sheetBefore = ClientRectOf(sheet);
            pageBefore = WindowRectOf(first).Size();
        };
        const auto onBoard = [&] {
            EXPECT_EQ(ChildPlaces(first).front(), Enlarged(before));
            const CRect client = ClientRectOf(sheet);
            EXPECT_GE(client.Width(), Enlarged(sheetBefore).Width() - 1);
            onBoardSize = onBoardSize == CSize(0, 0) ? client.Size() : onBoardSize;
            EXPECT_EQ(client.Size(), onBoardSize);
            for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
            {
                const CRect button = PlaceIn(sheet, *sheet.GetDlgItem(id));
                EXPECT_EQ(button | client, client);
                EXPECT_GE(button.top, ChildPlaces(sheet).front().bottom) << "below the page";
            }
            const CRect firstRect = WindowRectOf(first);
            EXPECT_GE(firstRect.Height(), int(pageBefore.cy * 1.7));
            EXPECT_TRUE(sheet.SetActivePage(1));
            EXPECT_EQ(WindowRectOf(second), firstRect);
            EXPECT_EQ(Settled(sheet).At(sheetBefore.right, 5), RGB(70, 90, 110));
            EXPECT_EQ(sheet.GetStyle() & WS_SYSMENU, 0U);
            // The strip of the tabs, right of the last one.
            const CPoint strip = ClientPoint(*sheet.GetTabControl(), CPoint(sheetBefore.right, 10));
            EXPECT_EQ(ScreenPixels(CRect(strip, CSize(1, 1))).At(0, 0), RGB(50, 50, 50));
        };
        journal.clear();
        sheet.inLoop = [&, onBoardNow = onTheWay != STD] {
            EXPECT_TRUE(sheet.IsModal());
            EXPECT_EQ(first.GetControls().size(), 1U);
            onBoardNow ? onBoard() : standard();
            Click(ClientPoint(*sheet.GetDlgItem(IDOK), CPoint(8, 8)));
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
        EXPECT_FALSE(sheet.IsModal());
        EXPECT_EQ(journal, opened == EFB ? (Journal{"begin", "end"}) : Journal());
    }
}

TEST_P(SheetOpened, HasNeitherBandNorFrameAsAChild)
{
    CCustomPropPage page(IDD_TEST_PAGE_1);
    CCustomPropSheet sheet("Sheet", nullptr);
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&Host(), WS_CHILD | WS_VISIBLE | DS_CONTROL, 0));
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    sheet.SendMessage(WM_NCACTIVATE, TRUE);
    const Pixels shown = Settled(sheet);
    EXPECT_EQ(ClientRectOf(sheet), CRect(CPoint(0, 0), WindowRectOf(sheet).Size()));
    EXPECT_EQ(shown.At(shown.Width() / 2, 2), RGB(50, 50, 50));
    const CPoint top = ClientPoint(sheet, CPoint(60, 6));
    EXPECT_EQ(sheet.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(top.x, top.y)), HTCLIENT);
    sheet.DestroyWindow();
}

// The combos of a window, each as wide as a finger where the template leaves the room, and never
// over what stands below them or over the edge of the box that they stand in.
std::vector<int> ComboHeights(const CWnd& window)
{
    const auto place = [&](int id) { return PlaceIn(window, *window.GetDlgItem(id)); };
    const CRect tight = place(IDC_TEST_TIGHT);
    const CRect roomy = place(IDC_TEST_ROOMY);
    const CRect boxed = place(IDC_TEST_BOXED);
    EXPECT_LT(tight.bottom, place(IDC_TEST_EDIT).top);
    EXPECT_LT(roomy.bottom, place(IDC_TEST_CHECK).top);
    EXPECT_LT(boxed.bottom, place(IDC_TEST_BOX).bottom);
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        EXPECT_GE(roomy.Height(), 52);
    }
    return {tight.Height(), roomy.Height(), boxed.Height()};
}

TEST_F(FormWindowsTest, CombosAreAsHighHoweverTheirWindowReachesTheMode)
{
    CCustomDropListCombo::RegisterWndClass(nullptr);
    std::vector<int> standard;
    std::vector<int> onBoard;
    const auto use = [&](CWnd& window) {
        window.ShowWindow(SW_SHOW);
        for (const APPMODE mode : {COnBoardUIGeneral::GetAppMode(), ONBOARD, EFB, STD})
        {
            COnBoardUIGeneral::SetAppMode(mode);
            std::vector<int>& expected = mode == STD ? standard : onBoard;
            for (int look = 0; look < 2; ++look)
            {
                const std::vector<int> heights = ComboHeights(window);
                expected = expected.empty() ? heights : expected;
                EXPECT_EQ(heights, expected) << mode;
                PumpAll(); // the first paint makes the objects that are not there
            }
        }
        // What the host gives counts, also when the mode comes again.
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        CWnd& roomy = *window.GetDlgItem(IDC_TEST_ROOMY);
        roomy.SetWindowPos(nullptr, 0, 0, 90, 80, SWP_NOMOVE | SWP_NOZORDER);
        COnBoardUIGeneral::SetAppMode(STD);
        EXPECT_EQ(WindowRectOf(roomy).Height(), standard[1]);
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        EXPECT_EQ(WindowRectOf(roomy).Height(), 80);
    };
    for (const APPMODE opened : {STD, ONBOARD})
    {
        SCOPED_TRACE(opened);
        CCustomDropListCombo combos[3];
        DialogForTests dialogs[2]; // one with objects of the combos
        dialogs[1].beforeInit = [&] {
            combos[0].SubclassDlgItem(IDC_TEST_TIGHT, &dialogs[1]);
            combos[1].SubclassDlgItem(IDC_TEST_ROOMY, &dialogs[1]);
            combos[2].SubclassDlgItem(IDC_TEST_BOXED, &dialogs[1]);
        };
        for (DialogForTests& dialog : dialogs)
        {
            const ModeScope scope(opened);
            ASSERT_TRUE(dialog.Create(IDD_TEST_COMBOS, &Host()));
            use(dialog);
        }
        const ModeScope scope(opened);
        ViewForTests view(Host(), IDD_TEST_COMBOS);
        view.OnInitialUpdate();
        use(view);
        view.DestroyWindow();

        COnBoardUIGeneral::SetAppMode(opened);
        CCustomPropPage page(IDD_TEST_COMBOS);
        Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
        sheet.AddPage(&page);
        sheet.inLoop = [&] {
            use(page);
            sheet.EndDialog(IDOK);
        };
        sheet.DoModal();
    }
}

} // namespace
