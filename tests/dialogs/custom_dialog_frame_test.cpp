#include "CustomPropPage.h"
#include "dialogs/dialog_for_tests.h"

namespace {

// Frame -----------------------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheOnBoardFrameIsThreePixelsAndABandThatTakesPresses)
{
    const std::pair<DWORD, DWORD> cases[] = {
        {WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 0},
        {WS_CAPTION | DS_MODALFRAME, 0},
        {0, 0},
        {WS_CAPTION, WS_EX_DLGMODALFRAME},
        {WS_CAPTION | WS_THICKFRAME, 0},
        {WS_CAPTION, WS_EX_TOOLWINDOW},
    };
    for (const auto& [style, exStyle] : cases)
    {
        SCOPED_TRACE(testing::Message() << std::hex << style << ' ' << exStyle);
        const ModeScope mode(ONBOARD);
        DialogForTests dialog(Form(style | WS_POPUP | WS_VISIBLE, exStyle), Host());
        EXPECT_EQ(dialog.GetStyle() & (WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX), 0U);
        CRect expected = WindowRectOf(dialog);
        const CSize size = expected.Size();
        const int end = 4 + BandOf(dialog);
        expected.DeflateRect(3, end - 1, 3, 3);
        if ((style & WS_THICKFRAME) != 0)
        {
            CRect frame(0, 0, 0, 0);
            ::AdjustWindowRectEx(&frame, dialog.GetStyle(), FALSE, dialog.GetExStyle());
            // What the sizing frame is narrower than the system says.
            expected.InflateRect(::GetSystemMetrics(SM_CXFRAME) - frame.right,
                                 ::GetSystemMetrics(SM_CYFRAME) - frame.bottom);
            expected.top -= 4; // what newer systems add to it
        }
        CRect client = ClientRectOf(dialog);
        dialog.ClientToScreen(&client);
        EXPECT_EQ(client, expected);

        const auto hit = [&](CPoint at) {
            const CPoint point = WindowPoint(dialog, at);
            return dialog.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
        };
        const CRect band(3, 5, size.cx - 2, end);
        for (const CPoint at :
             {CPoint(3, 5), CPoint(size.cx - 3, 5), CPoint(3, end - 1), CPoint(2, 5), CPoint(3, 4),
              CPoint(size.cx - 2, 5), CPoint(3, end), CPoint(size.cx - 1, size.cy - 1)})
        {
            EXPECT_EQ(hit(at), band.PtInRect(at) ? HTCAPTION : HTNOWHERE) << at.x << ' ' << at.y;
        }
        COnBoardUIGeneral::SetAppMode(STD);
        EXPECT_EQ(hit(CPoint(size.cx - 8, size.cy - 8)), HTCLIENT);
        COnBoardUIGeneral::SetAppMode(ONBOARD); // below a caption of the platform from now on
        const CSize frame = ClientPoint(dialog, CPoint(0, 0)) - client.TopLeft();
        EXPECT_EQ(frame.cx, frame.cy) << "the band is as high, with a small caption too";
    }
}

TEST_F(CustomDialogTest, FrameAndCaptionArePainted)
{
    constexpr COLORREF Letters = RGB(230, 230, 230);
    const ModeScope mode(ONBOARD);
    DialogForTests dialog(form, Host());
    PumpAll();
    const int band = 3 + BandOf(dialog);
    const auto expectFrame = [&](COLORREF color, const char* when) {
        SCOPED_TRACE(when);
        const Pixels shown = WindowPixels(dialog);
        const int half = shown.Height() / 2;
        const int right = shown.Width() - 1;
        for (const CPoint point :
             {CPoint(right - 20, 10), CPoint(100, band - 1), CPoint(0, half), CPoint(2, half),
              CPoint(right - 2, half), CPoint(right, half), CPoint(60, shown.Height() - 2)})
        {
            EXPECT_EQ(shown.At(point), color) << point.x << ' ' << point.y;
        }
        EXPECT_EQ(shown.At(100, band), RGB(50, 50, 50)) << "the client area begins";
        EXPECT_EQ(shown.At(3, half), RGB(50, 50, 50));
        EXPECT_GT(shown.Count(Letters, CRect(6, 3, 90, band - 3)), 50) << "the title";
        EXPECT_EQ(shown.Count(Letters, CRect(0, 0, 6, band)), 0);
    };
    expectFrame(RGB(70, 90, 110), "active");
    Host().SetActiveWindow();
    expectFrame(RGB(100, 100, 100), "inactive, drawn at once");
    dialog.SendMessage(WM_NCPAINT, 1);
    expectFrame(RGB(70, 90, 110), "painted anew it looks active");
    dialog.SendMessage(WM_NCACTIVATE, 2);
    expectFrame(RGB(100, 100, 100), "no value of its own is active");
    dialog.SetWindowText("Title, longer & changed");
    expectFrame(RGB(100, 100, 100), "with a new text");
    EXPECT_GT(WindowPixels(dialog).Count(RGB(180, 180, 180)), 1000) << "the controls stay";
    EXPECT_GT(WindowPixels(dialog).Count(Letters, CRect(100, 3, 300, 30)), 50);
    dialog.m_centredTitle = true;
    dialog.SetWindowText("T");
    const int half = WindowRectOf(dialog).Width() / 2;
    EXPECT_GT(WindowPixels(dialog).Count(Letters, CRect(half - 15, 3, half + 15, 30)), 10);
}

// The standard caption tells what the system said last, in whichever mode that was, and no message
// brings it up in the others.
TEST_F(CustomDialogTest, ThePlatformsCaptionShowsOnlyInItsModeAndAsTheWindowIs)
{
    const auto check = [&](CWnd& window) {
        const auto caption = [&](APPMODE mode) {
            COnBoardUIGeneral::SetAppMode(mode);
            const Pixels shown = Settled(window);
            return shown.At(shown.Width() / 2, 6);
        };
        const auto activate = [&](APPMODE mode, CWnd& which) {
            COnBoardUIGeneral::SetAppMode(mode);
            which.SetActiveWindow();
        };
        activate(ONBOARD, window);
        const COLORREF toldOnBoard = caption(STD);
        activate(STD, Host());
        const COLORREF inactive = caption(STD);
        activate(STD, window);
        const COLORREF active = caption(STD);
        EXPECT_NE(active, inactive);
        EXPECT_EQ(toldOnBoard, active) << "opened on-board";
        activate(ONBOARD, Host());
        EXPECT_EQ(caption(STD), inactive) << "left on-board";
        activate(ONBOARD, window);
        EXPECT_EQ(caption(STD), active) << "come back to on-board";
        EXPECT_EQ(caption(ONBOARD), RGB(70, 90, 110));
        window.SendMessage(WM_SETICON, ICON_SMALL, LPARAM(::LoadIcon(nullptr, IDI_WARNING)));
        EXPECT_TRUE(ShowsWhatAPaintWould(window));
        window.DestroyWindow();
    };
    const ModeScope mode(ONBOARD);
    DialogForTests dialog(form, Host());
    check(dialog);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    CCustomPropPage page(IDD_TEST_PAGE_1);
    CCustomPropSheet sheet("Sheet", nullptr);
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&Host()));
    sheet.ShowWindow(SW_SHOW);
    check(sheet);
}

