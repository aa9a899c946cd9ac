// Labels, swatches and group boxes.

#include "BoldStatic.h"
#include "ColorStatic.h"
#include "ColoredGroupBox.h"
#include "CustomDialog.h"
#include "CustomEdit.h"
#include "CustomStatic.h"
#include "OnBoardUI.h"
#include "buttons/buttons_for_tests.h"
#include "catalog/DialogTemplate.h"
#include "support/Acts.h"
#include "support/Fenced.h"

namespace {

constexpr COLORREF Panel = RGB(50, 50, 50);
constexpr COLORREF Frame = RGB(60, 60, 60);
constexpr COLORREF Text = RGB(230, 230, 230);

class TestStatic : public CCustomStatic
{
public:
    explicit TestStatic(DWORD exStyle = 0, DWORD buttonType = 0)
        : m_exStyle(exStyle)
        , m_type(buttonType)
    {}
    using CCustomStatic::m_groupBox;
    BOOL Create(LPCTSTR text, DWORD style, const RECT& place, CWnd* parent, UINT id) override
    {
        return CreateEx(m_exStyle, m_type != 0 ? "BUTTON" : "STATIC", text, style | m_type, place,
                        parent, id);
    }

private:
    DWORD m_exStyle;
    DWORD m_type; // of the button, for a group box
};

std::unique_ptr<TestStatic> GroupBox(DWORD exStyle = 0)
{
    return std::make_unique<TestStatic>(exStyle, BS_GROUPBOX);
}

} // namespace

TEST_F(ButtonOnBoard, AGroupBoxHasAFrameThatItsCaptionCuts)
{
    auto& box = Add(GroupBox(), CRect(20, 20, 220, 120), 0, "HH");
    EXPECT_TRUE(box.m_groupBox);
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
    EXPECT_GT(letters.Height(), 12);

    EXPECT_EQ(box.SetBackgroundColor(0, RGB(0, 0, 90)), Panel);
    box.SetWindowText("");
    PumpAll();
    EXPECT_EQ(WindowPixels(box).At(100, 60), RGB(0, 0, 90));
    EXPECT_EQ(WindowPixels(box).Count(Text), 0);
    EXPECT_EQ(WindowPixels(box).Count(Frame, CRect(1, Top, 199, Top + 3)), 3 * 198);
    EXPECT_EQ(box.SetBackgroundColor(1, RGB(1, 2, 3)), RGB(0, 0, 90));

    // A caption too wide for its box is left out.
    const int width = CClientDC(nullptr).GetTextExtent(CString(" A caption ")).cx;
    for (const int spare : {20, 19})
    {
        auto& narrow = Add(GroupBox(), CRect(0, 200, width + spare, 260), 0, "A caption");
        EXPECT_EQ(WindowPixels(narrow).Count(Text) > 0, spare >= 20) << spare;
        Remove(narrow);
    }
}

TEST_F(ButtonOnBoard, LabelsAndEditsHaveFontsOfTheirSizes)
{
    const auto same = [](CFont& font, CFont& expected) {
        LOGFONT is = {}, wanted = {};
        return font.GetLogFont(&is) != 0 && expected.GetLogFont(&wanted) != 0 &&
               is.lfHeight == wanted.lfHeight && is.lfWeight == wanted.lfWeight &&
               std::string(is.lfFaceName) == wanted.lfFaceName;
    };
    CFont standard, label, field;
    standard.CreatePointFont(COnBoardUIGeneral::GetStdCtrllfHeight(), "MS Sans Serif");
    CreateOnBoardFont(label, 1.53, 0, FW_NORMAL);
    CreateOnBoardFont(field, 1.7, 0, FW_NORMAL);
    EXPECT_FALSE(same(label, field));
    EXPECT_TRUE(same(CCustomStatic::GetOnBoardFont(), label));
    EXPECT_TRUE(same(CCustomEdit::GetOnBoardFont(), field));
    EXPECT_TRUE(same(CCustomStatic::GetStdFont(), standard));
    EXPECT_TRUE(same(CCustomEdit::GetStdFont(), standard));
}

TEST_F(ButtonOnBoard, AClientEdgeBecomesABorderOfThreePixels)
{
    for (const APPMODE mode : {ONBOARD, STD})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        for (const DWORD exStyle : {DWORD(WS_EX_CLIENTEDGE), DWORD(0)})
        {
            auto& label = Add(std::make_unique<TestStatic>(exStyle), CRect(20, 20, 120, 60));
            label.SetWindowPos(nullptr, 20, 20, 100, 40, SWP_FRAMECHANGED | SWP_NOZORDER);
            PumpAll();
            const int border = exStyle == 0 ? 0 : mode == STD ? 2 : 3;
            EXPECT_EQ(ClientRectOf(label).Size(), CSize(100 - 2 * border, 40 - 2 * border));
            EXPECT_EQ(WindowPixels(label).Count(RGB(70, 70, 70)),
                      border == 3 ? 100 * 40 - 94 * 34 : 0);
            Remove(label);
        }
    }
}

