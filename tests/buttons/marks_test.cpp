// Check boxes and radio buttons: their marks to the pixel, captions, keys and groups.

#include "OnBoardUI.h"
#include "buttons/buttons_for_tests.h"

#include <map>

using testing::ElementsAre;

namespace {

constexpr COLORREF Ground = RGB(50, 50, 50);

// The colours of a mark, enabled and disabled.
constexpr struct
{
    DWORD style;
    COLORREF face, rim, light, sign;
} Looks[] = {
    {0, RGB(180, 180, 180), RGB(93, 93, 93), RGB(220, 220, 220), RGB(26, 26, 26)},
    {WS_DISABLED, RGB(100, 100, 100), RGB(90, 90, 90), RGB(130, 130, 130), RGB(70, 70, 70)},
};

// Of the captions' font.
TEXTMETRIC CaptionMetrics()
{
    CFont font;
    CreateOnBoardFont(font, 1.7, 0, FW_NORMAL);
    CClientDC dc(nullptr);
    dc.SelectObject(&font);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics;
}

} // namespace

TEST_F(ButtonOnBoard, TheCheckSquareHasThreeSunkenRingsAndACross)
{
    const TEXTMETRIC metrics = CaptionMetrics();
    const int line = int(metrics.tmHeight + metrics.tmExternalLeading);
    for (const auto& look : Looks)
    {
        // One pixel of margin above, then six less than the line: the whole square is to be seen.
        const int side = line - 6;
        auto& box = Add<TestCheckBox>(CRect(0, 0, 200, side + 1), look.style);
        const CRect mark(4, 1, 4 + side, 1 + side);
        CRect inner(mark);
        inner.DeflateRect(3, 3);
        for (const int check : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE})
        {
            box.SetCheck(check);
            const Pixels seen = box.Drawn();
            EXPECT_EQ(seen.Count(Ground), (side + 1) * 200 - side * side);
            EXPECT_EQ(seen.At(mark.left - 1, mark.top), Ground);
            for (int ring = 0; ring < 3; ++ring)
            {
                EXPECT_EQ(seen.At(mark.left + ring, mark.bottom - 2 - ring), look.rim);
                EXPECT_EQ(seen.At(mark.right - 2 - ring, mark.top + ring), look.rim);
                EXPECT_EQ(seen.At(mark.right - 1 - ring, mark.top + ring), look.light);
                EXPECT_EQ(seen.At(mark.left + ring, mark.bottom - 1 - ring), look.light);
            }
            const int free = inner.Width() * inner.Height();
            if (check == BST_UNCHECKED)
            {
                EXPECT_EQ(seen.Count(look.face, inner), free);
                continue;
            }
            for (int step = 1; step < inner.Width() - 2; ++step)
            {
                EXPECT_EQ(seen.At(inner.left + step, inner.top + step), look.sign) << step;
                EXPECT_EQ(seen.At(inner.left + step, inner.bottom - 1 - step), look.sign) << step;
                EXPECT_EQ(seen.At(inner.left + step + 1, inner.top + step), look.sign) << step;
            }
            EXPECT_EQ(seen.Count(look.face, inner) + seen.Count(look.sign, inner), free);
            EXPECT_EQ(seen.At(inner.left, inner.CenterPoint().y), look.face);
        }
        Remove(box);
    }
}