// How often a window with the platform's menu style opens its system menu for what asks for one.
int MenusOpened(CWnd& window)
{
    window.SetForegroundWindow();
    PumpAll();
    const CPoint caption = WindowRectOf(window).TopLeft() + CSize(40, 12);
    MessageLog log(window, {WM_ENTERMENULOOP});
    const auto end = [] { ::EndMenu(); };
    const auto key = [](UINT which, bool down) { return [=] { QueueKey(which, down); }; };
    PlaySteps({key(VK_MENU, true), key(VK_MENU, false), end, end});
    PlaySteps({key(VK_MENU, true), key(VK_SPACE, true), key(VK_SPACE, false), key(VK_MENU, false),
               end, end});
    const auto tap = [&] { // at once: the platform waits for the release in a loop of its own
        QueueMove(caption);
        QueueButton(true, true);
        QueueButton(false, true);
    };
    PlaySteps({tap, end, end});
    // The platform's caption begins higher than the band that is hit.
    const auto ask = [&] {
        window.PostMessage(WM_CONTEXTMENU, WPARAM(window.m_hWnd),
                           MAKELPARAM(caption.x, caption.y - 9));
    };
    PlaySteps({ask, end, end});
    return log.Count(WM_ENTERMENULOOP);
}

// Has a command and a menu of its own, and passes on what is neither.
class Heir : public DialogForTests
{
public:
    using DialogForTests::DialogForTests;

protected:
    afx_msg void OnSysCommand(UINT command, LPARAM lParam)
    {
        CCustomDialog::OnSysCommand(command, lParam);
    }
    afx_msg void OnContextMenu(CWnd* window, CPoint point)
    {
        CCustomDialog::OnContextMenu(window, point);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Heir, DialogForTests)
    ON_WM_SYSCOMMAND()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

TEST_F(CustomDialogTest, OnBoardNothingOpensTheSystemMenu)
{
    Heir dialog(DialogTemplate({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE}), Host());
    CCustomPropPage page(IDD_TEST_PAGE_1);
    CCustomPropSheet sheet("Sheet", nullptr);
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(&Host()));
    sheet.ShowWindow(SW_SHOW);
    for (const auto& [mode, opened] : {std::pair(STD, 4), {ONBOARD, 0}})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        EXPECT_NE(sheet.GetStyle() & WS_SYSMENU, 0U);
        for (CWnd* const window : {static_cast<CWnd*>(&dialog), static_cast<CWnd*>(&sheet)})
        {
            EXPECT_EQ(MenusOpened(*window), opened) << (window == &sheet);
            EXPECT_TRUE(mode == STD || ShowsWhatAPaintWould(*window));
        }
    }
    for (CWnd* const window : {static_cast<CWnd*>(&dialog), static_cast<CWnd*>(&sheet)})
    {
        window->ShowWindow(SW_MINIMIZE);
        EXPECT_GT(MenusOpened(*window), 0) << "an icon has nothing else " << (window == &sheet);
    }
    sheet.DestroyWindow();
}

