#include "dialogs/DialogGeometry.h"
#include "dialogs/dialog_for_tests.h"

#include <climits>

namespace {

// Frame -----------------------------------------------------------------------------------------

TEST(DialogGeometryTest, AnAreaHoldsADialogOrAGripOfIt)
{
    const CRect dialog(CPoint(0, 0), CSize(200, 100));
    const struct
    {
        CPoint to;
        CPoint grip;
        CPoint whole;
    } cases[] = {
        {CPoint(300, 200), CPoint(300, 200), CPoint(300, 200)},
        {CPoint(-500, 200), CPoint(-48, 200), CPoint(100, 200)}, // right edge at 152
        {CPoint(5000, 200), CPoint(848, 200), CPoint(700, 200)}, // left edge at 900 - 52
        {CPoint(300, -70), CPoint(300, 50), CPoint(300, 50)},    // never above
        {CPoint(300, 9000), CPoint(300, 598), CPoint(300, 550)},
    };
    for (const auto& each : cases)
    {
        const CRect proposed(each.to, dialog.Size());
        const auto kept = [&](bool whole) {
            return dialogs::KeptInside(proposed, 100, 50, 800, 600, whole);
        };
        EXPECT_EQ(kept(false), CRect(each.grip, dialog.Size())) << each.to.x << ' ' << each.to.y;
        EXPECT_EQ(kept(true), CRect(each.whole, dialog.Size())) << each.to.x << ' ' << each.to.y;
    }
    // Too large for the area: the later checks win.
    EXPECT_EQ(dialogs::KeptInside(CRect(0, 0, 1000, 900), 100, 50, 800, 600, true),
              CRect(CPoint(-100, -250), CSize(1000, 900)));
}

TEST_F(CustomDialogTest, TheOnBoardFrameIsThreePixelsAndABand)
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
    };
    for (const auto& each : cases)
    {
        SCOPED_TRACE(testing::Message() << std::hex << each.style << ' ' << each.exStyle);
        const ModeScope mode(ONBOARD);
        DialogForTests dialog;
        const TemplateBytes bytes = Form(each.style, each.exStyle);
        ASSERT_TRUE(dialog.CreateIndirect(bytes, &Host()));
        EXPECT_EQ(dialog.GetStyle() & (WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX), 0U);
        const CRect window = WindowRectOf(dialog);
        CRect client = ClientRectOf(dialog);
        dialog.ClientToScreen(&client);
        EXPECT_EQ(client.left, window.left + 3);
        EXPECT_EQ(client.right, window.right - 3);
        EXPECT_EQ(client.bottom, window.bottom - 3);
        EXPECT_EQ(client.top, window.top + 3 + BandOf(dialog));
    }
}

TEST_F(CustomDialogTest, OnlyTheBandTakesPresses)
{
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    const CSize size = WindowRectOf(dialog).Size();
    const int end = 4 + BandOf(dialog);
    const auto hit = [&](int x, int y) {
        const CPoint point = WindowPoint(dialog, CPoint(x, y));
        return dialog.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
    };
    for (const CPoint inside : {CPoint(3, 5), CPoint(size.cx - 3, 5), CPoint(3, end - 1)})
    {
        EXPECT_EQ(hit(inside.x, inside.y), HTCAPTION) << inside.x << ' ' << inside.y;
    }
    for (const CPoint outside : {CPoint(2, 5), CPoint(3, 4), CPoint(size.cx - 2, 5), CPoint(3, end),
                                 CPoint(size.cx - 1, size.cy - 1), CPoint(50, size.cy / 2)})
    {
        EXPECT_EQ(hit(outside.x, outside.y), HTNOWHERE) << outside.x << ' ' << outside.y;
    }
    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(hit(size.cx - 8, size.cy - 8), HTCLIENT);
}

TEST_F(CustomDialogTest, FrameAndCaptionArePainted)
{
    const ModeScope mode(ONBOARD);
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    PumpAll();
    const auto expectFrame = [&](COLORREF color, const char* when) {
        const Pixels shown = WindowPixels(dialog);
        const int band = 3 + BandOf(dialog);
        EXPECT_EQ(shown.At(shown.Width() - 20, 10), color) << when;
        EXPECT_EQ(shown.At(100, band - 1), color) << when;
        EXPECT_EQ(shown.At(100, band), RGB(50, 50, 50)) << when << ": the client area begins";
        for (const int x : {0, 2, shown.Width() - 3, shown.Width() - 1})
        {
            EXPECT_EQ(shown.At(x, shown.Height() / 2), color) << when << ' ' << x;
        }
        EXPECT_EQ(shown.At(3, shown.Height() / 2), RGB(50, 50, 50)) << when;
        EXPECT_EQ(shown.At(60, shown.Height() - 2), color) << when;
        const CRect text(6, 3, 90, band - 3);
        EXPECT_GT(shown.Count(RGB(230, 230, 230), text), 50) << when << ": the title";
        EXPECT_EQ(shown.Count(RGB(230, 230, 230), CRect(0, 0, 6, band)), 0) << when;
    };
    expectFrame(RGB(70, 90, 110), "active");
    Host().SetActiveWindow();
    expectFrame(RGB(100, 100, 100), "inactive, drawn at once");
    dialog.SetWindowText("Title, longer & changed");
    expectFrame(RGB(100, 100, 100), "with a new text");
    EXPECT_GT(WindowPixels(dialog).Count(RGB(180, 180, 180)), 1000) << "the controls stay";
    EXPECT_GT(WindowPixels(dialog).Count(RGB(230, 230, 230), CRect(100, 3, 300, 30)), 50);
    dialog.SetActiveWindow();
    dialog.m_centredTitle = true;
    dialog.SetWindowText("T");
    const int half = WindowRectOf(dialog).Width() / 2;
    EXPECT_GT(WindowPixels(dialog).Count(RGB(230, 230, 230), CRect(half - 15, 3, half + 15, 30)),
              10);
    const int before = GraphicsObjects();
    for (int round = 0; round < 20; ++round)
    {
        dialog.SetWindowText(CString('x', 5000));
        dialog.RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    }
    EXPECT_EQ(GraphicsObjects(), before);
}