TEST_F(ButtonOnBoard, TheRadioCircleIsThisPicture)
{
    static constexpr const char* Circle[] = {
        "........rrrrrr........", "......rrrrrrrrrr......", "....rrrrrrrrrrrrrr....",
        "...rrrrrrffffrrrrrr...", "..rrrrrffffffffrrrrL..", "..rrrrffffffffffrrLL..",
        ".rrrrffffDDDDffffLLLL.", ".rrrfffDDDDDDDDfffLLL.", "rrrrfffDDDDDDDDfffLLLL",
        "rrrfffDDDDDDDDDDfffLLL", "rrrfffDDDDDDDDDDfffLLL", "rrrfffDDDDDDDDDDfffLLL",
        "rrrfffDDDDDDDDDDfffLLL", "rrrrfffDDDDDDDDfffLLLL", ".rrrfffDDDDDDDDfffLLL.",
        ".rrrrffffDDDDffffLLLL.", "..rrrrffffffffffLLLL..", "..rrrLLffffffffLLLLL..",
        "...rLLLLLffffLLLLLL...", "....LLLLLLLLLLLLLL....", "......LLLLLLLLLL......",
        "........LLLLLL........",
    };
    for (const auto& look : Looks)
    {
        const std::map<char, COLORREF> colors = {
            {'.', Ground}, {'r', look.rim}, {'L', look.light}, {'f', look.face}, {'D', look.sign}};
        auto& radio = Add<TestRadio>(CRect(0, 0, 200, 41), look.style);
        for (const int check : {BST_UNCHECKED, BST_CHECKED, BST_INDETERMINATE})
        {
            radio.SetCheck(check);
            const Pixels seen = radio.Drawn();
            int wrong = 0;
            int blank = 200 * 41 - 22 * 22;
            for (int y = 0; y < 22; ++y)
            {
                for (int x = 0; x < 22; ++x)
                {
                    const char part = Circle[y][x];
                    const char shown = part == 'D' && check == BST_UNCHECKED ? 'f' : part;
                    wrong += seen.At(4 + x, 10 + y) != colors.at(shown);
                    blank += shown == '.';
                }
            }
            EXPECT_EQ(wrong, 0);
            EXPECT_EQ(seen.Count(Ground), blank);
        }
        Remove(radio);
    }
}

TEST_F(ButtonOnBoard, TheCaptionStandsBesideTheMarkAndInTheMiddle)
{
    constexpr COLORREF Text = RGB(230, 230, 230);
    const int line = int(CaptionMetrics().tmHeight);
    const std::tuple<DWORD, const char*, int, COLORREF> cases[] = {
        {WS_DISABLED, "HHH", 1, RGB(90, 90, 90)},
        {BS_MULTILINE, "HHHHH HHHHH", 2, Text},
        {0, "HHHHH HHHHH HHHHH", 1, Text}, // cut, not wrapped
        {BS_MULTILINE, "HHH", 1, Text},
    };
    for (const auto& [style, text, lines, color] : cases)
    {
        SCOPED_TRACE(text);
        auto& radio = Add<TestRadio>(CRect(0, 0, 160, 101), style, text);
        const CRect beside(34, 0, 160, 101); // the mark ends at 26, 8 pixels of gap
        const Pixels seen = radio.Drawn();
        EXPECT_EQ(seen.Count(color, CRect(26, 0, 34, 101)), 0);
        const CRect letters = Extent(seen, color, beside);
        EXPECT_LE(letters.left, 38);
        const int block = lines * line;
        const int top = 1 + (100 - block) / 2;
        EXPECT_GE(letters.top, top);
        EXPECT_LE(letters.bottom, top + block);
        EXPECT_GT(letters.Height(), block - line / 2);

        // The focus frame goes round the text and moves nothing.
        if (style == BS_MULTILINE && lines == 1)
        {
            radio.SetFocus();
            const Pixels focused = radio.Drawn();
            const CRect frame = Extent(focused, RGB(70, 70, 70), CRect(30, 0, 160, 101));
            EXPECT_EQ(frame.left, 33);
            EXPECT_EQ(frame.Height(), line);
            EXPECT_NEAR(frame.top, top - 1, 1);
            EXPECT_EQ(Extent(focused, Text, beside), letters);
            EXPECT_GE(frame.right, letters.right);
            // Also for an heir that draws it by itself it is a frame alone.
            Canvas canvas(160, 101);
            canvas.DC().SetBkMode(TRANSPARENT);
            radio.DrawRCText(canvas.DC(), CRect(1, 1, 160, 101), CRect(4, 40, 26, 62));
            EXPECT_EQ(canvas.Picture().Count(RGB(255, 255, 255)), 0);
        }
        Remove(radio);
    }
}

