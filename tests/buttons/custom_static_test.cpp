// Labels, swatches and group boxes.

#include "BoldStatic.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomDialog.h"
#include "CustomFormView.h"
#include "CustomPropPage.h"
#include "CustomStatic.h"
#include "buttons/buttons_for_tests.h"
#include "catalog/DialogTemplate.h"

namespace {

constexpr COLORREF Panel = RGB(50, 50, 50);
constexpr COLORREF Frame = RGB(60, 60, 60);
constexpr COLORREF Text = RGB(230, 230, 230);

using StaticOnBoard = OnBoard<WindowTest>;

struct GroupBox : CCustomStatic
{
    GroupBox(CWnd& parent, const CRect& place, const char* text = "", DWORD exStyle = 0)
    {
        CreateEx(exStyle, "BUTTON", text, WS_CHILD | WS_VISIBLE | BS_GROUPBOX, place, &parent, 1U);
        PumpAll();
    }
};

} // namespace

TEST_F(StaticOnBoard, AGroupBoxHasAFrameThatItsCaptionCuts)
{
    GroupBox box(Host(), CRect(20, 20, 220, 120), "HH");
    const Pixels seen = WindowPixels(box);
    constexpr int Top = 12; // three quarters of the 16 pixels of the system font
    EXPECT_EQ(seen.At(5, Top - 1), Panel);
    for (int depth = 0; depth < 3; ++depth)
    {
        for (const CPoint side : {CPoint(5, Top + depth), CPoint(depth, 60),
                                  CPoint(199 - depth, 60), CPoint(100, 99 - depth)})
        {
            EXPECT_EQ(seen.At(side), Frame) << side.x << ", " << side.y;
        }
    }
    EXPECT_EQ(seen.At(3, 60), Panel);
    EXPECT_EQ(seen.At(100, Top + 3), Panel);
    EXPECT_EQ(seen.At(9, Top + 1), Frame);
    EXPECT_EQ(seen.At(11, Top + 1), Panel) << "the blank before the caption cuts the frame";
    const CRect letters = Extent(seen, Text, CRect(0, 0, 200, 100));
    EXPECT_GT(letters.left, 12);
    EXPECT_LT(letters.bottom, 30);
    EXPECT_NEAR(letters.Height(), 14, 1) << "capitals of the labels' font";

    EXPECT_EQ(box.SetBackgroundColor(0, RGB(0, 0, 90)), Panel);
    box.SetWindowText("");
    EXPECT_EQ(Settled(box).At(100, 60), RGB(0, 0, 90));
    EXPECT_EQ(WindowPixels(box).Count(Frame, CRect(1, Top, 199, Top + 3)), 3 * 198);
    EXPECT_EQ(box.SetBackgroundColor(1, RGB(1, 2, 3)), RGB(0, 0, 90));

    // A caption too wide for its box is left out.
    const int width = CClientDC(nullptr).GetTextExtent(CString(" A caption ")).cx;
    for (const int spare : {20, 19})
    {
        GroupBox narrow(Host(), CRect(0, 200, width + spare, 260), "A caption");
        EXPECT_EQ(WindowPixels(narrow).Count(Text) > 0, spare >= 20) << spare;
    }
}

TEST_F(StaticOnBoard, ADisabledGroupBoxLooksAsBefore)
{
    GroupBox box(Host(), CRect(20, 20, 220, 120), "Group");
    auto& frame = Add<CCustomStatic>(CRect(20, 220, 220, 320), SS_BLACKFRAME | SS_NOTIFY, "Group");
    for (CWnd* const group : std::initializer_list<CWnd*>{&box, &frame})
    {
        const Pixels enabled = WindowPixels(*group);
        for (const UINT code : {STN_DISABLE, STN_ENABLE})
        {
            group->EnableWindow(code == STN_ENABLE);
            group->SendMessage(WM_SYSCOLORCHANGE);
            EXPECT_EQ(WindowPixels(*group), enabled) << "nothing in the platform's look";
        }
    }
    const std::vector<UINT> told = {STN_DISABLE, STN_ENABLE};
    EXPECT_EQ(Host().CodesFrom(UINT(frame.GetDlgCtrlID())), told);
    EXPECT_EQ(Host().Count(WM_COMMAND), 2) << "a button's group box tells nothing";
}