TEST_F(CustomDialogTest, ControlsHaveTheColoursOfTheMode)
{
    DialogForTests dialog;
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    const struct
    {
        UINT message;
        int id;
        COLORREF text;
        COLORREF ground;
        CBrush* brush;
    } cases[] = {
        {WM_CTLCOLOREDIT, IdEdit, RGB(26, 26, 26), RGB(180, 180, 180),
         &CCustomDialog::m_BkEditBrush},
        {WM_CTLCOLORLISTBOX, IdList, RGB(26, 26, 26), RGB(180, 180, 180),
         &CCustomDialog::m_BkEditBrush},
        {WM_CTLCOLOREDIT, IdDisabled, RGB(70, 70, 70), RGB(100, 100, 100),
         &CCustomDialog::m_BkEditDisabledBrush},
        {WM_CTLCOLORSTATIC, IdDisabled, RGB(70, 70, 70), RGB(100, 100, 100),
         &CCustomDialog::m_BkEditDisabledBrush}, // as the platform's disabled edit asks
        {WM_CTLCOLORSTATIC, IdReadOnly, RGB(26, 26, 26), RGB(180, 180, 180),
         &CCustomDialog::m_BkEditBrush},
        {WM_CTLCOLORSTATIC, IdLabel, RGB(230, 230, 230), RGB(255, 255, 255),
         &CCustomDialog::m_BkBrush},
        {WM_CTLCOLORDLG, 0, RGB(0, 0, 0), RGB(255, 255, 255), &CCustomDialog::m_BkBrush},
        {WM_CTLCOLORBTN, IdButton, RGB(0, 0, 0), RGB(255, 255, 255), nullptr},
    };
    for (const bool onBoard : {false, true})
    {
        const ModeScope mode(onBoard ? EFB : STD);
        for (const auto& each : cases)
        {
            SCOPED_TRACE(testing::Message() << each.message << ' ' << each.id);
            CDC dc;
            dc.CreateCompatibleDC(nullptr);
            const HWND control = each.id == 0 ? dialog.m_hWnd : ::GetDlgItem(dialog, each.id);
            const auto brush = reinterpret_cast<HGDIOBJ>(dialog.SendMessage(
                each.message, WPARAM(dc.GetSafeHdc()), reinterpret_cast<LPARAM>(control)));
            if (onBoard && each.brush != nullptr)
            {
                EXPECT_EQ(brush, each.brush->GetSafeHandle());
                EXPECT_EQ(dc.GetTextColor(), each.text);
                EXPECT_EQ(dc.GetBkColor(), each.ground);
                EXPECT_EQ(dc.GetBkMode(), each.id == IdLabel ? TRANSPARENT : OPAQUE);
                EXPECT_EQ(dc.GetCurrentFont() == &CCustomDialog::m_OBStaticTextFont,
                          each.id == IdLabel);
            }
            else
            {
                for (const CBrush* ours : {&CCustomDialog::m_BkBrush, &CCustomDialog::m_BkEditBrush,
                                           &CCustomDialog::m_BkEditDisabledBrush})
                {
                    EXPECT_NE(brush, ours->GetSafeHandle());
                }
            }
        }
    }
    LOGBRUSH ground = {};
    CCustomDialog::m_BkRedTestBrush.GetLogBrush(&ground);
    EXPECT_EQ(ground.lbColor, RGB(255, 0, 0));
    LOGPEN pen = {};
    CCustomDialog::m_BkBorderBluPen.GetLogPen(&pen);
    EXPECT_EQ(pen.lopnColor, RGB(0, 0, 255));
    EXPECT_EQ(pen.lopnStyle, UINT(PS_INSIDEFRAME));
}

// Moving ----------------------------------------------------------------------------------------

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
            dialog.DragOnPress(from + each.by);
            MoveTo(from);
            Press(); // the platform's loop runs inside
            EXPECT_EQ(WindowRectOf(dialog), CRect(whole ? each.whole : each.grip, size))
                << whole << ": " << each.by.cx << ' ' << each.by.cy;
        }
        EXPECT_EQ(host.askedFor, 1);
    }
    RestPointer();
    // Nobody asks in the standard mode or without a host, nor of a host that has no answer.
    struct Silent : IAppAccess
    {
        const char* GetProviderName() override { return "silent"; }
    } silent;
    DialogForTests standard(nullptr, &host);
    DialogForTests alone;
    DialogForTests unanswered(nullptr, &silent);
    for (DialogForTests* dialog : {&standard, &alone, &unanswered})
    {
        const ModeScope mode(dialog == &standard ? STD : ONBOARD);
        ASSERT_TRUE(dialog->CreateIndirect(form, &Host()));
        RECT proposed = {-900, -900, -500, -650};
        dialog->SendMessage(WM_MOVING, 0, reinterpret_cast<LPARAM>(&proposed));
        EXPECT_EQ(CRect(proposed), CRect(-900, -900, -500, -650));
    }
}

} // namespace