TEST_F(ButtonOnBoard, ACheckBoxTellsOfAClickTwiceAndOfAKeyOnce)
{
    auto& box = Add<TestCheckBox>(ButtonPlace, BS_AUTO3STATE, "Box", ButtonId);
    std::vector<int> checks;
    Host().hook = [&](ToldMessage&) { checks.push_back(box.GetCheck()); };
    Click(box.Middle());
    EXPECT_THAT(checks, ElementsAre(BST_CHECKED, BST_CHECKED));
    EXPECT_TRUE(WindowPixels(box) == box.Drawn()) << "shown at once";
    TypeKey(VK_SPACE);
    box.SendMessage(WM_KEYDOWN, VK_SPACE, 0x40000001); // held
    EXPECT_THAT(checks, ElementsAre(BST_CHECKED, BST_CHECKED, BST_UNCHECKED));
    EXPECT_TRUE(WindowPixels(box) == box.Drawn());
    TypeKey(VK_RETURN);
    TypeKey('A');
    EXPECT_EQ(checks.size(), 3U);
    for (const auto& [before, after] : {std::pair(BST_INDETERMINATE, BST_CHECKED), {7, 7}})
    {
        box.SendMessage(BM_SETCHECK, WPARAM(before));
        EXPECT_EQ(box.SendMessage(BM_GETCHECK), before);
        box.SendMessage(BM_CLICK);
        EXPECT_EQ(box.GetCheck(), after);
        EXPECT_TRUE(Settled(box) == box.Drawn());
    }
}

// Groups ----------------------------------------------------------------------------------------

namespace {

class RadioGroup : public ButtonOnBoard
{
protected:
    TestRadio& AddRadio(DWORD style = 0)
    {
        const int count = int(m_radios.size());
        m_radios.push_back(&Add<TestRadio>(CRect(CPoint(30, 40 + 40 * count), CSize(150, 25)),
                                           style | BS_AUTORADIOBUTTON | WS_TABSTOP, "R"));
        return *m_radios.back();
    }
    std::vector<int> Checks() const
    {
        std::vector<int> checks;
        for (const TestRadio* radio : m_radios)
        {
            checks.push_back(radio->GetCheck());
        }
        return checks;
    }
    std::vector<TestRadio*> m_radios;
};

} // namespace

TEST_F(RadioGroup, AClickClearsTheOthersOfTheGroupOnly)
{
    AddRadio(WS_GROUP).SetCheck(1);
    auto& second = AddRadio();
    auto& third = AddRadio();
    auto& box = Add<TestCheckBox>(CRect(300, 40, 400, 70), BS_AUTOCHECKBOX, "no radio button");
    box.SetCheck(1);
    AddRadio(WS_GROUP).SetCheck(1); // the next group
    Click(second.Middle());
    EXPECT_THAT(Checks(), ElementsAre(0, 1, 0, 1));
    EXPECT_EQ(box.GetCheck(), 1);
    EXPECT_EQ(Host().Count(WM_COMMAND), 1);
    for (TestRadio* const radio : m_radios)
    {
        EXPECT_TRUE(WindowPixels(*radio) == radio->Drawn());
    }
    // Again: the whole group is set again and the parent told again.
    MessageLog log(*m_radios[0], {BM_SETCHECK});
    Click(second.Middle());
    EXPECT_THAT(log.WParams(BM_SETCHECK), ElementsAre(0U));
    EXPECT_EQ(Host().Count(WM_COMMAND), 2);

    third.SetFocus();
    TypeKey(VK_SPACE);
    EXPECT_THAT(Checks(), ElementsAre(0, 0, 1, 1));
    EXPECT_EQ(Host().Count(WM_COMMAND), 2) << "a key tells nobody";
    TypeKey(VK_SPACE);
    TypeKey(VK_UP);
    EXPECT_THAT(Checks(), ElementsAre(0, 0, 1, 1));
}