TEST_F(StaticOnBoard, AClientEdgeBecomesABorderOfThreePixels)
{
    auto& label = Add<CCustomStatic>(CRect(20, 20, 120, 60));
    label.ModifyStyleEx(0, WS_EX_CLIENTEDGE);
    for (const auto& [mode, border] : {std::pair(ONBOARD, 3), {STD, 2}})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        label.SetWindowPos(nullptr, 20, 20, 100, 40, SWP_FRAMECHANGED | SWP_NOZORDER);
        PumpAll();
        EXPECT_EQ(ClientRectOf(label).Size(), CSize(100 - 2 * border, 40 - 2 * border));
        EXPECT_EQ(WindowPixels(label).Count(RGB(70, 70, 70)), border == 3 ? 100 * 40 - 94 * 34 : 0);
    }
}

TEST_F(StaticOnBoard, AThinFrameStaysThePlatforms)
{
    const std::pair<DWORD, DWORD> frames[] = {
        {SS_ETCHEDHORZ, 0}, {SS_ETCHEDVERT, 0},    {SS_ETCHEDFRAME, 0},      {SS_SUNKEN, 0},
        {WS_BORDER, 0},     {0, WS_EX_STATICEDGE}, {0, WS_EX_DLGMODALFRAME}, {WS_DLGFRAME, 0}};
    for (const auto& [style, exStyle] : frames)
    {
        SCOPED_TRACE(testing::Message() << std::hex << style << ", " << exStyle);
        const auto seen = [&, style = style, exStyle = exStyle](CStatic&& label) {
            label.CreateEx(exStyle, "STATIC", "", style | WS_CHILD | WS_VISIBLE,
                           CRect(20, 20, 60, 50), &Host(), 7U);
            PumpAll();
            Pixels pixels = WindowPixels(label);
            label.DestroyWindow();
            return pixels;
        };
        EXPECT_EQ(seen(CCustomStatic()), seen(CStatic()));
    }
}

TEST_F(StaticOnBoard, TheGroupBoxFillsRoundTheControlsThatAreToBeSeen)
{
    CCustomDialog dialog(0U, nullptr);
    ASSERT_TRUE(dialog.CreateIndirect(DialogTemplate(CRect(0, 0, 200, 100), WS_POPUP | WS_VISIBLE),
                                      nullptr));
    GroupBox box(dialog, CRect(10, 10, 210, 110));
    CColorStatic inside, across, hidden, windowless;
    inside.Set(RGB(255, 0, 0));
    across.Set(RGB(0, 255, 0));
    inside.Create("", WS_CHILD | WS_VISIBLE, CRect(30, 40, 60, 70), &dialog, 2);
    across.Create("", WS_CHILD | WS_VISIBLE, CRect(190, 40, 230, 70), &dialog, 3);
    hidden.Create("", WS_CHILD, CRect(100, 40, 130, 70), &dialog, 4);
    // What the host makes later is in no list.
    dialog.GetControls() = {&box, &inside, &hidden, &windowless};
    // A canvas that the box erases: what it spares keeps the canvas's own colour.
    const auto erased = [&] {
        Canvas canvas(200, 100);
        box.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.DC().m_hDC));
        return canvas.Picture();
    };
    const Pixels seen = erased();
    EXPECT_EQ(seen.Count(Canvas::Untouched, CRect(20, 30, 50, 60)), 900);
    EXPECT_EQ(seen.Count(Canvas::Untouched, CRect(180, 30, 200, 60)), 600) << "reaches out of it";
    EXPECT_EQ(seen.Count(Panel), 200 * 100 - 1500) << "what is hidden is painted over";

    // The same on a page and on a form.
    struct Form : CCustomFormView
    {
        Form()
            : CCustomFormView(1U)
        {}
    };
    const auto expectAlike = [&](auto&& parent) {
        ASSERT_TRUE(parent.CWnd::CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE,
                                          CRect(0, 0, 300, 200), &dialog, 9));
        parent.GetControls() = {&box, &inside, &across, &hidden, &windowless};
        box.SetParent(&parent);
        EXPECT_EQ(erased(), seen);
        box.SetParent(&dialog);
    };
    expectAlike(CCustomPropPage(1U));
    expectAlike(Form());

    // On the screen, the box being painted last.
    PumpAll();
    box.RedrawWindow();
    const Pixels screen = WindowPixels(box);
    EXPECT_EQ(screen.Count(RGB(255, 0, 0)), 900);
    EXPECT_GE(screen.Count(RGB(0, 255, 0)), 600 - 3 * 30) << "but for where the frame crosses it";

    COnBoardUIGeneral::SetAppMode(STD);
    EXPECT_EQ(erased().Count(Panel), 0);
    dialog.DestroyWindow();
}