TEST_F(CustomDialogTest, TwoTapsOnTheCaptionMaximiseOnlyWhereABoxRestores)
{
    DialogForTests dialog(Form(WS_POPUP | WS_CAPTION | WS_MAXIMIZEBOX | WS_VISIBLE), Host());
    const auto zoomed = [&](APPMODE mode) {
        COnBoardUIGeneral::SetAppMode(mode);
        const CPoint caption = WindowPoint(dialog, CPoint(60, 10));
        dialog.SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(caption.x, caption.y));
        return dialog.IsZoomed() != FALSE;
    };
    EXPECT_TRUE(zoomed(STD));
    EXPECT_FALSE(zoomed(ONBOARD)) << "as it came";
    EXPECT_FALSE(zoomed(ONBOARD));
    dialog.ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(dialog.IsIconic());
    EXPECT_FALSE(zoomed(ONBOARD));
    EXPECT_FALSE(dialog.IsIconic()) << "nothing else brings it back";
}

TEST_F(CustomDialogTest, ControlsHaveTheColoursOfTheMode)
{
    using D = CCustomDialog;
    constexpr WORD IdCombo = 120;
    DialogForTests dialog(Form().Add("ComboBox", "", WS_DISABLED, CRect(5, 70, 60, 80), IdCombo),
                          Host());
    // Who asks how, and its text, its ground and its brush. CLR_INVALID: the ground stays.
    const std::tuple<UINT, int, COLORREF, COLORREF, HGDIOBJ> cases[] = {
        {WM_CTLCOLOREDIT, IdEdit, RGB(26, 26, 26), RGB(180, 180, 180), D::m_BkEditBrush},
        {WM_CTLCOLORLISTBOX, IdList, RGB(26, 26, 26), RGB(180, 180, 180), D::m_BkEditBrush},
        {WM_CTLCOLOREDIT, IdDisabled, RGB(70, 70, 70), RGB(100, 100, 100),
         D::m_BkEditDisabledBrush},
        {WM_CTLCOLORSTATIC, IdDisabled, RGB(70, 70, 70), RGB(100, 100, 100), // the platform's
         D::m_BkEditDisabledBrush},
        {WM_CTLCOLORSTATIC, IdCombo, RGB(70, 70, 70), RGB(100, 100, 100), D::m_BkEditDisabledBrush},
        {WM_CTLCOLORSTATIC, IdReadOnly, RGB(26, 26, 26), RGB(180, 180, 180), D::m_BkEditBrush},
        {WM_CTLCOLORSTATIC, IdLabel, RGB(230, 230, 230), CLR_INVALID, D::m_BkBrush},
        {WM_CTLCOLORDLG, 0, RGB(0, 0, 0), CLR_INVALID, D::m_BkBrush},
    };
    for (const auto& [message, id, text, ground, brush] : cases)
    {
        SCOPED_TRACE(testing::Message() << message << ' ' << id);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HWND control = id == 0 ? dialog.m_hWnd : ::GetDlgItem(dialog, id);
        EXPECT_NE(AskColors(dialog, message, dc, control), brush);
        EXPECT_NE(dc.GetTextColor(), RGB(230, 230, 230)) << "the platform's in its mode";
        const COLORREF before = dc.GetBkColor();
        const ModeScope mode(EFB);
        EXPECT_EQ(AskColors(dialog, message, dc, control), brush);
        EXPECT_EQ(dc.GetTextColor(), text);
        EXPECT_EQ(dc.GetBkColor(), ground == CLR_INVALID ? before : ground);
        EXPECT_EQ(dc.GetBkMode(), id == IdLabel ? TRANSPARENT : OPAQUE);
        EXPECT_EQ(dc.GetCurrentFont() == &D::m_OBStaticTextFont, id == IdLabel);
    }
}