TEST_F(ButtonOnBoard, TheGroupBoxFillsRoundTheControlsThatAreToBeSeen)
{
    CCustomDialog dialog(0U, nullptr);
    ASSERT_TRUE(dialog.CreateIndirect(DialogTemplate(CRect(0, 0, 200, 100), WS_POPUP | WS_VISIBLE),
                                      nullptr));
    TestStatic box(0, BS_GROUPBOX);
    CColorStatic inside, across, hidden, windowless;
    inside.Set(RGB(255, 0, 0));
    across.Set(RGB(0, 255, 0));
    const DWORD shown = WS_CHILD | WS_VISIBLE;
    box.Create("", shown, CRect(10, 10, 210, 110), &dialog, 1);
    inside.Create("", shown, CRect(30, 40, 60, 70), &dialog, 2);
    across.Create("", shown, CRect(190, 40, 230, 70), &dialog, 3);
    hidden.Create("", WS_CHILD, CRect(100, 40, 130, 70), &dialog, 4);
    dialog.GetControls() = {&box, &inside, &across, &hidden, &windowless};
    PumpAll();
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

    // On the screen, the box being painted last.
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
    auto& standard = Add(GroupBox(), CRect(20, 20, 220, 120));
    const ModeScope mode(EFB);
    EXPECT_TRUE(standard.GetExStyle() & WS_EX_TRANSPARENT);
    auto& onBoard = Add(GroupBox(WS_EX_TRANSPARENT), CRect(20, 220, 220, 320));
    EXPECT_FALSE(onBoard.GetExStyle() & WS_EX_TRANSPARENT);
    standard.SendMessage(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
    standard.Invalidate();
    PumpAll();
    EXPECT_EQ(WindowPixels(standard).At(1, 60), Frame);
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
    EXPECT_GT(WindowPixels(bold).Count(Red), WindowPixels(plain).Count(black) * 5 / 4);
    const CRect letters = Extent(WindowPixels(bold), Red, CRect(0, 0, 200, 30));
    EXPECT_LE(letters.left, 4);
    EXPECT_LE(letters.top, 8);
    EXPECT_EQ(WindowPixels(bold).Count(black), 0) << "the platform's own text must not stay";
    const ModeScope mode(ONBOARD);
    bold.Invalidate();
    PumpAll();
    EXPECT_EQ(WindowPixels(bold).Count(Red), 0);
}

TEST_F(WindowTest, AParentMayDestroyALabelThatTellsItOfBeingDisabled)
{
    const AccessFaults faults;
    const CRect place(20, 20, 120, 60);
    for (CWnd* const label : {static_cast<CWnd*>(&Add<Fenced<CBoldStatic>>(place, SS_NOTIFY)),
                              static_cast<CWnd*>(&Add<Fenced<CColorStatic>>(place, SS_NOTIFY)),
                              static_cast<CWnd*>(&Add<Fenced<CColoredGroupBox>>(place, SS_NOTIFY))})
    {
        const OnceTold told(Host(), STN_DISABLE, [&] { Remove(*label); });
        ::EnableWindow(*label, FALSE);
        EXPECT_TRUE(told);
    }
    EXPECT_EQ(faults.Count(), 0);
    Host().hook = nullptr;
}

TEST_F(WindowTest, ASwatchIsItsColourAndAnOutlineHasItsExclusiveEdges)
{
    auto made = std::make_unique<CColorStatic>();
    made->Set(RGB(9, 99, 199)); // before there is a window
    auto& swatch = Add(std::move(made), CRect(20, 20, 60, 60));
    EXPECT_EQ(WindowPixels(swatch).Count(RGB(9, 99, 199)), 1600);
    swatch.Set(RGB(199, 9, 99));
    PumpAll();
    EXPECT_EQ(WindowPixels(swatch).Count(RGB(199, 9, 99)), 1600);

    auto& outline = Add<CColoredGroupBox>(CRect(100, 20, 200, 80), 0, "Tanks");
    outline.SetColor(RGB(0, 128, 0));
    outline.RedrawWindow();
    const Pixels enabled = WindowPixels(outline);
    outline.EnableWindow(FALSE);
    PumpAll();
    EXPECT_EQ(WindowPixels(outline), enabled) << "its text is not shown";
    // One pixel: left and top, the other two sides fall outside.
    EXPECT_EQ(WindowPixels(outline).Count(RGB(0, 128, 0)), 100 + 60 - 1);
    const ModeScope mode(ONBOARD);
    outline.RedrawWindow();
    const Pixels wide = WindowPixels(outline);
    // Three pixels about each line: two on the left and at the top, one on the other sides.
    for (const CPoint on : {CPoint(1, 30), CPoint(50, 1), CPoint(99, 30), CPoint(50, 59)})
    {
        EXPECT_EQ(wide.At(on), RGB(0, 128, 0)) << on.x << " " << on.y;
    }
    EXPECT_EQ(wide.Count(RGB(0, 128, 0), CRect(2, 2, 99, 59)), 0);
}