TEST_F(WindowTest, TheModeOfItsMakingDecidesWhetherAGroupBoxIsTransparent)
{
    GroupBox standard(Host(), CRect(20, 20, 220, 120));
    const ModeScope mode(EFB);
    EXPECT_TRUE(standard.GetExStyle() & WS_EX_TRANSPARENT);
    const GroupBox onBoard(Host(), CRect(20, 220, 220, 320), "", WS_EX_TRANSPARENT);
    EXPECT_FALSE(onBoard.GetExStyle() & WS_EX_TRANSPARENT);
    standard.SendMessage(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
    standard.Invalidate();
    EXPECT_EQ(Settled(standard).At(1, 60), Frame);
}

TEST_F(WindowTest, ABoldLabelIsTwiceAsHeavyInItsColourAndStandardOnly)
{
    constexpr COLORREF Red = RGB(200, 0, 0);
    CFont font;
    font.CreateFont(-16, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    auto& plain = Add<CCustomStatic>(CRect(20, 20, 220, 50), 0, "HHHH");
    auto& bold = Add<CBoldStatic>(CRect(20, 60, 220, 90), 0, "HHHH");
    bold.ModifyStyleEx(0, WS_EX_TRANSPARENT); // the host clips what is not
    plain.SetFont(&font);
    bold.SetFont(&font);
    bold.SetColor(Red);
    PumpAll();
    const COLORREF black = ::GetSysColor(COLOR_WINDOWTEXT);
    const Pixels seen = WindowPixels(bold);
    EXPECT_GT(seen.Count(Red), WindowPixels(plain).Count(black) * 5 / 4);
    const CRect letters = Extent(seen, Red, CRect(0, 0, 200, 30));
    EXPECT_TRUE(letters.left <= 4 && letters.top <= 8);
    EXPECT_EQ(seen.Count(black), 0) << "the platform's own text must not stay";
    bold.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(Settled(bold), seen);
    bold.SetRedraw(FALSE);
    bold.SetWindowText("");
    bold.SetRedraw(TRUE);
    bold.Invalidate();
    EXPECT_EQ(Settled(bold).Count(Red), 0) << "the old text";
    bold.SetWindowText("HHHH");
    const ModeScope mode(ONBOARD);
    bold.Invalidate();
    EXPECT_EQ(Settled(bold).Count(Red), 0);
}

TEST_F(WindowTest, ASwatchIsItsColourAndAnOutlineHasItsExclusiveEdges)
{
    auto made = std::make_unique<CColorStatic>();
    made->Set(RGB(9, 99, 199)); // before there is a window
    auto& swatch = Add(std::move(made), CRect(20, 20, 60, 60));
    EXPECT_EQ(WindowPixels(swatch).Count(RGB(9, 99, 199)), 1600);
    swatch.Set(RGB(199, 9, 99));
    EXPECT_EQ(Settled(swatch).Count(RGB(199, 9, 99)), 1600);
    swatch.SetWindowText("Tanks");
    swatch.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(WindowPixels(swatch).Count(RGB(199, 9, 99)), 1600) << "its name is not shown";

    constexpr COLORREF Green = RGB(0, 128, 0);
    auto& outline = Add<CColoredGroupBox>(CRect(100, 20, 200, 80), 0, "Tanks");
    outline.SetColor(Green);
    outline.RedrawWindow();
    const Pixels enabled = WindowPixels(outline);
    outline.EnableWindow(FALSE);
    outline.SetWindowText("Other tanks");
    outline.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(Settled(outline), enabled) << "its text is not shown";
    CString name;
    outline.GetWindowText(name);
    EXPECT_EQ(name, "Other tanks");
    // One pixel: left and top, the other two sides fall outside.
    EXPECT_EQ(enabled.Count(Green), 100 + 60 - 1);
    const ModeScope mode(ONBOARD);
    outline.RedrawWindow();
    const Pixels wide = WindowPixels(outline);
    // Three pixels about each line: two on the left and at the top, one on the other sides.
    EXPECT_EQ(wide.Count(Green), 100 * 60 - 97 * 57);
    EXPECT_EQ(wide.Count(Green, CRect(2, 2, 99, 59)), 0);
    outline.ModifyStyleEx(0, WS_EX_TRANSPARENT); // the host clips what is not
    for (const CSize size : {CSize(160, 120), CSize(90, 50)})
    {
        outline.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_TRUE(ShowsWhatAPaintWould(Host())) << "no line where its edges were";
    }
}