// The dialog's order skips hidden and disabled windows, so it may never lead back to the head.
TEST_F(RadioGroup, WithoutAHeadOrWithOneThatIsSkippedAClickIsOfOneButton)
{
    AddRadio().SetCheck(1);
    auto& second = AddRadio();
    Click(second.Middle());
    EXPECT_THAT(Checks(), ElementsAre(1, 1));
    auto& head = AddRadio(WS_GROUP);
    auto& hidden = AddRadio();
    AddRadio().SetCheck(1);
    head.EnableWindow(FALSE);
    hidden.ShowWindow(SW_HIDE);
    head.SendMessage(BM_CLICK);
    hidden.SendMessage(BM_CLICK);
    EXPECT_EQ(head.GetCheck() + hidden.GetCheck(), 2);
}

// Meant: the types that have both bits of an automatic radio button count as one.
TEST_F(RadioGroup, TypesAndStatesBeyondTheUsualHaveTheirRule)
{
    auto& button = Add<CButton>(CRect(300, 40, 400, 70));
    for (DWORD type = 0; type < 16; ++type)
    {
        ::SetWindowLongPtr(button, GWL_STYLE, LONG_PTR(WS_CHILD | type));
        const bool radio = type == 9 || type == 11 || type == 13 || type == 15;
        EXPECT_EQ(CCustomRadiobutton::IsAutoRadio(&button), radio) << type;
        EXPECT_FALSE(CCustomRadiobutton::IsAutoRadioGroupCtrl(&button));
    }
    EXPECT_FALSE(CCustomRadiobutton::IsAutoRadio(nullptr));
    auto& other = AddRadio(WS_GROUP);
    auto& radio = AddRadio();
    for (const auto& [before, after] : {std::pair(BST_INDETERMINATE, BST_CHECKED), {7, 7}})
    {
        other.SetCheck(1);
        radio.SendMessage(BM_SETCHECK, WPARAM(before));
        radio.SendMessage(BM_CLICK);
        EXPECT_EQ(radio.GetCheck(), after);
        EXPECT_EQ(other.GetCheck(), after == BST_CHECKED ? 0 : 1) << "only a check clears others";
    }
}

TEST_F(RadioGroup, GroupBoxesThatItLiesInHearOfEachClickInEveryMode)
{
    auto& radio = AddRadio(WS_GROUP);
    auto& around = Add<CButton>(CRect(20, 20, 300, 200), BS_GROUPBOX, "Around");
    auto& apart = Add<CButton>(CRect(400, 20, 500, 200), BS_GROUPBOX, "Apart");
    MessageLog toldAround(around, {WM_COMMAND});
    MessageLog toldApart(apart, {WM_COMMAND});
    MessageLog toldItself(radio, {WM_COMMAND});
    const WPARAM told = MAKEWPARAM(radio.GetDlgCtrlID(), BN_CLICKED);
    for (const APPMODE mode : {STD, FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        toldAround.Clear();
        Click(radio.Middle());
        EXPECT_THAT(toldAround.WParams(WM_COMMAND), ElementsAre(told)) << APPMODE_NAMES[mode];
    }
    EXPECT_EQ(toldApart.Count(WM_COMMAND) + toldItself.Count(WM_COMMAND), 0);
}

TEST_F(ButtonOnBoard, AChangeOfTheFocusCuesDrawsAtOnce)
{
    const CPoint down(0, 40);
    CWnd* const buttons[] = {&Add<TestRadio>(ButtonPlace, 0, "R"),
                             &Add<TestCheckBox>(ButtonPlace + down, 0, "B"),
                             &Add<TestPush>(ButtonPlace + down + down, 0, "P")};
    for (CWnd* const button : buttons)
    {
        const Pixels before = WindowPixels(*button);
        CClientDC(button).FillSolidRect(0, 0, 50, 20, RGB(255, 0, 0));
        button->SendMessage(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
        EXPECT_TRUE(WindowPixels(*button) == before);
    }
    // In the standard mode it goes no further than to a radio button.
    struct Radio : TestRadio
    {
        int passed = 0;
        LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            passed += message == WM_UPDATEUISTATE;
            return TestRadio::DefWindowProc(message, wParam, lParam);
        }
    };
    COnBoardUIGeneral::SetAppMode(STD);
    auto& radio = Add<Radio>(ButtonPlace, 0, "R");
    radio.SendMessage(WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS));
    EXPECT_EQ(radio.passed, 0);
}