// Moving ----------------------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheCaptionIsDraggedAsFarAsTheHostsAreaAllows)
{
    const CSize size(300, 200);
    const CPoint start(300, 200);
    // By how much, and where the dialog ends: a grip of it stays in the area, or all of it. Of two
    // edges that cannot both be kept the right and the lower one count.
    const std::tuple<CSize, CSize, CPoint, CPoint> cases[] = {
        {CSize(-10, 20), size, CPoint(290, 220), CPoint(290, 220)},
        {CSize(-280, 0), size, CPoint(20, 200), CPoint(200, 200)},
        {CSize(0, -180), size, CPoint(300, 80), CPoint(300, 80)},
        {CSize(280, 300), size, CPoint(548, 428), CPoint(300, 280)},
        {CSize(-300, -200), CSize(1000, 900), CPoint(0, 80), CPoint(-400, -420)},
    };
    host.area = CRect(200, 80, 600, 480);
    const auto proposed = [](DialogForTests& dialog, CRect place) {
        dialog.SendMessage(WM_MOVING, 0, reinterpret_cast<LPARAM>(&place));
        return place.TopLeft();
    };
    for (const bool whole : {false, true})
    {
        SetSpecialConfigVal("Dialog", "ShowEntireDialog", whole ? 1 : 0);
        const ModeScope mode(ONBOARD);
        DialogForTests dialog(form, Host(), &host);
        for (const auto& [by, of, gripped, kept] : cases)
        {
            dialog.SetWindowPos(nullptr, 0, 0, of.cx, of.cy, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(proposed(dialog, CRect(start + by, of)), whole ? kept : gripped) << by.cx;
        }
        EXPECT_EQ(host.askedFor, 1);

        // Of another size at the press: a change of the mode in the middle of a drag changes it.
        dialog.SetWindowPos(nullptr, start.x, start.y, 260, 140, SWP_NOZORDER);
        PumpAll();
        const CPoint from = WindowPoint(dialog, CPoint(60, 15));
        const CPoint to = from + std::get<0>(cases[3]);
        MoveTo(from);
        // The display tells of each move once more, on a busy machine some time later, and puts the
        // pointer back there: so the last is repeated.
        std::vector<std::function<void()>> steps(11, [to] { QueueMove(to); });
        steps[0] = [] { QueueButton(true); };
        steps[1] = [&] {
            dialog.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
            QueueMove(from + CSize(40, 0));
        };
        steps.back() = [] { QueueButton(false); };
        PlaySteps(steps);
        EXPECT_EQ(WindowRectOf(dialog).TopLeft(),
                  whole ? std::get<3>(cases[3]) : std::get<2>(cases[3]));
    }
    RestPointer();
    // Nobody asks in the standard mode, nor where there is no host or no answer.
    const CRect away(-900, -900, -500, -650);
    DialogForTests dialog(form, Host(), &host);
    EXPECT_EQ(proposed(dialog, away), away.TopLeft());
    const ModeScope mode(ONBOARD);
    DialogForTests hostless(form, Host());
    EXPECT_EQ(proposed(hostless, away), away.TopLeft());
    host.area = CRect(0, 0, 0, 0);
    host.answers = false;
    EXPECT_EQ(proposed(dialog, away), away.TopLeft());
}

} // namespace
