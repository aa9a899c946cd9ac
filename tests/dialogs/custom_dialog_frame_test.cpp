#include "CustomPropPage.h"
#include "dialogs/dialog_for_tests.h"
#include "support/MessageLog.h"
#include "support/forms.h"

namespace {

// Frame -----------------------------------------------------------------------------------------

TEST_F(CustomDialogTest, TheOnBoardFrameIsThreePixelsAndABandThatTakesPresses)
{
    const struct
    {
        DWORD style;
        DWORD exStyle;
    } cases[] = {
        {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_VISIBLE, 0},
        {WS_POPUP | WS_CAPTION | DS_MODALFRAME | WS_VISIBLE, 0},
        {WS_POPUP | WS_VISIBLE, 0},
        {WS_POPUP | WS_CAPTION | WS_VISIBLE, WS_EX_DLGMODALFRAME},
        {WS_POPUP | WS_CAPTION | WS_THICKFRAME | WS_VISIBLE, 0},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(testing::Message() << std::hex << each.style << ' ' << each.exStyle);
        const ModeScope mode(ONBOARD);
        DialogForTests dialog;
        ASSERT_TRUE(dialog.CreateIndirect(Form(each.style, each.exStyle), &Host()));
        EXPECT_EQ(dialog.GetStyle() & (WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX), 0U);
        CRect expected = WindowRectOf(dialog);
        const CSize size = expected.Size();
        const int end = 4 + BandOf(dialog);
        CSize less(0, 0); // what the sizing frame is narrower than the system says
        int raised = 0;   // what newer systems add to it at the top
        if ((each.style & WS_THICKFRAME) != 0)
        {
            CRect frame(0, 0, 0, 0);
            ::AdjustWindowRectEx(&frame, dialog.GetStyle(), FALSE, dialog.GetExStyle());
            less = CSize(::GetSystemMetrics(SM_CXFRAME) - frame.right,
                         ::GetSystemMetrics(SM_CYFRAME) - frame.bottom);
            raised = 4;
        }
        expected.DeflateRect(3 - less.cx, end - 1 - raised - less.cy, 3 - less.cx, 3 - less.cy);
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
    }
}

TEST_F(CustomDialogTest, FrameAndCaptionArePainted)
{
    constexpr COLORREF Letters = RGB(230, 230, 230);
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
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

// How often a window with the platform's menu style opens its system menu for what asks for one.
int MenusOpened(CWnd& window)
{
    const CRect place = WindowRectOf(window);
    const CPoint caption(place.left + 40, place.top + 12);
    MessageLog log(window, {WM_ENTERMENULOOP});
    const auto end = [] {
        GUITHREADINFO info = {};
        info.cbSize = sizeof(info);
        ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
        if ((info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0)
        {
            QueueKey(VK_ESCAPE, true);
            QueueKey(VK_ESCAPE, false);
        }
    };
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
    return log.Count(WM_ENTERMENULOOP);
}

TEST_F(CustomDialogTest, OnBoardNothingOpensTheSystemMenu)
{
    const DialogTemplate form({.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE});
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    dialog.SetForegroundWindow();
    EXPECT_EQ(MenusOpened(dialog), 3);
    COnBoardUIGeneral::SetAppMode(ONBOARD);
    PumpAll();
    EXPECT_EQ(MenusOpened(dialog), 0);
    EXPECT_TRUE(ShowsWhatAPaintWould(dialog));
    dialog.DestroyWindow();
    COnBoardUIGeneral::SetAppMode(STD);

    CCustomPropPage page(IDD_TEST_PAGE_1);
    Scripted<CCustomPropSheet> sheet("Sheet", nullptr, &Host());
    sheet.AddPage(&page);
    sheet.inLoop = [&] {
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        PumpAll();
        EXPECT_NE(sheet.GetStyle() & WS_SYSMENU, 0U);
        EXPECT_EQ(MenusOpened(sheet), 0);
        sheet.EndDialog(IDOK);
    };
    sheet.DoModal();
}

TEST_F(CustomDialogTest, ControlsHaveTheColoursOfTheMode)
{
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    struct Look
    {
        COLORREF text;
        COLORREF ground; // behind letters; CLR_INVALID: as it was
        HGDIOBJ brush;
    };
    const Look field = {RGB(26, 26, 26), RGB(180, 180, 180), CCustomDialog::m_BkEditBrush};
    const Look off = {RGB(70, 70, 70), RGB(100, 100, 100), CCustomDialog::m_BkEditDisabledBrush};
    const Look label = {RGB(230, 230, 230), CLR_INVALID, CCustomDialog::m_BkBrush};
    const Look panel = {RGB(0, 0, 0), CLR_INVALID, CCustomDialog::m_BkBrush};
    const struct
    {
        UINT message;
        int id;
        const Look& look;
    } cases[] = {
        {WM_CTLCOLOREDIT, IdEdit, field},
        {WM_CTLCOLORLISTBOX, IdList, field},
        {WM_CTLCOLOREDIT, IdDisabled, off},
        {WM_CTLCOLORSTATIC, IdDisabled, off}, // as the platform's disabled edit asks
        {WM_CTLCOLORSTATIC, IdReadOnly, field},
        {WM_CTLCOLORSTATIC, IdLabel, label},
        {WM_CTLCOLORDLG, 0, panel},
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(testing::Message() << each.message << ' ' << each.id);
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        const HWND control = each.id == 0 ? dialog.m_hWnd : ::GetDlgItem(dialog, each.id);
        EXPECT_NE(AskColors(dialog, each.message, dc, control), each.look.brush);
        EXPECT_NE(dc.GetTextColor(), RGB(230, 230, 230)) << "the platform's in its mode";
        const COLORREF before = dc.GetBkColor();
        const ModeScope mode(EFB);
        EXPECT_EQ(AskColors(dialog, each.message, dc, control), each.look.brush);
        EXPECT_EQ(dc.GetTextColor(), each.look.text);
        EXPECT_EQ(dc.GetBkColor(), each.look.ground == CLR_INVALID ? before : each.look.ground);
        EXPECT_EQ(dc.GetBkMode(), each.id == IdLabel ? TRANSPARENT : OPAQUE);
        EXPECT_EQ(dc.GetCurrentFont() == &CCustomDialog::m_OBStaticTextFont, each.id == IdLabel);
    }
}

TEST_F(CustomDialogTest, DerivedDialogsFindBrushesAndPensOfTheseColours)
{
    const DialogForTests dialog;
    using D = CCustomDialog;
    const std::pair<CBrush&, COLORREF> brushes[] = {
        {D::m_BkBrush, RGB(50, 50, 50)},
        {D::m_BkCaptionBrush, RGB(70, 90, 110)},
        {D::m_BkDisabledBrush, RGB(100, 100, 100)},
        {D::m_BkEditBrush, RGB(180, 180, 180)},
        {D::m_BkEditDisabledBrush, RGB(100, 100, 100)},
        {D::m_BkRedTestBrush, RGB(255, 0, 0)},
        {D::m_BkGrnTestBrush, RGB(0, 255, 0)},
        {D::m_BkBluTestBrush, RGB(0, 0, 255)},
    };
    for (const auto& [brush, color] : brushes)
    {
        LOGBRUSH made = {};
        brush.GetLogBrush(&made);
        EXPECT_EQ(made.lbColor, color);
    }
    const std::pair<CPen&, COLORREF> pens[] = {
        {D::m_BkBorderPen, RGB(70, 90, 110)},  {D::m_BkDisabledPen, RGB(100, 100, 100)},
        {D::m_BkBorderRedPen, RGB(255, 0, 0)}, {D::m_BkBorderGrnPen, RGB(0, 255, 0)},
        {D::m_BkBorderBluPen, RGB(0, 0, 255)},
    };
    for (const auto& [pen, color] : pens)
    {
        LOGPEN made = {};
        pen.GetLogPen(&made);
        EXPECT_EQ(made.lopnColor, color);
        EXPECT_EQ(made.lopnWidth.x, 3);
    }
}

// Moving ----------------------------------------------------------------------------------------

// Presses, moves and lets go in the platform's own loop for moves, which begins with the press.
void DragInPlatformLoop(CPoint from, CPoint to)
{
    constexpr int Moves = 4;
    // The display tells of each move once more, on a busy machine some time later, and puts the
    // pointer back there: so the last is repeated.
    constexpr int Arrivals = 8;
    std::vector<std::function<void()>> steps = {[] { QueueButton(true); }};
    for (int move = 1; move <= Moves + Arrivals; ++move)
    {
        const int part = std::min(move, Moves);
        const CPoint at(from.x + (to.x - from.x) * part / Moves,
                        from.y + (to.y - from.y) * part / Moves);
        steps.push_back([at] { QueueMove(at); });
    }
    steps.push_back([] { QueueButton(false); });
    MoveTo(from);
    PlaySteps(steps);
}

TEST_F(CustomDialogTest, TheCaptionIsDraggedAsFarAsTheHostsAreaAllows)
{
    const CSize size(300, 200);
    const struct
    {
        CSize by;
        CPoint grip; // where the dialog ends with ShowEntireDialog 0
        CPoint whole;
    } cases[] = {
        {CSize(-10, 20), CPoint(290, 220), CPoint(290, 220)},
        {CSize(-280, 0), CPoint(20, 200), CPoint(200, 200)},
        {CSize(0, -180), CPoint(300, 80), CPoint(300, 80)},
        {CSize(280, 300), CPoint(548, 428), CPoint(300, 280)},
    };
    host.area = CRect(200, 80, 600, 480);
    for (const bool whole : {false, true})
    {
        SetSpecialConfigVal("Dialog", "ShowEntireDialog", whole ? 1 : 0);
        const ModeScope mode(ONBOARD);
        DialogForTests dialog(nullptr, &host);
        ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
        EXPECT_EQ(dialog.m_showEntire, whole);
        for (const auto& each : cases)
        {
            dialog.SetWindowPos(nullptr, 300, 200, size.cx, size.cy, SWP_NOZORDER);
            PumpAll();
            // Elsewhere each time, or it would be a double click.
            const CPoint from = WindowPoint(dialog, CPoint(40 + 20 * int(&each - cases), 15));
            DragInPlatformLoop(from, from + each.by);
            EXPECT_EQ(WindowRectOf(dialog), CRect(whole ? each.whole : each.grip, size))
                << whole << ": " << each.by.cx << ' ' << each.by.cy;
        }
        EXPECT_EQ(host.askedFor, 1);
        CRect tooLarge(0, 0, 1000, 900);
        dialog.SendMessage(WM_MOVING, 0, reinterpret_cast<LPARAM>(&tooLarge));
        EXPECT_EQ(tooLarge.TopLeft(), whole ? CPoint(-400, -420) : CPoint(0, 80))
            << "of two edges that cannot both be kept the right and the lower one count";
    }
    RestPointer();
    // Nobody asks in the standard mode, nor of a host that has no answer.
    struct Silent : IAppAccess
    {
        const char* GetProviderName() override { return "silent"; }
    } silent;
    DialogForTests standard(nullptr, &host);
    DialogForTests unanswered(nullptr, &silent);
    for (DialogForTests* dialog : {&standard, &unanswered})
    {
        const ModeScope mode(dialog == &standard ? STD : ONBOARD);
        ASSERT_TRUE(dialog->CreateIndirect(form, &Host()));
        CRect proposed(-900, -900, -500, -650);
        dialog->SendMessage(WM_MOVING, 0, reinterpret_cast<LPARAM>(&proposed));
        EXPECT_EQ(proposed, CRect(-900, -900, -500, -650));
    }
}

} // namespace
